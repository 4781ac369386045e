#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace sorvik {

/// `most` of the numbers 0 to `count` - 1 at even distances, with the first and the last, or all of
/// them where there are no more. `most` is at least 2.
inline std::vector<std::size_t> chooseEvenly(std::size_t count, std::size_t most) {
    std::vector<std::size_t> chosen(std::min(count, most));
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        chosen[i] = count <= most ? i : i * (count - 1) / (most - 1);
    }
    return chosen;
}

} // namespace sorvik
