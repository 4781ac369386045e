#pragma once

#include "base/files.hpp"

#include <string>

namespace sorvik {

/// The steps of `rewrite`.
namespace rewriting {

/// A new file beside `target`, NAME.new, where that is the file `source` and files can be made
/// there; otherwise no name.
std::string placeBeside(const std::string& source, const std::string& target);

/// Puts the file `written` in the place of `target`, or removes it unless it `isWhole`. Returns
/// whether `target` has been replaced.
bool settle(const std::string& written, const std::string& target, bool isWhole);

} // namespace rewriting

/// Writes the file `target` through `write`, which is given the stream, and returns whether all of
/// it was written.
///
/// Where that is the file `source`, which the content was read from, it is replaced only once the
/// new one is complete: a full disk must not cost the only copy.
template <class Write>
bool rewrite(const std::string& source, const std::string& target, Write write) {
    const std::string beside = rewriting::placeBeside(source, target);
    if (beside.empty()) {
        return files::write(target, write);
    }
    const bool isWhole = files::write(beside, write);
    return rewriting::settle(beside, target, isWhole);
}

} // namespace sorvik
