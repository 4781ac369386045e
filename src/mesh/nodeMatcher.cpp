#include "mesh/nodeMatcher.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace sorvik {

namespace {

/// Cells per metre, a power of two so that scaling is exact. A corner then reaches into two cells
/// at most along an axis, and mostly into one; and a cell holds no more nodes than fit into it at
/// the distance of the tolerance.
constexpr double cellsPerMetre = 8192;
/// Somewhat more than the tolerance, for the rounding of distances.
constexpr double reach = 1.1e-5;
static_assert(2 * reach * cellsPerMetre < 1, "a corner reaches into two cells along an axis");

bool isFinitePoint(const v3<float>& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

bool isNear(const v3<float>& a, const v3<float>& b) {
    return nodeMatcher::tolerance > static_cast<double>(length(a - b));
}

/// The cell of a coordinate. The half centres the cells on round coordinates, which keeps these
/// away from the borders between cells.
double cellOf(double coordinate) {
    return std::floor(coordinate * cellsPerMetre + 0.5);
}

std::uint64_t mix(std::uint64_t hash, double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    hash = (hash ^ bits) * 0x9E3779B97F4A7C15U;
    return hash ^ (hash >> 32);
}

bool isSame(const v3<float>& a, const v3<float>& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

/// The lower of two nodes, 0 being none.
int lowerNode(int a, int b) {
    return a == 0 ? b : b == 0 ? a : std::min(a, b);
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

nodeMatcher::nodeMatcher(std::size_t panels) {
    // A closed hull has half as many nodes as panels: half of the buckets stay empty.
    std::size_t size = 1024;
    while (size < panels) {
        size *= 2; // uncovered: more nodes than a unit test should make; the benchmarks cover it
    }
    buckets_.resize(size);
    nodes_.reserve(panels / 2);
    corners_.reserve(3 * panels);
}

void nodeMatcher::addPanel(const v3<float>& a, const v3<float>& b, const v3<float>& c) {
    const v3<float> points[] = {a, b, c};
    int found[3];
    for (int i = 0; i < 3; ++i) {
        found[i] = find(points[i]);
    }
    for (int i = 0; i < 3; ++i) {
        if (found[i] == 0) {
            // A node of the same panel before it is the lower match of later corners.
            const bool isShadowed = std::any_of(
                points, points + i, [&](const v3<float>& p) { return isNear(points[i], p); });
            found[i] = add(points[i], !isShadowed);
        }
        corners_.push_back(found[i]);
    }
}

/// The lowest node within the tolerance, or 0.
int nodeMatcher::find(const v3<float>& p) const {
    if (!isFinitePoint(p)) {
        return 0;
    }
    for (int n = buckets_[bucketOf(p)]; n != 0; n = at(n).previous) {
        if (at(n).isFirstMatch && isSame(p, at(n).place)) {
            return n;
        }
    }
    int lowest = 0;
    const cellRange xs(p.x);
    const cellRange ys(p.y);
    const cellRange zs(p.z);
    xs.forEach([&](double x) {
        ys.forEach([&](double y) {
            zs.forEach(
                [&](double z) { lowest = lowerNode(lowest, lowestIn(bucketOf(x, y, z), p)); });
        });
    });
    return lowest;
}

int nodeMatcher::lowestIn(std::size_t bucket, const v3<float>& p) const {
    int lowest = 0;
    for (int n = buckets_[bucket]; n != 0; n = at(n).previous) {
        if (isNear(p, at(n).place)) {
            lowest = lowerNode(lowest, n);
        }
    }
    return lowest;
}

/// Adds a node and returns its number.
int nodeMatcher::add(const v3<float>& p, bool isFirstMatch) {
    nodes_.emplace_back(p, isFirstMatch);
    const auto latest = static_cast<int>(nodes_.size());
    if (nodes_.size() <= buckets_.size()) {
        putInBucket(latest);
        return latest;
    }
    buckets_.assign(2 * buckets_.size(), 0);
    for (int number = 1; number <= latest; ++number) {
        putInBucket(number);
    }
    return latest;
}

/// Nothing is near a node that is not finite: it is in no bucket.
void nodeMatcher::putInBucket(int number) {
    node& added = nodes_[static_cast<std::size_t>(number) - 1];
    if (isFinitePoint(added.place)) {
        int& latest = buckets_[bucketOf(added.place)];
        added.previous = latest;
        latest = number;
    }
}

std::size_t nodeMatcher::bucketOf(double x, double y, double z) const {
    return static_cast<std::size_t>(mix(mix(mix(1, x), y), z)) & (buckets_.size() - 1);
}

std::size_t nodeMatcher::bucketOf(const v3<float>& p) const {
    return bucketOf(cellOf(static_cast<double>(p.x)), cellOf(static_cast<double>(p.y)),
                    cellOf(static_cast<double>(p.z)));
}

} // namespace sorvik
