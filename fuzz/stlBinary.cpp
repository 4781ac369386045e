#include "base/littleEndian.hpp"
#include "mesh/stlFormat.hpp"
#include "meshCheck.hpp"

#include <algorithm>

using namespace sorvik;

void tryText(const std::string& text) {
    std::string head = text.substr(0, 84);
    head.resize(84);
    const auto count = littleEndian::load<std::uint32_t>(head.data() + 80);
    // A count that memory can hold is believed.
    if (count > 5000 && count <= 0x7FFFFFFFU) {
        return;
    }
    std::istringstream in(text);
    stl::isBinary(in);
    check(in.tellg() == 0);
    bodyMesh mesh;
    const bool isWhole = readText(mesh, stl::readBinary, text);
    check(mesh.faces.size() == count && isWhole == (text.size() >= 84 + 50 * std::size_t(count)));
    const std::string written = textOf(mesh, stl::write);
    check(written.size() == 84 + 50 * std::size_t(count));
    // What the file lacks is left of the record before.
    std::string record(50, '\0');
    for (std::size_t at = 84; at < written.size(); at += 50) {
        const std::string found = text.substr(std::min(at, text.size()), 50);
        record.replace(0, found.size(), found);
        check(written.compare(at, 48, record, 0, 48) == 0);
    }
    bodyMesh again;
    check(readText(again, stl::readBinary, written) && textOf(again, stl::write) == written);
    // The plain scan for nodes takes the square of the count.
    if (count <= 1000) {
        checkCuts(mesh);
    }
}
