#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

/// One input file as an ordered map from dotted key to value text, with its `source` aliases
/// resolved. Copies are deep.
class inputMap {
public:
    /// Dotted key to value text; "environment.wave.type" to "regular".
    std::map<std::string, std::string> map;

    inputMap() = default;
    /// Reads the stream to its end.
    inputMap(std::istream& in, char assignDLM, char memberDLM);
    /// Reads the file, with ':' for '=' where its name contains ".json". A file that cannot be
    /// opened gives an empty map: callers that need it use `readFile`.
    explicit inputMap(const std::string& name);

    /// Replaces all by what the constructor reads; false where the file cannot be opened. A file
    /// that cannot be read to its end is fatal.
    bool readFile(const std::string& name);

    /// Resolves aliases until nothing changes, in at most 502 passes.
    void assignSources();

    /// The value of `key` as T (double, int or a list of doubles), or `fallback` where there is no
    /// such key.
    template <class T>
    T read(const std::string& key, const T& fallback) const;

    /// Sets `key`, overwriting. A value that holds an assignment is read as input text, and its
    /// entries are set as `key`.subKey.
    void set(const std::string& key, const std::string& value);

    /// Writes the map as JSON; nothing unless `outName` contains ".json". The name ".json" alone
    /// means the map's own file name with that extension. A file that cannot be written is fatal.
    void print(std::string outName) const;

    /// The distinct names in front of, or made by, `word`: for every key with a component that
    /// begins with `word`, that component without the marker `word` + "Type".
    std::vector<std::string> getKeys(const std::string& word) const;

private:
    std::string fileName_ = "inputMap.txt";
    char assign_ = '=';
    char member_ = '.';
};
