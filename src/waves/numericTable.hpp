#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace sorvik {

/// Reads the blank-separated numbers of a file, row after row, into `values`.
///
/// Returns the number of columns, or 0 if the file cannot be read or its rows differ in length. For
/// a table delimited by ";,:=" only the columns are counted; `values` stays empty.
int readNumericTable(const std::string& fileName, std::vector<double>& values);
/// The same of a stream, which can be rewound.
int readNumericTable(std::istream& in, std::vector<double>& values);

} // namespace sorvik
