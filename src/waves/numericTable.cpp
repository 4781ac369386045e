#include "waves/numericTable.hpp"

#include "base/files.hpp"
#include "io/sorvikIO.hpp"

namespace sorvik {

int readNumericTable(const std::string& fileName, std::vector<double>& values) {
    std::ifstream in = files::open(fileName);
    return in.is_open() ? readNumericTable(in, values) : 0;
}

int readNumericTable(std::istream& in, std::vector<double>& values) {
    const int columns = sorvikIO::readData<double>(in, values, 0);
    if (in.bad()) {
        return 0; // uncovered: the disk reports an error; the torture covers it
    }
    if (values.empty()) {
        return columns;
    }
    // Reading ends at the first row of another length, whose length is what is returned.
    in.clear();
    in.seekg(0);
    std::string line;
    std::getline(in, line);
    std::vector<double> firstRow;
    return sorvikIO::readLine<double>(line, firstRow) == columns ? columns : 0;
}

} // namespace sorvik
