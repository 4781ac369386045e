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

    /// A node in the hash of nodes.
    struct node {
        v3<float> place;
        /// The number of the node before it in its bucket, or 0.
        int previous = 0;
        /// Whether no node of a lower number is near it, so that it is the match of its own place.
        bool isFirstMatch;

        // Built where it stays: copying one that has just been put together is slow.
        node(const v3<float>& p, bool isFirst) : place(p), isFirstMatch(isFirst) {}
    };

    /// Nodes in the order of their numbers.
    const std::vector<node>& nodes() const { return nodes_; }
    /// Node numbers, three a panel.
    const std::vector<int>& corners() const { return corners_; }

private:
    int find(const v3<float>& p) const;
    int lowestIn(std::size_t bucket, const v3<float>& p) const;
    int add(const v3<float>& p, bool isFirstMatch);
    void putInBucket(int number);
    std::size_t bucketOf(double x, double y, double z) const;
    std::size_t bucketOf(const v3<float>& p) const;
    const node& at(int number) const { return nodes_[static_cast<std::size_t>(number) - 1]; }

    std::vector<node> nodes_;
    std::vector<int> corners_;
    /// The latest node of each bucket, or 0. A bucket holds the nodes of one cell, and now and then
    /// of others; a power of two of them, at least as many as nodes.
    std::vector<int> buckets_;
};

} // namespace sorvik
