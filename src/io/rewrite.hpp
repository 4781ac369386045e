#pragma once

#include <filesystem>
#include <fstream>
#include <string>

/// The steps of `rewrite`.
namespace rewriting {

/// A new file beside `target`, NAME.new, where that is the file `source` and files can be made
/// there; otherwise no name.
std::filesystem::path placeBeside(const std::string& source, const std::string& target);

/// Puts the file `written` in the place of `target`, or removes it unless it `isWhole`. Returns
/// whether `target` has been replaced.
bool settle(const std::filesystem::path& written, const std::string& target, bool isWhole);

} // namespace rewriting

/// Writes the file `target` through `write`, which is given the stream, and returns whether all of
/// it was written.
///
/// Where that is the file `source`, which the content was read from, it is replaced only once the
/// new one is complete: a full disk must not cost the only copy.
template <class Write>
bool rewrite(const std::string& source, const std::string& target, Write write) {
    const std::filesystem::path beside = rewriting::placeBeside(source, target);
    std::ofstream out(beside.empty() ? std::filesystem::path(target) : beside, std::ios::binary);
    if (out) {
        write(out);
    }
    out.close();
    return beside.empty() ? out.good() : rewriting::settle(beside, target, out.good());
}
