#pragma once

#include "mesh/v3.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

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

    /// Appends the node numbers, from 1, of the three corners of a panel. Corners of the same panel
    /// are matched with the nodes of earlier panels only, never with each other.
    void addPanel(v3<float> const& a, v3<float> const& b, v3<float> const& c);

    /// Node coordinates in the order of their numbers.
    std::vector<v3<float>> const& nodes() const { return allNodes; }
    /// Node numbers, three a panel.
    std::vector<int> const& corners() const { return allCorners; }

private:
    /// Open addressing from 64-bit keys to node numbers; 0 is empty.
    class table {
    public:
        /// The place of `key`, or the empty one where it belongs, valid until the next call.
        int& at(std::uint64_t key);
        /// The number under `key`, 0 where there is none.
        int find(std::uint64_t key) const;

    private:
        struct slot {
            std::uint64_t key = 0;
            int node = 0;
        };
        std::size_t place(std::uint64_t key) const;
        void grow();
        std::vector<slot> slots = std::vector<slot>(1024);
        std::size_t used = 0;
    };

    v3<float> const& nodeAt(int number) const {
        return allNodes[static_cast<std::size_t>(number) - 1];
    }
    int find(v3<float> const& p) const;
    int lowestInCell(std::uint64_t cell, v3<float> const& p) const;
    int add(v3<float> const& p, bool isLowest);

    std::vector<v3<float>> allNodes;
    std::vector<int> allCorners;
    std::vector<int> nextInCell; ///< by node: the node before it in its cell, or 0
    table cells;                 ///< by cell: its latest node
    /// By coordinates: the node that has them and is the lowest near itself, so that it stays the
    /// match of a corner with these coordinates.
    table exact;
};
