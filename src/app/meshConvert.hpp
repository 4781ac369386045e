#pragma once

namespace sorvik {

/// The -meshConvert task, whose flag stands at `position` of the command line: reads the mesh named
/// behind it, moves its origin (-origin x y z), cuts it at a level (-wet swl) and writes it under
/// the second name.
///
/// Returns false where an option lacks its values: the program then ends with status 0. Whatever
/// else happens, it goes on to the other tasks.
bool meshConvert(int position, int argc, const char** argv);

} // namespace sorvik
