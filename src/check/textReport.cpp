#include "check/textReport.hpp"

#include "base/numberText.hpp"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace sorvik {
namespace {

constexpr std::size_t lineWidth = 80;
constexpr std::size_t placesShown = 3;

/// A number, or "-" where there is none, as for a centre of nothing.
std::string numberOf(double value) {
    return std::isfinite(value) ? numberText(value) : "-";
}

/// Numbers in parentheses. Those far below the largest are rounding, and shown as 0.
std::string tuple(const double* values, std::size_t count) {
    double largest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        largest = std::max(largest, std::abs(values[i]));
    }
    std::string text = "(";
    for (std::size_t i = 0; i < count; ++i) {
        const bool isNoise = std::abs(values[i]) < 1e-9 * largest;
        text += (i > 0 ? ", " : "") + numberOf(isNoise ? 0 : values[i]);
    }
    return text + ")";
}

struct textOfValue {
    std::string operator()(double value) const { return numberOf(value); }
    std::string operator()(long long value) const { return std::to_string(value); }
    std::string operator()(const std::string& value) const { return value; }
    std::string operator()(const std::vector<double>& values) const {
        return tuple(values.data(), values.size());
    }
};

/// Writes words in lines of at most `lineWidth` characters, each indented by two.
void writeWrapped(std::ostream& out, const std::string& text) {
    std::size_t column = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        const bool isFirst = column == 0;
        if (!isFirst && column + 1 + (end - begin) > lineWidth) {
            out << '\n';
            column = 0;
        }
        const std::string space = column > 0 ? " " : isFirst ? "  " : "    ";
        out << space << std::string_view(text).substr(begin, end - begin);
        column += space.size() + (end - begin);
        begin = end + 1;
    }
    out << '\n';
}

void writeFacts(std::ostream& out, const std::vector<fact>& facts) {
    std::size_t width = 0;
    for (const fact& each : facts) {
        width = std::max(width, each.label.size());
    }
    for (const fact& each : facts) {
        if (!each.label.empty()) {
            out << "  " << each.label << std::string(width + 2 - each.label.size(), ' ')
                << valueText(each) << '\n';
        }
    }
}

std::string colourOf(severity level) {
    return level == severity::error     ? "\033[1;31m"
           : level == severity::warning ? "\033[1;33m"
                                        : "\033[1;36m";
}

void writeFinding(std::ostream& out, const finding& each, bool hasColour) {
    out << '\n'
        << (hasColour ? colourOf(each.level) : "") << nameOf(each.level)
        << (hasColour ? "\033[0m" : "") << ": " << each.name;
    if (each.count > 1) {
        out << " (" << each.count << ")";
    }
    out << '\n';
    writeWrapped(out, each.message);
    std::string places;
    const std::size_t shown = std::min(each.where.size(), placesShown);
    for (std::size_t i = 0; i < shown; ++i) {
        places += (i > 0 ? "; " : "Where: ") + placeText(each.where[i]);
    }
    if (shown < each.where.size()) {
        places += "; and " + std::to_string(each.where.size() - shown) + " more";
    }
    if (!places.empty()) {
        writeWrapped(out, places);
    }
    writeWrapped(out, "Cure: " + each.cure);
}

std::string counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

} // namespace

std::string valueText(const fact& shown) {
    return std::visit(textOfValue(), shown.value) + (shown.unit.empty() ? "" : " ") + shown.unit;
}

std::string placeText(const location& place) {
    std::string text = place.file;
    const auto append = [&](const std::string& part) { text += (text.empty() ? "" : ", ") + part; };
    if (place.line > 0) {
        append("line " + std::to_string(place.line));
    }
    if (!place.key.empty()) {
        append(place.key);
    }
    if (place.panel > 0) {
        append("panel " + std::to_string(place.panel));
    }
    if (place.hasPoint) {
        text += (text.empty() ? "" : " at ") + tuple(place.point.data(), place.point.size());
    }
    return text;
}

void writeText(std::ostream& out, const std::string& title, const report& result, bool hasColour) {
    out << title << '\n';
    writeFacts(out, result.facts);
    for (const severity level : {severity::error, severity::warning, severity::note}) {
        for (const finding& each : result.findings) {
            if (each.level == level) {
                writeFinding(out, each, hasColour);
            }
        }
    }
    out << '\n'
        << counted(result.count(severity::error), "error") << ", "
        << counted(result.count(severity::warning), "warning") << ", "
        << counted(result.count(severity::note), "note") << ".\n";
}

} // namespace sorvik
