// Preloaded into a program, gives it a locale in which 1500.5 is 1.500,5. Standard output keeps the
// classic one that it begins with.

#include <iostream>
#include <locale>
#include <string>

namespace {

struct commaText : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

const auto before = std::locale::global(std::locale(std::locale(), new commaText));

} // namespace
