#include "view/reportHtml.hpp"

#include "check/textReport.hpp"
#include "view/page.hpp"

#include <algorithm>

namespace sorvik {
namespace {

constexpr std::size_t placesListed = 10;

std::string placesHtml(const finding& shown) {
    if (shown.where.empty()) {
        return "";
    }
    std::string html = "<ol class=\"places\">\n";
    const std::size_t listed = std::min(shown.where.size(), placesListed);
    for (std::size_t i = 0; i < listed; ++i) {
        html += "<li>" + escapeHtml(placeText(shown.where[i])) + "</li>\n";
    }
    html += "</ol>\n";
    if (listed < shown.where.size()) {
        html +=
            "<p class=\"more\">and " + std::to_string(shown.where.size() - listed) + " more</p>\n";
    }
    return html;
}

std::string findingHtml(const finding& shown, std::size_t index, const std::string& prefix) {
    const std::string level(nameOf(shown.level));
    std::string html = "<li class=\"finding " + level + "\" data-finding=\"" +
                       std::to_string(index) + "\" data-prefix=\"" + prefix + "\">\n<h4>" + level +
                       ": <span class=\"name\">" + escapeHtml(shown.name) + "</span>";
    if (shown.count > 1) {
        html += " (" + std::to_string(shown.count) + ")";
    }
    return html + "</h4>\n<p>" + escapeHtml(shown.message) +
           "</p>\n<p class=\"cure\">Cure: " + escapeHtml(shown.cure) + "</p>\n" +
           placesHtml(shown) + "</li>\n";
}

} // namespace

std::string factsHtml(const report& result) {
    std::string html = "<table class=\"facts\">\n";
    for (const fact& each : result.facts) {
        if (!each.label.empty()) {
            html += "<tr><th scope=\"row\">" + escapeHtml(each.label) + "</th><td>" +
                    escapeHtml(valueText(each)) + "</td></tr>\n";
        }
    }
    return html + "</table>\n";
}

std::string findingsHtml(const report& result, const std::string& prefix) {
    if (result.findings.empty()) {
        return "<p class=\"sound\">sorvikCheck finds no fault.</p>\n";
    }
    std::string html = "<ul class=\"findings\">\n";
    for (const severity level : {severity::error, severity::warning, severity::note}) {
        for (std::size_t i = 0; i < result.findings.size(); ++i) {
            if (result.findings[i].level == level) {
                html += findingHtml(result.findings[i], i, prefix);
            }
        }
    }
    return html + "</ul>\n";
}

} // namespace sorvik
