#pragma once

#include "io/inputLimits.hpp"

#include <iosfwd>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// The suite's input language: text to a flat map of dotted keys, typed values, numeric tables, and
/// the map as JSON.
///
///     % environment of the case                gives    bodies                 1  2  3
///     environment = {                                   environment.waterDepth 50
///        waterDepth = 50 # metres                       environment.wave.type  regular
///        wave = { type = regular }
///     }
///     bodies = [1, 2, 3]
///
/// Nothing here reports malformed text: it is skipped or taken literally.
namespace sorvikIO {

/// Stands between keys and values; ':' in JSON.
constexpr char assignmentDLM = '=';
/// What lookups return that find nothing.
extern const std::string notFoundStr;

// ---- Tokeniser (sorvikIO_tokeniser.cpp) ----

/// Reads entries until the stream ends. Blocks become keys joined by `member`. The first of
/// repeated keys wins; an entry whose value is empty is dropped. A block nested deeper than
/// `maxNesting` is a fatal error that names its line.
std::map<std::string, std::string> readInputStream(std::istream& in, char assign, char member);

/// Reads the next entry: 0 when none is left, which leaves the stream failed, 1 for a plain value,
/// 2 for a nested block, whose text is `value`. Lines without `assign` are ignored.
///
/// The stream is read line by line, and stands after the line, or after the block where the value
/// is one; blocks need a stream that can seek.
int readNextEntry(std::istream& in, std::string& key, std::string& value, char assign);

/// Reads one bracketed or quoted block, across lines, and returns the text between its outer
/// brackets. Only brackets of the opener's own kind nest. An unclosed block takes the rest of the
/// stream.
std::string extractBlock(std::istream& in);

/// Cuts the line at its first '%', or, where there is none, at its first '#'.
void stripFromComment(std::string& line);
/// Removes blanks and tabs at both ends and one carriage return at the end.
void strip(std::string& s);
/// Turns brackets, quotes, commas, semicolons and tabs into blanks, removes '%' and '//' comments
/// up to the end of their line, and strips.
void stripFromUnwanted(std::string& s);
/// Whether `c` is one of the characters that `stripFromUnwanted` turns into blanks.
bool checkUnwanted(char c);

// ---- Typed values (sorvikIO_values.cpp) ----

/// The first number of `text` as T (double or int): 0 where there is none, the nearest limit where
/// it is out of range. What follows it is ignored.
template <class T>
void parse(const std::string& text, T& out);
/// Appends the whitespace-separated numbers of `text`. A non-numeric word is read as 0 and ends the
/// list: "1 2 abc 4" gives 1, 2, 0.
template <class T>
void parse(const std::string& text, std::vector<T>& out);

// ---- Numeric tables (sorvikIO_tables.cpp) ----

/// Whether the first number after `nSkip` lines is followed by one of ";,:=". Rewinds the stream.
template <class T>
bool isDLM(std::istream& in, int nSkip);
/// Appends the numbers of a whitespace-separated line and returns how many. A non-numeric word is
/// read as 0 and ends the line.
template <class T>
int readLine(const std::string& line, std::vector<T>& data);
/// The number of values on a delimited line: numbers separated by blanks, or by one of ";,:=" and
/// any blanks around it. The caller's vector is not changed.
template <class T>
int readLineDLM(const std::string& line, std::vector<T> data);
/// Reads a table from `in` after `nSkip` lines, appends its values row by row and returns the
/// number of columns, which is that of the last row read: reading ends at the first row of another
/// length. Of a table delimited by ";,:=" only the columns are counted, and no value is stored.
template <class T>
int readData(std::istream& in, std::vector<T>& data, int nSkip);

// ---- Aliases (sorvikIO_aliases.cpp) ----

/// Resolves every "<prefix>.source" entry of the map once, in key order; returns whether an entry
/// was added.
bool assignAlternatives(std::map<std::string, std::string>& map);
/// For every key that begins with the text `source`, adds the key `prefix` + its rest with the same
/// value, unless that is there already; returns whether one was added.
///
/// The keys that are added count too where they come later in the map. Where `prefix` is `source`
/// and more, a key that gives a later one would give keys without end: a fatal error that names
/// `prefix`.
bool addAlternativeKey(std::map<std::string, std::string>& map, const std::string& prefix,
                       const std::string& source);
/// The components of a dotted key, empty ones included, but none after a trailing ".".
std::vector<std::string> splitKey(const std::string& key);

// ---- Lookup in a stream (sorvikIO_lookup.cpp) ----

/// Searches `key = value` from the current position and returns the value, "KEY_NOT_FOUND" at the
/// end of the stream. A key without a value ends the process with status 1.
std::string findKey(std::istream& in, const std::string& key);
/// `findKey`, then `alternativeKey`, both from the current position.
std::string lookupKey(std::istream& in, const std::string& key);
/// Looks for a `source` entry of the leading components of `key`, the longest first, and retries
/// the lookup under the name that it gives. "KEY_NOT_FOUND" when nothing is found.
std::string alternativeKey(std::istream& in, const std::string& key);

// ---- JSON export (sorvikIO_json.cpp) ----

/// The map as one JSON object: plain members in key order, then nested objects in name order.
/// `indent` is the depth of the object. A key of more than `maxNesting` + 1 components, or a text
/// of more than `maxJsonText` characters, is a fatal error.
std::string toJSON(const std::map<std::string, std::string>& map, int indent);
/// One member line. A `value` that begins with '{' is a finished object; an empty one becomes {}.
std::string addJSONLine(const std::string& key, std::string value, int indent);
/// The JSON form of a value text: a path as one string, else words as strings and numbers bare, a
/// list in brackets where there are several. Nothing is escaped.
std::string frmtJSONvalue(const std::string& value);
/// The text after the last '/' or backslash.
std::string fileNameFromPath(const std::string& path);

} // namespace sorvikIO
