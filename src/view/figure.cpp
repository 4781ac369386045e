#include "view/figure.hpp"

#include "base/excerpt.hpp"
#include "view/page.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <locale>
#include <sstream>

namespace sorvik {
namespace {

// Lengths in units of the picture.
constexpr double pictureWidth = 640;
constexpr double plotTop = 52;
constexpr double plotBottom = 216;
constexpr double plotRight = 622;
constexpr double letterWidth = 9; ///< room for a character of text
constexpr double rowHeight = 21;
constexpr double columnWidth = 0.5;    ///< what a long line is thinned to
constexpr double largestDrawn = 1e300; ///< values beyond it are drawn as it
constexpr double leastRange = 1e-6;    ///< of the largest value; less is rounding
constexpr std::size_t colours = 6;
const std::array<const char*, 7> dashes = {"",     "9 4",         "2 3", "9 3 2 3",
                                           "16 4", "9 3 2 3 2 3", "5 5"};

/// A step of 1, 2 or 5 times a power of ten.
struct roundStep {
    double size = 1;
    int power = 0;

    /// The least one that is not below `wanted`.
    explicit roundStep(double wanted) {
        power = static_cast<int>(std::floor(std::log10(wanted)));
        for (const double digit : {1., 2., 5., 10.}) {
            size = digit * std::pow(10., power);
            if (size >= wanted * (1 - 1e-9)) {
                power += digit > 5 ? 1 : 0;
                return;
            }
        }
    }
};

struct range {
    double low = largestDrawn;
    double high = -largestDrawn;

    void add(double value) {
        low = std::min(low, std::max(value, -largestDrawn));
        high = std::max(high, std::min(value, largestDrawn));
    }
    /// Without values 0 to 1; a constant gets room above and below.
    range widened() const {
        if (low > high) {
            return {0, 1};
        }
        const double size = std::max(std::abs(low), std::abs(high));
        if (size < 1 / largestDrawn) {
            return {-1, 1};
        }
        if (high - low > leastRange * size) {
            return *this;
        }
        return {low - size / 10, high + size / 10};
    }
};

/// An axis: its range, its place in the picture, and its ticks.
struct axis {
    range values;
    double from;
    double to;
    roundStep step;
    int factor = 0; ///< power of ten that the texts of the ticks are divided by

    axis(const range& of, double first, double last, int ticks)
        : values(of), from(first), to(last), step((of.high - of.low) / ticks) {
        const double size = std::max(std::abs(of.low), std::abs(of.high));
        if (size >= 1e5 || size < 1e-2) {
            factor = 3 * static_cast<int>(std::floor(std::log10(size) / 3));
        }
    }
    /// Goes on to the next ticks at both ends.
    void roundOut() {
        values.low = std::floor(values.low / step.size + 1e-6) * step.size;
        values.high = std::ceil(values.high / step.size - 1e-6) * step.size;
    }
    double place(double value) const {
        const double drawn = std::clamp(value, values.low, values.high);
        return from + (drawn - values.low) / (values.high - values.low) * (to - from);
    }
    std::vector<double> ticks() const {
        const auto first = std::llround(std::ceil(values.low / step.size - 1e-6));
        const auto last = std::llround(std::floor(values.high / step.size + 1e-6));
        std::vector<double> all;
        for (auto i = first; i <= last; ++i) {
            all.push_back(static_cast<double>(i) * step.size);
        }
        return all;
    }
    std::string textOf(double tick) const {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        text.setf(std::ios::fixed);
        text.precision(std::max(0, factor - step.power));
        text << tick / std::pow(10., factor);
        return text.str();
    }
};

bool isDrawn(const figureLine& line, std::size_t i) {
    return std::isfinite(line.x[i]) && std::isfinite(line.y[i]);
}

std::size_t sizeOf(const figureLine& line) {
    return std::min(line.x.size(), line.y.size());
}

/// 10 to the `power` in UTF-8.
std::string powerOfTen(int power) {
    constexpr std::array<const char*, 10> raised = {"⁰", "¹", "²", "³", "⁴",
                                                    "⁵", "⁶", "⁷", "⁸", "⁹"};
    std::string text = power < 0 ? "10⁻" : "10";
    for (const char digit : std::to_string(std::abs(power))) {
        text += raised[static_cast<std::size_t>(digit - '0')];
    }
    return text;
}

/// The label with the factor of the ticks before its unit: "mass [10³ kg]".
std::string labelOf(const std::string& label, const axis& of) {
    if (of.factor == 0) {
        return escapeHtml(label);
    }
    const std::size_t unit = label.rfind('[');
    return unit == std::string::npos
               ? escapeHtml(label) + " [" + powerOfTen(of.factor) + "]"
               : escapeHtml(label.substr(0, unit + 1)) + powerOfTen(of.factor) + " " +
                     escapeHtml(label.substr(unit + 1));
}

/// Writes one figure.
class figureWriter {
public:
    explicit figureWriter(const figure& wanted)
        : wanted_(wanted), x_(rangeOf(&figureLine::x).widened(), 0, plotRight, 7),
          y_(rangeOf(&figureLine::y).widened(), plotBottom, plotTop, 5) {
        out_.imbue(std::locale::classic());
        out_.setf(std::ios::fixed);
        out_.precision(1);
        y_.roundOut();
        std::size_t longest = 0;
        for (const double tick : y_.ticks()) {
            longest = std::max(longest, y_.textOf(tick).size());
        }
        x_.from = 14 + letterWidth * static_cast<double>(longest);
        placeLegend();
    }
    std::string write() {
        writeStart();
        writeAxes();
        bool isEmpty = true;
        for (std::size_t i = 0; i < wanted_.lines.size(); ++i) {
            isEmpty = !writeLine(wanted_.lines[i], i) && isEmpty;
        }
        if (isEmpty) {
            writeText("empty", (x_.from + x_.to) / 2, (plotTop + plotBottom) / 2, "no values");
        }
        writeLegend();
        out_ << "</svg>\n";
        return out_.str();
    }

private:
    struct place {
        double x = 0;
        double y = 0;
    };

    range rangeOf(std::vector<double> figureLine::*member) const {
        range all;
        for (const figureLine& line : wanted_.lines) {
            for (std::size_t i = 0; i < sizeOf(line); ++i) {
                if (isDrawn(line, i)) {
                    all.add((line.*member)[i]);
                }
            }
        }
        return all;
    }
    /// Fills rows with the labels of lines.
    void placeLegend() {
        place next = {pictureWidth, plotBottom + 37};
        for (const figureLine& line : wanted_.lines) {
            const double length =
                50 + letterWidth * static_cast<double>(excerpt(line.label).size());
            if (next.x + length > pictureWidth) {
                next = {x_.from, next.y + rowHeight};
            }
            legend_.push_back(next);
            next.x += length;
        }
        if (wanted_.lines.size() == 1 && wanted_.lines.front().label.empty()) {
            legend_.clear();
        }
    }
    void writeStart() {
        const double height = legend_.empty() ? plotBottom + 44 : legend_.back().y + 14;
        out_ << "<svg class=\"figure\" role=\"img\" xmlns=\"http://www.w3.org/2000/svg\" "
                "viewBox=\"0 0 "
             << pictureWidth << ' ' << height;
        out_.unsetf(std::ios::fixed);
        out_.precision(15);
        out_ << "\" data-x0=\"" << x_.values.low << "\" data-x1=\"" << x_.values.high;
        out_.setf(std::ios::fixed);
        out_.precision(1);
        out_ << "\" data-left=\"" << x_.from << "\" data-right=\"" << x_.to << "\">\n<title>"
             << escapeHtml(wanted_.title) << ": " << escapeHtml(wanted_.yLabel) << " over "
             << escapeHtml(wanted_.xLabel) << "</title>\n";
        writeText("heading", x_.from, 18, escapeHtml(wanted_.title));
    }
    void writeAxes() {
        for (const double tick : y_.ticks()) {
            const double y = y_.place(tick);
            writePath(tick == 0 ? "zero" : "grid", {x_.from, y}, {x_.to, y});
            writeText("yTick", x_.from - 6, y + 4, y_.textOf(tick));
        }
        for (const double tick : x_.ticks()) {
            const double x = x_.place(tick);
            writePath("grid", {x, plotTop}, {x, plotBottom + 5});
            writeText("xTick", x, plotBottom + 19, x_.textOf(tick));
        }
        writePath("axis", {x_.from, plotTop}, {x_.from, plotBottom});
        writePath("axis", {x_.from, plotBottom}, {x_.to, plotBottom});
        writeText("yLabel", x_.from, plotTop - 12, labelOf(wanted_.yLabel, y_));
        writeText("xLabel", x_.to, plotBottom + 37, labelOf(wanted_.xLabel, x_));
    }
    /// Returns whether anything of it is there to see.
    bool writeLine(const figureLine& line, std::size_t index) {
        bool isSeen = false;
        for (std::size_t i = 0; i < sizeOf(line);) {
            std::size_t end = i;
            while (end < sizeOf(line) && isDrawn(line, end)) {
                ++end;
            }
            if (end > i) {
                writeStretch(line, i, end, index);
                isSeen = true;
            }
            i = end + 1;
        }
        return isSeen;
    }
    /// The points `begin` to `end`, of each column of the picture the lowest and the highest.
    void writeStretch(const figureLine& line, std::size_t begin, std::size_t end,
                      std::size_t index) {
        if (end == begin + 1) {
            out_ << "<circle class=\"line" << index % colours + 1 << "\" r=\"3\" cx=\""
                 << x_.place(line.x[begin]) << "\" cy=\"" << y_.place(line.y[begin]) << "\"/>\n";
            return;
        }
        startLine(index);
        char command = 'M';
        const auto columnOf = [&](std::size_t i) {
            return std::floor((x_.place(line.x[i]) - x_.from) / columnWidth);
        };
        for (std::size_t i = begin; i < end;) {
            const double column = columnOf(i);
            std::size_t low = i;
            std::size_t high = i;
            for (++i; i < end && columnOf(i) == column; ++i) {
                low = line.y[i] < line.y[low] ? i : low;
                high = line.y[i] > line.y[high] ? i : high;
            }
            writePoint(line, std::min(low, high), command);
            if (low != high) {
                writePoint(line, std::max(low, high), command);
            }
        }
        out_ << "\"/>\n";
    }
    void writePoint(const figureLine& line, std::size_t i, char& command) {
        out_ << command << x_.place(line.x[i]) << ' ' << y_.place(line.y[i]);
        command = 'L';
    }
    /// Writes a path up to its points.
    void startLine(std::size_t index) {
        const char* dash = dashes[index % dashes.size()];
        out_ << "<path class=\"line" << index % colours + 1;
        if (*dash != '\0') {
            out_ << "\" stroke-dasharray=\"" << dash;
        }
        out_ << "\" d=\"";
    }
    void writeLegend() {
        for (std::size_t i = 0; i < legend_.size(); ++i) {
            startLine(i);
            out_ << 'M' << legend_[i].x << ' ' << legend_[i].y - 4 << "h32\"/>\n";
            writeText("legend", legend_[i].x + 38, legend_[i].y,
                      escapeHtml(excerpt(wanted_.lines[i].label)));
        }
    }
    void writePath(const char* kind, const place& from, const place& to) {
        out_ << "<path class=\"" << kind << "\" d=\"M" << from.x << ' ' << from.y << 'L' << to.x
             << ' ' << to.y << "\"/>\n";
    }
    /// `html` is escaped.
    void writeText(const char* kind, double x, double y, const std::string& html) {
        out_ << "<text class=\"" << kind << "\" x=\"" << x << "\" y=\"" << y << "\">" << html
             << "</text>\n";
    }

    const figure& wanted_;
    axis x_;
    axis y_;
    std::vector<place> legend_; ///< of the lines, from the left of each sample
    std::ostringstream out_;
};

} // namespace

std::string svgOf(const figure& wanted) {
    return figureWriter(wanted).write();
}

} // namespace sorvik
