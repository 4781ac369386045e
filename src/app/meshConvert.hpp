#pragma once

namespace sorvik {

/// The -meshConvert task, whose flag is argument `position`: reads the mesh that the next argument
/// names, moves its origin to -origin x y z [m], cuts it at the level -wet swl [m above the origin]
/// and writes it to the name after that.
///
/// Returns false if an option lacks its values, after which the program ends with status 0;
/// otherwise true, also after a failed conversion, and the program goes on to the other tasks.
bool meshConvert(int position, int argc, const char** argv);

} // namespace sorvik
