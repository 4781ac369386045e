#include "check/meshFile.hpp"

#include "base/affixes.hpp"
#include "base/classicText.hpp"
#include "base/files.hpp"
#include "base/littleEndian.hpp"
#include "base/platform.hpp"
#include "check/meshFileScans.hpp"
#include "mesh/stlFormat.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace sorvik {
namespace {

constexpr std::size_t stlHead = 84;
constexpr std::size_t stlCount = 80; // where the number of facets begins
constexpr std::size_t stlFacet = 50;

/// The beginning of the file: more than a header of any format needs.
std::string headOf(const std::string& file) {
    std::string head(4096, '\0');
    std::ifstream in = files::open(file);
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(in.gcount()));
    return head;
}

/// Whether the next line of `in` begins with `count` numbers.
bool hasNumbers(std::istream& in, int count) {
    std::string line;
    std::getline(in, line);
    classicText numbers(line);
    double value = 0;
    while (count > 0 && numbers >> value) {
        --count;
    }
    return count == 0;
}

bool looksLikeGdf(const std::string& head) {
    classicText in(head);
    std::string title;
    std::getline(in, title);
    return hasNumbers(in, 2) && hasNumbers(in, 2) && hasNumbers(in, 1);
}

bool looksLikeNemoh(const std::string& head) {
    classicText in(head);
    int marker = 0;
    int symmetry = 0;
    int number = 0;
    return in >> marker >> symmetry >> number && marker == 2 && number == 1 &&
           (symmetry == 0 || symmetry == 1);
}

std::uint32_t facetsAnnounced(const std::string& head) {
    return head.size() < stlHead ? 0 : littleEndian::load<std::uint32_t>(head.data() + stlCount);
}

/// The whole facets that a binary STL file of `size` bytes has room for.
std::uintmax_t facetsHeld(std::uintmax_t size) {
    return size < stlHead ? 0 : (size - stlHead) / stlFacet;
}

std::uintmax_t bytesIn(const std::string& file) {
    std::error_code ignored;
    return std::filesystem::file_size(platform::pathOf(file), ignored);
}

std::string endingOf(const std::string& file) {
    return file.size() < 4 ? file : file.substr(file.size() - 4);
}

std::string formatOf(const std::string& head, std::uintmax_t size) {
    classicText in(head);
    if (!stl::isBinary(in)) {
        return "STL, ASCII";
    }
    if (head.size() >= stlHead &&
        size == stlHead + stlFacet * std::uintmax_t{facetsAnnounced(head)}) {
        return "STL, binary";
    }
    return looksLikeNemoh(head) ? "Nemoh" : looksLikeGdf(head) ? "GDF" : "unknown";
}

/// The format that an ending stands for, as `formatOf` names it up to a comma.
std::string formatOfEnding(std::string ending) {
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return ending == ".stl"                       ? "STL"
           : ending == ".gdf"                     ? "GDF"
           : ending == ".dat" || ending == ".nem" ? "Nemoh"
                                                  : "";
}

void inspectBinaryStl(const std::string& head, std::uintmax_t size, meshFileFacts& facts,
                      report& result) {
    facts.announced = facetsAnnounced(head);
    const auto held = static_cast<long long>(facetsHeld(size));
    facts.read = std::min(facts.announced, held);
    if (facts.announced != held) {
        addCutOff("The binary STL file announces " + std::to_string(facts.announced) +
                      " facets, and its length of " + std::to_string(size) + " bytes holds " +
                      std::to_string(held) + ".",
                  result);
    }
}

} // namespace

meshFileFacts inspectMeshFile(const std::string& file, long long panels, report& result) {
    const std::uintmax_t size = bytesIn(file);
    const std::string head = headOf(file);
    meshFileFacts facts;
    facts.ending = endingOf(file);
    facts.format = formatOf(head, size);
    const std::string expected = formatOfEnding(facts.ending);
    if (!expected.empty() && facts.format != "unknown" && !startsWith(facts.format, expected)) {
        result.add("wrong-ending", "The ending " + facts.ending + " stands for " + expected +
                                       ", and the content is " + facts.format + ".");
        return facts;
    }
    std::ifstream in = files::open(file);
    if (facts.format == "STL, ASCII") {
        scanAsciiStl(in, panels, facts, result);
    } else if (expected == "STL") {
        inspectBinaryStl(head, size, facts, result);
    } else if (expected == "GDF") {
        scanGdf(in, facts, result);
    } else if (expected == "Nemoh") {
        scanNemohMesh(in, facts, result);
    }
    return facts;
}

std::optional<std::string> shortenedStl(const std::string& file) {
    const std::string ending = endingOf(file);
    std::ifstream in = files::open(file);
    if ((ending != ".stl" && ending != ".STL") || !stl::isBinary(in)) {
        return std::nullopt;
    }
    const std::uint32_t announced = facetsAnnounced(headOf(file));
    const std::uintmax_t held = facetsHeld(bytesIn(file));
    if (held >= announced || !stl::canHold(announced)) {
        return std::nullopt;
    }
    std::string content(stlHead + stlFacet * static_cast<std::size_t>(held), '\0');
    in.read(content.data(), static_cast<std::streamsize>(content.size()));
    littleEndian::store(content.data() + stlCount, static_cast<std::uint32_t>(held));
    return content;
}

} // namespace sorvik
