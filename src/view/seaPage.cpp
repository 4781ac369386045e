#include "view/seaPage.hpp"

#include "base/numberText.hpp"
#include "view/figure.hpp"
#include "view/spectrumEstimate.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace sorvik {
namespace {

constexpr float integerPeak = 32767;

std::string numberHtml(double value) {
    return escapeHtml(numberText(value));
}

/// "every node", "every 2nd node".
std::string everyText(std::size_t every, const std::string& what) {
    if (every == 1) {
        return "every " + what;
    }
    constexpr std::array<const char*, 4> endings = {"th", "st", "nd", "rd"};
    const bool isTeen = every % 100 / 10 == 1;
    const std::size_t digit = isTeen || every % 10 > 3 ? 0 : every % 10;
    return "every " + std::to_string(every) + endings[digit] + " " + what;
}

std::string shareText(std::size_t shown, std::size_t all, const std::string& what) {
    return std::to_string(shown) + " of " + std::to_string(all) + " " + what;
}

float peakOf(const std::vector<float>& elevations) {
    float peak = 0;
    for (const float each : elevations) {
        peak = std::max(peak, std::fabs(each));
    }
    return peak;
}

std::vector<short> integersOf(const std::vector<float>& elevations, float peak) {
    std::vector<short> integers;
    integers.reserve(elevations.size());
    for (const float each : elevations) {
        const float share = peak > 0 ? each / peak : 0;
        integers.push_back(static_cast<short>(std::lround(share * integerPeak)));
    }
    return integers;
}

std::vector<float> floatsOf(const std::vector<double>& values) {
    return {values.begin(), values.end()};
}

struct choice {
    double value;
    std::string text;
};

std::string choiceHtml(const std::string& id, const std::string& label,
                       const std::vector<choice>& choices, double chosen) {
    std::string html = "<label>" + label + " <select id=\"" + id + "\">";
    for (const choice& each : choices) {
        html += "<option value=\"" + numberHtml(each.value) + "\"" +
                (each.value == chosen ? " selected" : "") + ">" + each.text + "</option>";
    }
    return html + "</select></label>\n";
}

/// The factor of heights that makes waves visible on the whole grid.
double usualFactor(const surfaceRun& run, double peak, const std::vector<choice>& factors) {
    const double size =
        std::max(std::fabs(run.x.back() - run.x.front()), std::fabs(run.y.back() - run.y.front()));
    constexpr double visible = 0.04;
    for (const choice& each : factors) {
        if (each.value * peak >= visible * size) {
            return each.value;
        }
    }
    return factors.back().value;
}

std::string controlsHtml(const surfaceRun& run, double peak) {
    const std::vector<choice> factors = {
        {1, "true"}, {2, "2 times"}, {5, "5 times"}, {10, "10 times"}, {20, "20 times"}};
    const std::vector<choice> speeds = {
        {1, "real time"}, {2, "2 times"}, {5, "5 times"}, {10, "10 times"}, {60, "60 times"}};
    return "<div class=\"panel\" id=\"sea-controls\" hidden>\n"
           "<div class=\"steps\" role=\"group\" aria-label=\"Time\">\n"
           "<button type=\"button\" id=\"sea-play\">Play</button>\n"
           "<label>Time <input type=\"range\" id=\"sea-time\" min=\"0\" max=\"" +
           std::to_string(run.frameTimes.size() - 1) +
           "\" step=\"1\" value=\"0\"></label>\n"
           "<output id=\"sea-now\" for=\"sea-time\"></output>\n" +
           choiceHtml("sea-height", "Heights", factors, usualFactor(run, peak, factors)) +
           choiceHtml("sea-speed", "Speed", speeds, 1) +
           "</div>\n<p id=\"sea-picked\" role=\"status\">Click the surface for the elevation at a "
           "place.</p>\n</div>\n";
}

std::string stageHtml(const surfaceRun& run, double peak) {
    return "<section class=\"stage\" aria-label=\"Surface in three dimensions\" data-columns=\"" +
           std::to_string(run.columns) + "\" data-rows=\"" + std::to_string(run.rows) +
           "\" data-peak=\"" + numberHtml(peak) +
           "\">\n<noscript><p>The surface needs JavaScript; all else on this page does not."
           "</p></noscript>\n" +
           controlsHtml(run, peak) + "</section>\n";
}

std::string thinningText(const surfaceRun& run) {
    const std::size_t nodes = run.columns * run.rows;
    const std::size_t frames = run.frameTimes.size();
    const std::size_t instants = run.times.size();
    if (frames == instants && nodes == run.nodesOfRun) {
        return "All " + std::to_string(instants) + " instants and all " + std::to_string(nodes) +
               " nodes of the run are shown.";
    }
    std::string text = everyText(run.everyInstant, "instant") + " and " +
                       everyText(run.everyNode, "node along x and y") +
                       " of the run are shown: " + shareText(frames, instants, "instants") + ", " +
                       shareText(nodes, run.nodesOfRun, "nodes") +
                       ". The series below have every instant.";
    text.front() = 'E';
    return text;
}

std::string gridHtml(const surfaceRun& run, double peak) {
    return stageHtml(run, peak) + "<p>" + thinningText(run) +
           " The elevations of the surface are rounded to 1/32767 of the "
           "largest, " +
           numberHtml(peak) + " m.</p>\n";
}

std::string nameOf(const surfaceRun& run, const surfaceProbe& probe) {
    return run.isGrid()
               ? probe.name + " (" + numberText(probe.x) + " m, " + numberText(probe.y) + " m)"
               : probe.name;
}

std::string rowHtml(const surfaceRun& run, const surfaceProbe& probe) {
    double sum = 0;
    double squares = 0;
    for (const float elevation : probe.elevations) {
        const auto each = static_cast<double>(elevation);
        sum += each;
        squares += each * each;
    }
    const auto count = static_cast<double>(probe.elevations.size());
    const double mean = sum / count;
    const double deviation = std::sqrt(std::max(squares / count - mean * mean, 0.0));
    const auto [low, high] = std::minmax_element(probe.elevations.begin(), probe.elevations.end());
    std::string html = "<tr><th scope=\"row\">" + escapeHtml(nameOf(run, probe)) + "</th>";
    constexpr double roundTo = 1e-4; // m
    for (const double value : {double(*high), double(*low), mean, 4 * deviation}) {
        html += "<td>" + numberHtml(std::round(value / roundTo) * roundTo + 0.0) + "</td>";
    }
    return html + "</tr>\n";
}

std::string tableHtml(const surfaceRun& run) {
    std::string html = "<table class=\"statistics\">\n<tr><th scope=\"col\">Series</th>"
                       "<th scope=\"col\">Highest [m]</th><th scope=\"col\">Lowest [m]</th>"
                       "<th scope=\"col\">Mean [m]</th>"
                       "<th scope=\"col\">4 standard deviations [m]</th></tr>\n";
    for (const surfaceProbe& probe : run.probes) {
        html += rowHtml(run, probe);
    }
    return html + "</table>\n";
}

std::string seriesHtml(const surfaceRun& run) {
    std::string html = "<h2>Series</h2>\n";
    if (!run.isGrid() && run.probes.size() < run.nodesOfRun) {
        html += "<p>The first " + shareText(run.probes.size(), run.nodesOfRun, "probes") +
                " are shown.</p>\n";
    }
    html += tableHtml(run) + "<div class=\"figures\">\n";
    for (const surfaceProbe& probe : run.probes) {
        const std::vector<double> values(probe.elevations.begin(), probe.elevations.end());
        html +=
            "<div class=\"series\" data-name=\"" + escapeHtml(probe.name) + "\" data-x=\"" +
            numberHtml(probe.x) + "\" data-y=\"" + numberHtml(probe.y) + "\">\n" +
            svgOf({nameOf(run, probe), "Time [s]", "Elevation [m]", {{"", run.times, values}}}) +
            "</div>\n";
    }
    return html + "</div>\n";
}

/// The part of a spectrum that holds all but a thousandth of the variance, and a quarter more.
figureLine lineOf(const spectrumEstimate& spectrum, const std::string& label) {
    const std::vector<double>& density = spectrum.density;
    const double all = std::accumulate(density.begin(), density.end(), 0.0);
    figureLine line;
    line.label = label;
    double sum = 0;
    std::size_t last = density.size();
    for (std::size_t i = 0; i < std::min(last, density.size()); ++i) {
        sum += density[i];
        if (last == density.size() && sum > 0.999 * all) {
            last = i + i / 4 + 3;
        }
        line.x.push_back(static_cast<double>(i) * spectrum.step);
        line.y.push_back(density[i]);
    }
    return line;
}

std::string methodText(const spectrumEstimate& spectrum) {
    return "<p>Variance density by the method of P. D. Welch: the mean of " +
           std::to_string(spectrum.segments) +
           " overlapping segments of the whole series, a start-up ramp included, each under Hann's "
           "window. The resolution is " +
           numberHtml(spectrum.resolution) +
           " Hz. A curve ends a little after the frequency above which a thousandth of the "
           "variance lies.</p>\n";
}

std::string spectraHtml(const surfaceRun& run) {
    const std::string heading = "<h2>Spectra</h2>\n";
    const double step = evenStep(run.times);
    if (!(step > 0) || run.times.size() < fewestInstants) {
        return heading + "<p>There is no spectrum: the run has " +
               std::to_string(run.times.size()) + " instants, and a spectrum needs at least " +
               std::to_string(fewestInstants) + " that are evenly spaced.</p>\n";
    }
    constexpr std::size_t linesPerFigure = 6;
    std::string html;
    figure shown = {"", "Frequency [Hz]", "Variance density [m²/Hz]", {}};
    for (std::size_t i = 0; i < run.probes.size(); ++i) {
        const spectrumEstimate spectrum = estimateSpectrum(run.probes[i].elevations, step);
        if (!spectrum.density.empty()) {
            html += html.empty() ? methodText(spectrum) + "<div class=\"figures\">\n" : "";
            shown.lines.push_back(lineOf(spectrum, nameOf(run, run.probes[i])));
        }
        const bool isFull = shown.lines.size() == linesPerFigure || i + 1 == run.probes.size();
        if (isFull && !shown.lines.empty()) {
            html += svgOf(shown);
            shown.lines.clear();
        }
    }
    return heading + (html.empty() ? "<p>The water is still.</p>\n" : html + "</div>\n");
}

} // namespace

pageContent seaPage(const std::string& name, const surfaceRun& run) {
    pageContent page;
    page.kind = "sea";
    page.title = name;
    if (run.isGrid()) {
        const float peak = peakOf(run.frames);
        page.body = gridHtml(run, static_cast<double>(peak));
        page.numbers.emplace_back("sea-x", floatsOf(run.x));
        page.numbers.emplace_back("sea-y", floatsOf(run.y));
        page.numbers.emplace_back("sea-times", floatsOf(run.frameTimes));
        page.numbers.emplace_back("sea-frames", integersOf(run.frames, peak));
    }
    page.body = "<main>\n" + page.body + seriesHtml(run) + spectraHtml(run) + "</main>\n";
    return page;
}

} // namespace sorvik
