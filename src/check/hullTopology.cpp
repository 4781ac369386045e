#include "check/hullTopology.hpp"

#include "mesh/nodeMatcher.hpp"

#include <algorithm>
#include <array>
#include <tuple>

namespace sorvik {
namespace {

/// Edges whose ends both lie above this depth [m] belong to the waterline.
constexpr double waterlineTolerance = 1e-4;

/// Things in groups, one group a node, held in one array.
template <class Thing>
class groups {
public:
    /// `forEach(use)` calls `use(node, thing)` for all things, the same at every call.
    template <class ForEach>
    groups(std::size_t nodes, ForEach forEach) : begin_(nodes + 2) {
        forEach([&](int node, const Thing&) { ++begin_[static_cast<std::size_t>(node) + 1]; });
        for (std::size_t i = 1; i < begin_.size(); ++i) {
            begin_[i] += begin_[i - 1];
        }
        things_.resize(begin_.back());
        std::vector<std::size_t> next(begin_.begin(), begin_.end() - 1);
        forEach([&](int node, const Thing& thing) {
            things_[next[static_cast<std::size_t>(node)]++] = thing;
        });
    }

    /// Calls `use(begin, end)` for the things of each node, sorted.
    template <class Use>
    void forEachGroup(Use use) {
        for (std::size_t i = 0; i + 1 < begin_.size(); ++i) {
            Thing* const begin = things_.data() + begin_[i];
            Thing* const end = things_.data() + begin_[i + 1];
            std::sort(begin, end);
            use(begin, end);
        }
    }

private:
    std::vector<std::size_t> begin_;
    std::vector<Thing> things_;
};

/// A panel's way through an edge, which is kept with the lower of its two nodes.
struct halfEdge {
    int upper;        ///< the higher node
    int place;        ///< 3 times the panel, and the corner
    bool isDownwards; ///< whether it runs from the higher to the lower node

    bool operator<(const halfEdge& other) const {
        return std::tie(upper, place) < std::tie(other.upper, other.place);
    }
};

/// A panel, which is kept with the lowest of its three nodes.
struct numberedPanel {
    int middle;
    int upper;
    int panel;

    bool hasCornersOf(const numberedPanel& other) const {
        return middle == other.middle && upper == other.upper;
    }
    bool operator<(const numberedPanel& other) const {
        return std::tie(middle, upper, panel) < std::tie(other.middle, other.upper, other.panel);
    }
};

class edgeFinder {
public:
    edgeFinder(const std::vector<triangle>& panels, double level)
        : matcher_(panels.size()), deepest_(level - waterlineTolerance) {
        for (const triangle& panel : panels) {
            matcher_.addPanel(panel.vertexA, panel.vertexB, panel.vertexC);
        }
    }

    hullTopology find() {
        hullTopology found;
        found.nodes = matcher_.nodes().size();
        findEdges(found);
        findCoincident(found);
        for (auto* edges : {&found.openEdges, &found.turnedEdges, &found.branchedEdges}) {
            std::sort(edges->begin(), edges->end(), [](const panelEdge& a, const panelEdge& b) {
                return std::tie(a.panel, a.corner) < std::tie(b.panel, b.corner);
            });
        }
        std::sort(found.coincident.begin(), found.coincident.end());
        return found;
    }

private:
    using panelNodes = std::array<int, 3>;

    /// The nodes of a panel; false where two corners are one, or one is not finite.
    bool nodesOf(std::size_t panel, panelNodes& nodes) const {
        std::copy_n(matcher_.corners().begin() + static_cast<std::ptrdiff_t>(3 * panel), 3,
                    nodes.begin());
        return !isSame(nodes[0], nodes[1]) && !isSame(nodes[1], nodes[2]) &&
               !isSame(nodes[2], nodes[0]);
    }

    const v3<float>& placeOf(int node) const {
        return matcher_.nodes()[static_cast<std::size_t>(node) - 1].place;
    }
    // Corners of one panel are never merged with each other by the matcher.
    bool isSame(int a, int b) const {
        const auto distance = static_cast<double>(length(placeOf(a) - placeOf(b)));
        return a == b || !(distance >= nodeMatcher::tolerance);
    }
    bool isDeep(int node) const { return static_cast<double>(placeOf(node).z) < deepest_; }

    std::size_t panelCount() const { return matcher_.corners().size() / 3; }

    void findEdges(hullTopology& found) const {
        groups<halfEdge> edges(matcher_.nodes().size(), [&](auto use) {
            panelNodes nodes;
            for (std::size_t i = 0; i < panelCount(); ++i) {
                for (std::size_t corner = 0; nodesOf(i, nodes) && corner < 3; ++corner) {
                    const int from = nodes[corner];
                    const int to = nodes[(corner + 1) % 3];
                    if (isDeep(from) || isDeep(to)) {
                        use(std::min(from, to),
                            halfEdge{std::max(from, to), static_cast<int>(3 * i + corner),
                                     from > to});
                    }
                }
            }
        });
        edges.forEachGroup([&](const halfEdge* begin, const halfEdge* end) {
            while (begin != end) {
                const halfEdge* next = std::find_if(
                    begin, end, [&](const halfEdge& e) { return e.upper != begin->upper; });
                judge(begin, next, found);
                begin = next;
            }
        });
    }

    /// Files an edge, which the half-edges from `begin` to `end` run through.
    static void judge(const halfEdge* begin, const halfEdge* end, hullTopology& found) {
        const auto place = static_cast<std::size_t>(begin->place);
        const panelEdge edge = {place / 3, place % 3};
        if (end - begin == 1) {
            found.openEdges.push_back(edge);
        } else if (end - begin > 2) {
            found.branchedEdges.push_back(edge);
        } else if (begin[0].isDownwards == begin[1].isDownwards) {
            found.turnedEdges.push_back(edge);
        }
    }

    void findCoincident(hullTopology& found) const {
        groups<numberedPanel> panels(matcher_.nodes().size(), [&](auto use) {
            panelNodes nodes;
            for (std::size_t i = 0; i < panelCount(); ++i) {
                if (nodesOf(i, nodes)) {
                    std::sort(nodes.begin(), nodes.end());
                    use(nodes[0], numberedPanel{nodes[1], nodes[2], static_cast<int>(i)});
                }
            }
        });
        panels.forEachGroup([&](const numberedPanel* begin, const numberedPanel* end) {
            const numberedPanel* first = begin;
            for (const numberedPanel* each = begin; each != end; ++each) {
                if (!each->hasCornersOf(*first)) {
                    first = each;
                } else if (each != first) {
                    found.coincident.emplace_back(each->panel, first->panel);
                }
            }
        });
    }

    nodeMatcher matcher_;
    double deepest_;
};

} // namespace

hullTopology topologyBelow(const std::vector<triangle>& panels, double level) {
    return edgeFinder(panels, level).find();
}

} // namespace sorvik
