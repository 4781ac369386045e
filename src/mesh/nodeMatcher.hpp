#pragma once

#include "mesh/v3.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sorvik {

/// Gives panel corners their shared nodes: a corner takes the lowest node within `tolerance`, else
/// a new one.
///
/// The result is that of comparing every corner with all nodes in order, for any coordinates, NaN
/// and infinities included; the time grows linearly with the number of corners. Nodes lie in a hash
/// of cubic cells, of which a corner looks at those that its tolerance reaches into.
class nodeMatcher {
public:
    /// Corners match when 1e-5 is greater than their distance [m].
    static constexpr double tolerance = 1e-5;

    /// `panels` is the number of panels to expect.
    explicit nodeMatcher(std::size_t panels = 0);

    /// Appends the node numbers, from 1, of the three corners of a panel. Corners of the same panel
    /// are matched with the nodes of earlier panels only, never with each other.
    void addPanel(const v3<float>& a, const v3<float>& b, const v3<float>& c);

    /// Node coordinates in the order of their numbers.
    const std::vector<v3<float>>& nodes() const { return allNodes_; }
    /// Node numbers, three a panel.
    const std::vector<int>& corners() const { return allCorners_; }

private:
    int find(const v3<float>& p) const;
    int lowestIn(std::size_t bucket, const v3<float>& p) const;
    int add(const v3<float>& p, bool lowest);
    void putInBucket(int node);
    std::size_t bucketOf(double x, double y, double z) const;
    std::size_t bucketOf(const v3<float>& p) const;
    int nextOf(int node) const { return links_[static_cast<std::size_t>(node) - 1] / 2; }
    bool isLowest(int node) const { return links_[static_cast<std::size_t>(node) - 1] % 2 != 0; }
    const v3<float>& at(int node) const { return allNodes_[static_cast<std::size_t>(node) - 1]; }

    std::vector<v3<float>> allNodes_;
    /// By node: twice the node before it in its bucket (0: none), plus 1 where no lower node is
    /// near it, so that it is the match of its own coordinates.
    std::vector<int> links_;
    std::vector<int> allCorners_;
    /// The latest node of each bucket, or 0. A bucket holds the nodes of one cell, and now and then
    /// of others; a power of two of them, at least as many as nodes.
    std::vector<int> buckets_;
};

} // namespace sorvik
