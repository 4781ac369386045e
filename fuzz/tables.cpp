#include "waves/numericTable.hpp"

#include "target.hpp"

using namespace sorvik;

void tryText(const std::string& text) {
    std::vector<double> values;
    std::istringstream table(text);
    const int columns = readNumericTable(table, values);
    double first = 0;
    std::istringstream all(text);
    all >> first;
    const int next = all.peek();
    if (next == ';' || next == ',' || next == ':' || next == '=') {
        check(values.empty() && columns > 0);
        return;
    }
    // Every row ends with its line or its first word that is no number.
    std::size_t at = 0;
    int length = 0, count = 0;
    std::istringstream lines(text);
    std::string line;
    for (bool isFirst = true; std::getline(lines, line) || isFirst; isFirst = false) {
        std::istringstream in(line);
        count = 0;
        for (double value = 0; in.good(); in >> std::ws, ++count) {
            in >> value;
            check(at < values.size() && values[at++] == value);
        }
        length = isFirst ? count : length;
        if (count != length) {
            break;
        }
    }
    check(at == values.size() && columns == (count == length ? length : 0));
}
