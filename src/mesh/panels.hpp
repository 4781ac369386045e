#pragma once

#include "mesh/triangle.hpp"

#include <vector>

namespace sorvik {

/// Where the reader of a format puts its panels: the two fields of the mesh that holds them, which
/// must outlive it.
struct panelStore {
    /// A member of a corner: its x, y or z.
    using coordinate = float v3<float>::*;

    std::vector<triangle>& faces; ///< the panels
    int& nFaces;                  ///< the number of panels read, which every reader sets

    /// Completes a half hull that is symmetric about the plane where the coordinate `axis` is 0.
    ///
    /// With n = `nFaces`, there are 2n panels afterwards: panel n + i is the image of panel i, with
    /// the reverse order of corners, so that its normal points outwards too. Panels from n on are
    /// lost; where fewer than n are there, `triangle()` stands for the others.
    void mirror(coordinate axis) const;
};

/// The panels that a writer is given, in their order. They must outlive it.
class panelView {
public:
    /// All of `faces`; `announced` is the number of panels that a file states.
    panelView(const std::vector<triangle>& faces, int announced)
        : count_(announced), faces_(&faces) {}
    /// Those pointed to, such as the wetted surface.
    panelView(const std::vector<triangle*>& chosen)
        : count_(static_cast<int>(chosen.size())), chosen_(&chosen) {}

    /// The number of panels that a file states.
    int count() const { return count_; }

    /// Calls `use` with every panel.
    template <class Use>
    void forEach(Use use) const {
        if (faces_ != nullptr) {
            for (const triangle& panel : *faces_) {
                use(panel);
            }
        } else {
            for (const triangle* panel : *chosen_) {
                use(*panel);
            }
        }
    }

private:
    int count_;
    const std::vector<triangle>* faces_ = nullptr;
    const std::vector<triangle*>* chosen_ = nullptr;
};

} // namespace sorvik
