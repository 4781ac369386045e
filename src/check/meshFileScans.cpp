#include "check/meshFileScans.hpp"

#include "base/numberText.hpp"
#include "base/textScanner.hpp"
#include "check/hullSurface.hpp"

#include <algorithm>
#include <cmath>
#include <istream>
#include <limits>
#include <string>
#include <string_view>

namespace sorvik {
namespace {

constexpr std::string_view blanks = " \t\r";

/// The first word of what is left of a line, which is taken from it.
std::string_view takeWord(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(blanks));
    line.remove_prefix(word.size());
    return word;
}

bool isWord(std::string_view word, std::string_view small, std::string_view capital) {
    return word == small || word == capital;
}

point3 readCorner(textScanner& in) {
    point3 p = {};
    for (double& value : p) {
        in.read(value);
    }
    return p;
}

/// The area of a GDF record, whose corners are a quadrilateral's, and the part of it that the
/// reader takes.
struct recordArea {
    double whole = 0;
    double used = 0;
};

recordArea areaOf(const std::array<point3, 4>& p, long long record) {
    const double first = norm(areaVector({p[0], p[1], p[2]}));
    const double second = norm(areaVector({p[0], p[2], p[3]}));
    return {first + second, record % 2 == 0 ? first : 0};
}

/// A node number as the reader takes it, -1 for one beyond all nodes.
int nodeNumber(std::string_view word) {
    const long long number = wholeNumber(leadingNumber(std::string(word).c_str()));
    return number > -1 && number < std::numeric_limits<int>::max() ? static_cast<int>(number) : -1;
}

/// The panel lines of a Nemoh mesh, as its reader numbers the nodes.
class nemohPanelScan {
public:
    explicit nemohPanelScan(int lastNode) : lastNode_(lastNode) {}

    /// Returns whether the line ends the panels.
    bool isEnd(std::string_view line, int number) {
        const bool isIndented = line.empty() || blanks.find(line.front()) != blanks.npos;
        int corners[4] = {};
        bool isKnown = true;
        for (int& corner : corners) {
            corner = nodeNumber(takeWord(line));
            isKnown = isKnown && corner >= 1 && corner <= lastNode_;
        }
        if (corners[0] == 0) {
            isEndIndented = isIndented;
            return true;
        }
        ++panels;
        if (!isKnown) {
            unknown.push_back(location::ofLine(number));
        }
        return false;
    }

    long long panels = 0;
    bool isEndIndented = false;
    std::vector<location> unknown; ///< lines with a node number that no node has

private:
    int lastNode_;
};

/// Reads the nodes of a Nemoh mesh and the line that ends them; returns the highest node number.
/// `number` is that of the last line read.
int readNodeLines(std::istream& in, int& number, report& result) {
    int highest = 0;
    std::string text;
    while (std::getline(in, text)) {
        ++number;
        std::string_view line = text;
        const int node = nodeNumber(takeWord(line));
        if (node < 1) {
            break;
        }
        highest = std::max(highest, node);
    }
    std::string_view end = text;
    int numbers = 0;
    while (!takeWord(end).empty()) {
        ++numbers;
    }
    if (numbers > 4) {
        result
            .add("unread-records",
                 "The line that ends the nodes has " + std::to_string(numbers) +
                     " numbers: the reader takes four, and every panel is read with its corners "
                     "shifted.",
                 {location::ofLine(number)})
            .cure = "End the nodes with the line `0 0. 0. 0.`.";
    }
    return highest;
}

} // namespace

void addCutOff(const std::string& message, report& result) {
    result.add("unread-records", message).cure = "Copy or export the file again, whole.";
}

void scanAsciiStl(std::istream& in, long long panels, meshFileFacts& facts, report& result) {
    long long ends = 0;
    std::vector<location> noNumbers;
    std::vector<location> solids;
    std::string text;
    for (int number = 1; std::getline(in, text); ++number) {
        std::string_view line = text;
        const std::string_view word = takeWord(line);
        if (isWord(word, "facet", "FACET")) {
            ++facts.announced;
            if (line.find("nan") != line.npos || line.find("NaN") != line.npos) {
                noNumbers.push_back(location::ofLine(number));
            }
        } else if (isWord(word, "endfacet", "ENDFACET")) {
            ++ends;
        } else if (isWord(word, "solid", "SOLID") && number > 1) {
            solids.push_back(location::ofLine(number));
        }
    }
    facts.read = std::min(panels, facts.announced);
    const std::string used = std::to_string(facts.read) + " of " + std::to_string(facts.announced) +
                             " facets of the file are used";
    if (!noNumbers.empty()) {
        result.add("unread-records", used + ": a normal is nan, and reading ends there.",
                   std::move(noNumbers));
    } else if (!solids.empty()) {
        result.add("unread-records", used + ": only the first solid is read.", std::move(solids));
    } else if (panels != facts.announced || ends != facts.announced) {
        addCutOff(used + ". The file has " + std::to_string(ends) +
                      " lines endfacet; it is cut off or damaged.",
                  result);
    }
}

void scanGdf(std::istream& in, meshFileFacts& facts, report& result) {
    textScanner text(in);
    double unused = 0;
    int mirrored[2] = {};
    int announced = 0;
    text.skipLine();
    text.read(unused);
    text.skipLine();
    text.read(mirrored[0]);
    text.read(mirrored[1]);
    text.skipLine();
    text.read(announced);
    facts.isMirroredX = mirrored[0] == 1;
    facts.isMirroredY = mirrored[1] == 1;
    facts.announced = announced;
    recordArea sum;
    long long records = 0;
    while (records < announced && text.good()) {
        const std::array<point3, 4> corners = {readCorner(text), readCorner(text), readCorner(text),
                                               readCorner(text)};
        if (text.failed()) {
            break;
        }
        const recordArea area = areaOf(corners, records);
        sum.whole += area.whole;
        sum.used += area.used;
        facts.read += area.used > 0 || area.whole == 0 ? 1 : 0;
        ++records;
    }
    const std::string used =
        std::to_string(facts.read) + " of " + std::to_string(announced) + " panels of the file";
    if (records < announced) {
        addCutOff("The file announces " + std::to_string(announced) + " panels and holds " +
                      std::to_string(records) + ".",
                  result);
    } else if (sum.used < (1 - 1e-6) * sum.whole) {
        result.add("unread-records",
                   used + " are used, " + percentText(sum.used / sum.whole, 0) +
                       " of their area: a panel in an odd place gives the triangle of its first "
                       "three corners, one in an even place gives none.");
    }
}

void scanNemohMesh(std::istream& in, meshFileFacts& facts, report& result) {
    std::string text;
    std::getline(in, text);
    std::string_view head = text;
    takeWord(head);
    facts.isMirroredY = takeWord(head) == "1";
    int number = 1;
    nemohPanelScan scan(readNodeLines(in, number, result));
    bool isEnded = false;
    while (!isEnded && std::getline(in, text)) {
        isEnded = scan.isEnd(text, ++number);
    }
    facts.announced = scan.panels;
    facts.read = scan.panels;
    if (scan.isEndIndented) {
        result
            .add("unread-records",
                 "The line that ends the panels is indented: a Nemoh project counts it as a panel.",
                 {location::ofLine(number)})
            .cure = "Begin the last line with its zero.";
    }
    if (!scan.unknown.empty()) {
        result
            .add("unread-records",
                 "Panels name nodes that the file does not have; their corners become (0, 0, 0).",
                 std::move(scan.unknown))
            .cure = "Export the mesh again.";
    }
}

} // namespace sorvik
