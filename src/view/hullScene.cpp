#include "view/hullScene.hpp"

#include "check/hullSurface.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <unordered_map>

namespace sorvik {
namespace {

using coordinates = std::array<std::uint32_t, 3>;

struct coordinatesHash {
    std::size_t operator()(const coordinates& p) const {
        std::uint64_t hash = 0;
        for (const std::uint32_t part : p) {
            hash = (hash ^ part) * 0x9E3779B97F4A7C15U;
            hash ^= hash >> 29U;
        }
        return static_cast<std::size_t>(hash);
    }
};

/// What is not a number or lies farther away, a browser cannot draw.
bool isDrawn(const v3<float>& p) {
    constexpr auto farthest = static_cast<float>(farthestDrawn);
    const auto isNear = [](float coordinate) { return std::fabs(coordinate) <= farthest; };
    return isNear(p.x) && isNear(p.y) && isNear(p.z);
}

bool isDrawn(const triangle& panel) {
    return isDrawn(panel.vertexA) && isDrawn(panel.vertexB) && isDrawn(panel.vertexC);
}

/// Corners that are the same to the last bit share a node, so that a page gives the areas of the
/// mesh as it is; those of a file are alike wherever panels meet.
class sharedNodes {
public:
    explicit sharedNodes(std::size_t panels) {
        numbers_.reserve(panels);
        faces_.reserve(3 * panels);
    }

    /// One that cannot be drawn keeps its number, without an area.
    void add(const triangle& panel) {
        const bool drawn = isDrawn(panel);
        for (const v3<float>* corner : {&panel.vertexA, &panel.vertexB, &panel.vertexC}) {
            add(drawn ? *corner : v3<float>{0, 0, 0});
        }
    }

    const std::vector<float>& nodes() const { return nodes_; }
    const std::vector<unsigned>& faces() const { return faces_; }

private:
    void add(const v3<float>& p) {
        coordinates key{};
        const float place[] = {p.x, p.y, p.z};
        std::memcpy(key.data(), place, sizeof(place));
        const auto number = static_cast<unsigned>(nodes_.size() / 3);
        const auto [found, isNew] = numbers_.try_emplace(key, number);
        if (isNew) {
            nodes_.insert(nodes_.end(), place, place + 3);
        }
        faces_.push_back(found->second);
    }

    std::unordered_map<coordinates, unsigned, coordinatesHash> numbers_;
    std::vector<float> nodes_;
    std::vector<unsigned> faces_;
};

void append(std::vector<float>& values, const v3<float>& p) {
    values.insert(values.end(), {p.x, p.y, p.z});
}

std::vector<float> piecesOf(const bodyMesh& mesh) {
    std::vector<float> pieces;
    pieces.reserve(9 * mesh.splitFaces.size());
    for (const triangle& piece : mesh.splitFaces) {
        if (isDrawn(piece)) {
            append(pieces, piece.vertexA);
            append(pieces, piece.vertexB);
            append(pieces, piece.vertexC);
        }
    }
    return pieces;
}

/// The edges of the wetted surface that lie at the level, but not those within a lid.
std::vector<float> waterlineOf(const bodyMesh& mesh, double level) {
    constexpr double atLevel = 1e-4; // m
    const auto isAt = [&](const v3<float>& p) {
        return std::abs(static_cast<double>(p.z) - level) <= atLevel;
    };
    std::vector<float> line;
    for (const triangle* panel : mesh.wetFaces) {
        const v3<float>* const corner[] = {&panel->vertexA, &panel->vertexB, &panel->vertexC};
        const bool at[] = {isAt(*corner[0]), isAt(*corner[1]), isAt(*corner[2])};
        if (at[0] + at[1] + at[2] != 2 || !isDrawn(*panel)) {
            continue;
        }
        for (int i = 0; i < 3; ++i) {
            if (at[i]) {
                append(line, *corner[i]);
            }
        }
    }
    return line;
}

std::vector<unsigned> openEdgesOf(const hullTopology& topology) {
    std::vector<unsigned> edges;
    edges.reserve(topology.openEdges.size());
    for (const panelEdge& edge : topology.openEdges) {
        edges.push_back(static_cast<unsigned>(3 * edge.panel + edge.corner));
    }
    return edges;
}

void addFinding(const finding& marked, const std::string& id, std::vector<pageNumbers>& numbers) {
    std::vector<float> points;
    std::vector<unsigned> panels;
    const std::size_t count = std::min(marked.where.size(), placesMarked);
    for (std::size_t i = 0; i < count; ++i) {
        const location& place = marked.where[i];
        const auto coordinate = [&place](std::size_t axis) {
            return static_cast<float>(place.point[axis]);
        };
        const v3<float> point{coordinate(0), coordinate(1), coordinate(2)};
        if (place.hasPoint && isDrawn(point)) {
            append(points, point);
            panels.push_back(static_cast<unsigned>(std::max(place.panel, 0)));
        }
    }
    if (!points.empty()) {
        numbers.emplace_back(id, points);
        numbers.emplace_back(id + "Panels", panels);
    }
}

} // namespace

void addHullNumbers(const hullReport& hull, double level, const std::string& prefix,
                    std::vector<pageNumbers>& numbers) {
    sharedNodes corners(hull.mesh.faces.size());
    for (const triangle& panel : hull.mesh.faces) {
        corners.add(panel);
    }
    numbers.emplace_back(prefix + "nodes", corners.nodes());
    numbers.emplace_back(prefix + "faces", corners.faces());
    numbers.emplace_back(prefix + "pieces", piecesOf(hull.mesh));
    numbers.emplace_back(prefix + "waterline", waterlineOf(hull.mesh, level));
    numbers.emplace_back(prefix + "open", openEdgesOf(hull.topology));
    for (std::size_t i = 0; i < hull.result.findings.size(); ++i) {
        addFinding(hull.result.findings[i], prefix + "finding" + std::to_string(i), numbers);
    }
}

} // namespace sorvik
