#pragma once

#include <array>

namespace sorvik {

using point3 = std::array<double, 3>; ///< x, y, z [m]

} // namespace sorvik
