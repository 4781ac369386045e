#include "mesh/panels.hpp"

#include <algorithm>
#include <cstddef>

namespace sorvik {

void panelStore::mirror(coordinate axis) const {
    const auto half = static_cast<std::size_t>(std::max(nFaces, 0));
    faces.resize(half);
    faces.reserve(2 * half);
    for (std::size_t i = 0; i < half; ++i) {
        v3<float> a = faces[i].vertexA;
        v3<float> b = faces[i].vertexB;
        v3<float> c = faces[i].vertexC;
        a.*axis = -(a.*axis);
        b.*axis = -(b.*axis);
        c.*axis = -(c.*axis);
        faces.emplace_back(a, c, b);
    }
    nFaces = static_cast<int>(faces.size());
}

} // namespace sorvik
