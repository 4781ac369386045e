#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

/// Pages that show hulls, seas and projects: one HTML file each, without any other file or network.
namespace sorvik {

/// `text` from a file or the command line as text of HTML, also within attributes. Control
/// characters, which HTML does not allow, become blanks.
std::string escapeHtml(std::string_view text);

/// Numbers that a script of the page reads: little-endian bytes under an `id`.
struct pageNumbers {
    std::string id;    ///< letters, digits and hyphens
    std::string bytes; ///< of float, std::uint32_t or std::int16_t

    pageNumbers(std::string name, const std::vector<float>& values);
    pageNumbers(std::string name, const std::vector<unsigned>& values);
    pageNumbers(std::string name, const std::vector<short>& values);
};

/// The scripts and the style that a page carries, as text that is put in as it is.
struct pageAssets {
    std::string_view library; ///< what draws in three dimensions
    std::string_view licence; ///< of the library
    std::string_view style;
    std::string_view script; ///< runs after the body is there
};

/// What distinguishes a page.
struct pageContent {
    std::string kind;                 ///< "hull", "sea" or "project": the script to run
    std::string title;                ///< text
    std::string body;                 ///< HTML
    std::vector<pageNumbers> numbers; ///< in Base64 after the body
};

/// What every page begins with.
constexpr std::string_view pageStart = "<!DOCTYPE html>";

/// Writes a page. Its size is that of body and assets, and four thirds of the numbers.
void writePage(std::ostream& out, const pageContent& content, const pageAssets& assets);

} // namespace sorvik
