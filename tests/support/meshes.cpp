#include "support/meshes.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

std::vector<triangle> ellipsoid(int around, int rings) {
    const double pi = std::acos(-1.0);
    const auto point = [&](int i, int j) {
        const double u = 2 * pi * (i % around) / around;
        const double v = pi * j / rings;
        return v3<float>{static_cast<float>(20 * std::sin(v) * std::cos(u)),
                         static_cast<float>(5 * std::sin(v) * std::sin(u)),
                         static_cast<float>(-4 * std::cos(v))};
    };
    std::vector<triangle> panels;
    for (int i = 0; i < around; ++i) {
        for (int j = 0; j < rings; ++j) {
            if (j > 0) {
                panels.emplace_back(point(i, j), point(i + 1, j), point(i, j + 1));
            }
            if (j < rings - 1) {
                panels.emplace_back(point(i + 1, j), point(i + 1, j + 1), point(i, j + 1));
            }
        }
    }
    return panels;
}

void fillMesh(bodyMesh& mesh, std::vector<triangle> panels) {
    mesh.faces = std::move(panels);
    mesh.nFaces = static_cast<int>(mesh.faces.size());
    mesh.updateWetSurface(0.0);
}

void scanForNodes(std::vector<v3<float>>& nodes, std::vector<int>& corners,
                  const v3<float> (&points)[3]) {
    int found[3];
    for (int i = 0; i < 3; ++i) {
        const auto match = std::find_if(nodes.begin(), nodes.end(), [&](v3<float> const& n) {
            return 1e-5 > static_cast<double>(length(points[i] - n));
        });
        found[i] = match == nodes.end() ? 0 : static_cast<int>(match - nodes.begin()) + 1;
    }
    for (int i = 0; i < 3; ++i) {
        if (found[i] == 0) {
            nodes.push_back(points[i]);
        }
        corners.push_back(found[i] != 0 ? found[i] : static_cast<int>(nodes.size()));
    }
}
