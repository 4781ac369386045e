#include "waves/numericTable.hpp"

#include "target.hpp"

void tryText(const std::string& text) {
    std::vector<double> values;
    std::istringstream table(text);
    const int columns = sorvik::readNumericTable(table, values);
    check(columns >= 0 && (columns == 0 || values.size() % std::size_t(columns) == 0));
}
