#include "io/printer.hpp"
#include "support/program.hpp"

#include <cmath>
#include <limits>
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
    EXPECT_EQ(outputOf([&] { printer::printMatrix(2, 2, data, "A"); }),
              "----- A -----\n\t1\t2.5\n\t-3\t1e+09\n-------------\n\n");
    const std::vector<std::string> words = {"x", "yy"};
    EXPECT_EQ(outputOf([&] { printer::printMatrix(1, 2, words, "AB"); }),
              "----- AB -----\nx  yy  \n--------------\n\n");
    std::ostringstream line;
    printer::printLine(line, 2, 0.5, 10, data.data());
    EXPECT_EQ(line.str(), "0.5\t10\t25\n");
    std::ostringstream bytes;
    printer::writeDoubles(bytes, 3, data.data());
    printer::writeDoubles(bytes, -1, data.data());
    printer::writeDoubles(bytes, 1, data.data() + 3);
    EXPECT_EQ(bytes.str(), std::string(reinterpret_cast<const char*>(data.data()), 32));
}

std::string progress(double done, double total, int shown) {
    return outputOf([&] { printer::showProgress(done, total, shown); });
}

TEST(printer, drawsProgressWhenItGrows) {
    const std::string full = "\r[" + std::string(50, '#') + "]   100 %";
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(progress(1, 100, 0), "");
    EXPECT_EQ(progress(1, 100, -1), "\r[" + std::string(50, ' ') + "]   0 %");
    EXPECT_EQ(progress(3, 100, 0), "\r[#" + std::string(49, ' ') + "]   2 %");
    EXPECT_EQ(progress(3, 100, 1), "");
    EXPECT_EQ(progress(100, 100, 49), full + "\n");
    EXPECT_EQ(progress(100, 100, 50), "\n");
    EXPECT_EQ(progress(104, 100, 50), "\r[" + std::string(50, '#') + "]   104 %");
    EXPECT_EQ(progress(104, 100, 52), "");
    EXPECT_EQ(progress(1e300, 1, 0), "\r[" + std::string(50, '#') + "]   2147483646 %");
    for (const double total : {0.0, -1.0, std::nan("")}) {
        EXPECT_EQ(progress(total == 0 ? 0 : 1, total, -5), "") << total;
    }
    EXPECT_EQ(progress(infinity, 1, 0) + progress(infinity, infinity, 0), "");
}

} // namespace
