#pragma once

#include "mesh/bodyMesh.hpp"

#include <vector>

/// A closed ellipsoid hull with semi-axes 20, 5 and 4 m about the origin: `around` meridians with
/// `rings` edges from pole to pole, 2 * around * (rings - 1) panels.
std::vector<triangle> ellipsoid(int around, int rings);

/// Fills a mesh as a reader does, cut at z = 0 where it lies.
void fillMesh(bodyMesh& mesh, std::vector<triangle> panels);

/// The nodes of the corners of a panel: every corner against all nodes, in order.
void scanForNodes(std::vector<v3<float>>& nodes, std::vector<int>& corners,
                  const v3<float> (&points)[3]);
