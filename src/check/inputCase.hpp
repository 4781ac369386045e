#pragma once

#include "check/finding.hpp"
#include "check/inputFileCheck.hpp"
#include "check/inputText.hpp"
#include "io/inputMap.hpp"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sorvik {

/// An input file that was read, and what its checks share.
struct inputCase {
    std::string file;
    std::string_view content;
    char assign = '=';
    inputOptions options;
    inputText text;
    std::map<std::string, std::string> given; ///< the entries before aliases are resolved
    inputMap inputs;                          ///< and after that
    bool hasNemoh = false;                    ///< whether the keys of -nemoh are demanded
    bool hasWave = false;                     ///< whether those of -waveElevation are

    bool has(const std::string& key) const { return inputs.map.count(key) != 0; }
    /// The text of a value, or `fallback`.
    std::string valueOf(const std::string& key, const std::string& fallback = "") const;
    /// A number as the tasks read it, or the default of the table.
    double number(const std::string& key) const;
    std::vector<double> list(const std::string& key) const;

    /// The entry that gives a key its value; nullptr for one that an alias gives.
    const textEntry* entryOf(const std::string& key) const;
    /// A key and its line.
    location placeOf(const std::string& key) const;

    /// The value of bem.body.
    std::string body() const { return valueOf("bem.body"); }
};

/// Adds a finding about one key.
finding& addOfKey(report& result, std::string_view kind, const inputCase& input,
                  const std::string& key, std::string message);

// ---- The checks, in their order ----

/// Encoding, dialect, brackets, lines that are lost, repeated keys.
void checkInputEncoding(const inputCase& input, report& result);
void checkInputEntries(const inputCase& input, report& result);
/// Aliases without effect or with too much of it.
void checkInputAliases(const inputCase& input, report& result);
/// Keys that no task reads: misspelt, or those of others.
void checkInputKeys(const inputCase& input, report& result);
/// Text that is not the number that it should be, and numbers out of range.
void checkInputValues(const inputCase& input, report& result);
/// What -nemoh needs, the mesh and the depth.
void checkNemohInput(const inputCase& input, report& result);
/// What -waveElevation needs, its sea, its time axis and its table.
void checkWaveInput(const inputCase& input, report& result);
void checkTimeInput(const inputCase& input, report& result);

/// The water depth [m] that the tasks compute.
double depthOf(const inputCase& input);
/// Adds a finding where the file `name`, the value of `key`, is not there. Returns its path, or
/// nothing.
std::string checkedFile(const inputCase& input, const std::string& key, report& result);

} // namespace sorvik
