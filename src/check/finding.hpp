#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// What a check returns: facts about the input, then findings with their cure. Plain data, so that
/// text, JSON, pages and other languages show the same.
namespace sorvik {

/// An error makes results wrong or stops the solver; a warning probably does; a note only informs.
enum class severity { note, warning, error };

/// "note", "warning" or "error".
std::string_view nameOf(severity level);

/// Where something was found. Members that do not apply keep their defaults.
struct location {
    std::string file = {}; ///< where it is not the one that is checked
    int line = 0;          ///< from 1
    std::string key = {};  ///< of an input file
    int panel = 0;         ///< from 1, in the order of the mesh as read
    /// Whether `point` applies.
    bool hasPoint = false;
    std::array<double, 3> point = {}; ///< x, y, z [m], of the moved mesh

    /// A panel and its centre.
    static location ofPanel(std::size_t index, const std::array<double, 3>& centre);
    static location ofLine(int line);
    /// A key of an input file, and its line where that is known.
    static location ofKey(const std::string& key, int line = 0);
};

/// One kind of fault in the input, with all places that have it.
struct finding {
    severity level = severity::note; ///< how grave it is
    std::string name;                ///< one of `findingKinds`, such as "open-edges"
    std::string message;             ///< what was found
    std::string cure;                ///< what to do
    std::size_t count = 1;           ///< of faults
    std::vector<location> where;     ///< all places, as far as they are known
};

/// One property of the input.
struct fact {
    /// A number, a text or a list of numbers.
    using values = std::variant<double, long long, std::string, std::vector<double>>;

    std::string name;  ///< in JSON
    std::string label; ///< in the text report, which leaves out a fact without one
    values value;      ///< in `unit`
    std::string unit;  ///< such as "m", or empty
};

/// The outcome of a check.
struct report {
    std::vector<fact> facts;       ///< in the order of the text report
    std::vector<finding> findings; ///< in the order of the checks

    /// Appends a fact.
    void addFact(std::string name, std::string label, fact::values value, std::string unit = "");

    /// Adds a finding of the kind `name`, which gives its severity and cure, and counts `where`, or
    /// 1 without places. A name that is not one of `findingKinds` is a std::logic_error.
    finding& add(std::string_view name, std::string message, std::vector<location> where = {});

    /// The finding of this kind, or nullptr.
    const finding* find(std::string_view name) const;
    /// The number of findings of a severity.
    std::size_t count(severity level) const;
};

/// What is known of a kind of finding before any input is read.
struct findingKind {
    std::string_view name;  ///< in lower case, with hyphens
    severity level;         ///< of the usual case
    std::string_view cause; ///< a sentence: what is wrong, and what follows from it
    std::string_view cure;  ///< a sentence: what to do
};

/// All kinds, in the order of the manual.
const std::vector<findingKind>& findingKinds();

/// Thrown where a check cannot run at all, such as on a file that is not there.
struct cannotCheck : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace sorvik
