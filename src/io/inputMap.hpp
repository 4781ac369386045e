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

    /// An empty map.
    inputMap() = default;
    /// Reads the stream to its end, with `assignDLM` between keys and values and `memberDLM`
    /// between the components of keys.
    inputMap(std::istream& in, char assignDLM, char memberDLM);
    /// Reads the file, with ':' for '=' where its name contains ".json". A file that cannot be
    /// opened gives an empty map: callers that need it use `readFile`.
    explicit inputMap(const std::string& name);

    /// Reads the file in place of all that the map holds; returns false, and leaves it, if the file
    /// cannot be opened. A file that cannot be read to its end is fatal.
    bool readFile(const std::string& name);

    /// What stands between keys and values in the file `name`: ':' where it contains ".json".
    static char assignmentOf(const std::string& name);

    /// Resolves aliases until nothing changes, in at most 502 passes.
    void assignSources();

    /// The value of `key` as T (double, int or a list of doubles), or `fallback` where there is no
    /// such key.
    template <class T>
    T read(const std::string& key, const T& fallback) const;

    /// Sets `key`, overwriting. A value with an assignment is read as input text, and each of its
    /// entries is set as `key`.subKey.
    void set(const std::string& key, const std::string& value);

    /// Writes the map as JSON, or nothing unless `outName` contains ".json". The name ".json" alone
    /// stands for the map's own file name with that extension. A file that cannot be written is
    /// fatal; the file that the map was read from is replaced only by a complete one.
    void print(std::string outName) const;

    /// The distinct components of all keys that begin with `word`, in the order of the keys,
    /// without the marker `word` + "Type": "body1" and "body2" for "body".
    std::vector<std::string> getKeys(const std::string& word) const;

private:
    std::string fileName_ = "inputMap.txt";
    char assign_ = '=';
    char member_ = '.';
};
