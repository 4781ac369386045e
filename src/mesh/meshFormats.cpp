#include "mesh/meshFormats.hpp"

#include "mesh/gdfFormat.hpp"
#include "mesh/nemohFormat.hpp"
#include "mesh/stlFormat.hpp"

namespace sorvik {
namespace {

void writeGdf(std::ostream& out, const panelView& panels) {
    constexpr double lengthScale = 1.0;
    constexpr double gravity = 9.81;
    gdf::write(out, panels, lengthScale, gravity);
}

bool readNemoh(std::istream& in, const std::string& /*name*/, panelStore panels) {
    return nemohMesh::read(in, panels);
}

void writeNemoh(std::ostream& out, const panelView& panels) {
    nemohMesh::write(out, panels);
}

} // namespace

const std::vector<meshFormat>& meshFormats() {
    static const std::vector<meshFormat> formats = {
        {{".stl", ".STL"}, stl::read, stl::write, false},
        {{".gdf", ".GDF"}, gdf::read, writeGdf, false},
        {{".dat", ".DAT", ".nem"}, readNemoh, writeNemoh, true},
    };
    return formats;
}

} // namespace sorvik
