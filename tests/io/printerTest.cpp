#include "io/printer.hpp"
#include "support/program.hpp"

#include <cmath>
#include <sstream>

namespace {

TEST(printer, saysWhatAnInputLacks) {
    EXPECT_END_SAYING(printer::fatalNotFound("a", "<x>"), 1,
                      "a in input file. \n\nExpected input of format : \n\ta = <x>\n\n\n* * *");
    EXPECT_END_SAYING(printer::fatalCheckSize(2, 3, "p"), 1,
                      "Expected vector of size 3 for input p. Found length 2\n* * *");
    EXPECT_EQ(outputOf([] { printer::fatalCheckSize(3, 3, "x"); }), "");
}

TEST(printer, printsMatricesAndLines) {
    const std::vector<double> data = {1, 2.5, -3, 1e9};
    std::ostringstream out;
    printer::printLine(out, 2, 0.5, 10, data.data());
    for (const int n : {3, -1, 1}) {
        printer::writeDoubles(out, n, &data[n == 1 ? 3 : 0]);
    }
    printer::printMatrix(out, 1, 2, data);
    EXPECT_EQ(out.str(), "0.5\t10\t25\n" +
                             std::string(reinterpret_cast<const char*>(data.data()), 32) +
                             "\t1\t2.5\n");
    const auto print = [&] {
        printer::printMatrix(2, 2, data, "A");
        printer::printMatrix(1, 2, std::vector<std::string>{"x", "yy"}, "AB");
    };
    EXPECT_EQ(outputOf(print), "----- A -----\n\t1\t2.5\n\t-3\t1e+09\n-------------\n\n"
                               "----- AB -----\nx  yy  \n--------------\n\n");
}

TEST(printer, drawsProgressWhenItGrows) {
    const auto progress = [](double done, double total, int shown) {
        return outputOf([&] { printer::showProgress(done, total, shown); });
    };
    const std::string start = "\r[", full = start + std::string(50, '#') + "]   ";
    EXPECT_EQ(progress(1, 100, -1), start + std::string(50, ' ') + "]   0 %");
    EXPECT_EQ(progress(3, 100, 0), start + "#" + std::string(49, ' ') + "]   2 %");
    EXPECT_EQ(progress(100, 100, 49) + progress(100, 100, 50), full + "100 %\n\n");
    EXPECT_EQ(progress(104, 100, 50) + progress(1e300, 1, 0),
              full + "104 %" + full + "2147483646 %");
    std::string nothing = progress(1, 100, 0) + progress(3, 100, 1) + progress(104, 100, 52);
    for (const double total : {0.0, -1.0, std::nan("")}) {
        nothing += progress(total == 0 ? 0 : 1, total, -5);
    }
    EXPECT_EQ(nothing + progress(HUGE_VAL, 1, 0) + progress(HUGE_VAL, HUGE_VAL, 0), "");
}

} // namespace
