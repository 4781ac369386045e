#include "view/page.hpp"

#include "base/littleEndian.hpp"

#include <ostream>

namespace sorvik {
namespace {

template <class Number>
std::string bytesOf(const std::vector<Number>& values) {
    std::string bytes(values.size() * sizeof(Number), '\0');
    char* place = bytes.data();
    for (const Number value : values) {
        littleEndian::store(place, value);
        place += sizeof value;
    }
    return bytes;
}

/// Writes Base64 by RFC 4648.
void writeBase64(std::ostream& out, const std::string& bytes) {
    constexpr std::string_view digits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t lineLength = std::size_t(64) * 1024;
    std::string text;
    text.reserve(lineLength + 4);
    const auto at = [&](std::size_t i) -> unsigned {
        return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U;
    };
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const unsigned group = at(i) << 16U | at(i + 1) << 8U | at(i + 2);
        text += digits[group >> 18U];
        text += digits[group >> 12U & 63U];
        text += i + 1 < bytes.size() ? digits[group >> 6U & 63U] : '=';
        text += i + 2 < bytes.size() ? digits[group & 63U] : '=';
        if (text.size() >= lineLength) {
            out << text;
            text.clear();
        }
    }
    out << text;
}

} // namespace

std::string escapeHtml(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&': escaped += "&amp;"; break;
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '"': escaped += "&quot;"; break;
        case '\'': escaped += "&#39;"; break;
        default:
            const bool isControl = static_cast<unsigned char>(c) < 0x20 || c == 0x7f;
            escaped += isControl && c != '\n' && c != '\t' ? ' ' : c;
        }
    }
    return escaped;
}

pageNumbers::pageNumbers(std::string name, const std::vector<float>& values)
    : id(std::move(name)), bytes(bytesOf(values)) {}
pageNumbers::pageNumbers(std::string name, const std::vector<unsigned>& values)
    : id(std::move(name)), bytes(bytesOf(values)) {}
pageNumbers::pageNumbers(std::string name, const std::vector<short>& values)
    : id(std::move(name)), bytes(bytesOf(values)) {}

void writePage(std::ostream& out, const pageContent& content, const pageAssets& assets) {
    const std::string title = escapeHtml(content.title);
    out << pageStart
        << "\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           // Without an icon of its own a browser asks for one.
           "<link rel=\"icon\" href=\"data:,\">\n"
           "<title>"
        << title << "</title>\n<style>\n"
        << assets.style << "</style>\n</head>\n<body data-kind=\"" << content.kind << "\">\n"
        << "<h1>" << title << "</h1>\n"
        << content.body;
    for (const pageNumbers& block : content.numbers) {
        out << "<script type=\"application/octet-stream\" id=\"" << block.id << "\">";
        writeBase64(out, block.bytes);
        out << "</script>\n";
    }
    out << "<script type=\"text/plain\" id=\"licence\">\nThis page contains parts of three.js:\n\n"
        << assets.licence << "</script>\n<script>\n"
        << assets.library << "</script>\n<script>\n"
        << assets.script << "</script>\n</body>\n</html>\n";
}

} // namespace sorvik
