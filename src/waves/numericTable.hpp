#pragma once

#include <string>
#include <vector>

namespace sorvik {

/// Reads the blank-separated numbers of a file, row after row, into `values`.
///
/// Returns the number of columns; 0 where the file cannot be read or its rows differ in length. Of
/// a table delimited by ";,:=" only the columns are counted, and `values` stays empty.
int readNumericTable(const std::string& fileName, std::vector<double>& values);

} // namespace sorvik
