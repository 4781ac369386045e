#include "mesh/nodeMatcher.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

/// Cells per metre, a power of two so that scaling is exact. Two tolerances are less than a cell:
/// a corner reaches into two cells at most along an axis.
constexpr double cellsPerMetre = 32768;
/// Somewhat more than the tolerance, for the rounding of distances.
constexpr double reach = 1.1e-5;
static_assert(2 * reach * cellsPerMetre < 1, "a corner reaches into two cells along an axis");

bool isFinite(v3<float> const& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

bool isNear(v3<float> const& a, v3<float> const& b) {
    return nodeMatcher::tolerance > static_cast<double>(length(a - b));
}

/// The cell of a coordinate. The half centres the cells on round coordinates, which keeps these
/// away from the borders between cells.
double cellOf(double coordinate) {
    return std::floor(coordinate * cellsPerMetre + 0.5);
}

std::uint64_t mix(std::uint64_t hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x9E3779B97F4A7C15U;
    return hash ^ (hash >> 32);
}

std::uint64_t bitsOf(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// Different triples may share a key: whoever finds a node under it compares coordinates.
std::uint64_t keyOf(double x, double y, double z) {
    return mix(mix(mix(1, bitsOf(x)), bitsOf(y)), bitsOf(z));
}

bool isSame(v3<float> const& a, v3<float> const& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

/// The lower of two nodes, 0 being none.
int lower(int a, int b) {
    return a == 0 ? b : b == 0 ? a : std::min(a, b);
}

/// The key of the coordinates themselves; zeros of both signs are one.
std::uint64_t exactKey(v3<float> const& p) {
    return keyOf(static_cast<double>(p.x) + 0.0, static_cast<double>(p.y) + 0.0,
                 static_cast<double>(p.z) + 0.0);
}

/// The one or two cells that a coordinate's tolerance reaches into.
struct cellRange {
    double first;
    double last;

    explicit cellRange(float coordinate)
        : first(cellOf(static_cast<double>(coordinate) - reach)),
          last(cellOf(static_cast<double>(coordinate) + reach)) {}

    template <class Use>
    void forEach(Use use) const {
        use(first);
        if (last != first) {
            use(last);
        }
    }
};

} // namespace

void nodeMatcher::addPanel(v3<float> const& a, v3<float> const& b, v3<float> const& c) {
    const v3<float> points[] = {a, b, c};
    int found[3];
    for (int i = 0; i < 3; ++i) {
        found[i] = find(points[i]);
    }
    for (int i = 0; i < 3; ++i) {
        // A node of this very panel in front of a new one would be the lower match of later
        // corners.
        const bool isShadowed = std::any_of(points, points + i, [&](v3<float> const& earlier) {
            return isNear(points[i], earlier);
        });
        allCorners.push_back(found[i] != 0 ? found[i] : add(points[i], !isShadowed));
    }
}

/// The lowest node within the tolerance, or 0.
int nodeMatcher::find(v3<float> const& p) const {
    if (!isFinite(p)) {
        return 0;
    }
    const int same = exact.find(exactKey(p));
    if (same != 0 && isSame(p, nodeAt(same))) {
        return same;
    }
    int lowest = 0;
    const cellRange xs(p.x);
    const cellRange ys(p.y);
    const cellRange zs(p.z);
    xs.forEach([&](double x) {
        ys.forEach([&](double y) {
            zs.forEach([&](double z) { lowest = lower(lowest, lowestInCell(keyOf(x, y, z), p)); });
        });
    });
    return lowest;
}

int nodeMatcher::lowestInCell(std::uint64_t cell, v3<float> const& p) const {
    int lowest = 0;
    for (int n = cells.find(cell); n != 0; n = nextInCell[static_cast<std::size_t>(n) - 1]) {
        if (isNear(p, nodeAt(n))) {
            lowest = lower(lowest, n);
        }
    }
    return lowest;
}

/// Adds a node; `isLowest` says that no lower one is near it.
int nodeMatcher::add(v3<float> const& p, bool isLowest) {
    allNodes.push_back(p);
    nextInCell.push_back(0);
    const auto node = static_cast<int>(allNodes.size());
    // Nothing is near a point that is not finite.
    if (isFinite(p)) {
        int& latest =
            cells.at(keyOf(cellOf(static_cast<double>(p.x)), cellOf(static_cast<double>(p.y)),
                           cellOf(static_cast<double>(p.z))));
        nextInCell.back() = latest;
        latest = node;
        if (isLowest) {
            exact.at(exactKey(p)) = node;
        }
    }
    return node;
}

std::size_t nodeMatcher::table::place(std::uint64_t key) const {
    const std::size_t mask = slots.size() - 1;
    auto i = static_cast<std::size_t>(key) & mask;
    while (slots[i].node != 0 && slots[i].key != key) {
        i = (i + 1) & mask;
    }
    return i;
}

int nodeMatcher::table::find(std::uint64_t key) const {
    return slots[place(key)].node;
}

int& nodeMatcher::table::at(std::uint64_t key) {
    if (2 * used >= slots.size()) {
        grow();
    }
    slot& s = slots[place(key)];
    used += s.node == 0 ? 1 : 0;
    s.key = key;
    return s.node;
}

void nodeMatcher::table::grow() {
    std::vector<slot> old(2 * slots.size());
    old.swap(slots);
    for (slot const& s : old) {
        if (s.node != 0) {
            slots[place(s.key)] = s;
        }
    }
}
