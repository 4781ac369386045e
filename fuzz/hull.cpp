#include "base/littleEndian.hpp"
#include "check/hullCheck.hpp"
#include "check/quietly.hpp"
#include "mesh/bodyMesh.hpp"
#include "mesh/stlFormat.hpp"
#include "target.hpp"

using namespace sorvik;

/// The first character chooses the ending, the rest is the file. What the program reads, the check
/// reads too.
void tryText(const std::string& text) {
    const char* const endings[] = {".stl", ".gdf", ".dat"};
    const std::size_t ending = text.empty() ? 0 : static_cast<unsigned char>(text[0]) % 3;
    // A binary STL file is believed where memory can hold its count: that only takes time.
    const std::string content = text.substr(text.empty() ? 0 : 1);
    const std::string head = content.substr(0, 84) + std::string(84, '\0');
    std::istringstream in(content);
    if (ending == 0 && stl::isBinary(in) &&
        littleEndian::load<std::uint32_t>(head.data() + 80) > 5000) {
        return;
    }
    const std::string file = fileOf(std::string("hull") + endings[ending], content);
    bodyMesh mesh;
    const bool hasEnded = quietly([&] { mesh = bodyMesh(file, {0, 0, 0}, {0, 0, 0}, 0); }).hasEnded;
    const hullReport checked = checkHull(file, {});
    // The check leaves out what the readers add to a mesh: the line that ends a Nemoh mesh, with
    // its image, and the facets that an STL file lacks.
    const std::size_t read = hasEnded ? 0 : mesh.faces.size();
    const std::size_t kept = checked.mesh.faces.size();
    check(kept <= read && (read - kept <= 2 || ending == 0));
    check(checked.hasPanels == (kept > 0));
    check(checked.hasPanels || checked.result.count(severity::error) > 0);
}
