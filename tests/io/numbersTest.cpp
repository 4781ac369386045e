#include "io/sixDigits.hpp"
#include "io/textScanner.hpp"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::string streamText(double value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

std::string fastText(double value) {
    char text[sixDigits::maxLength];
    return {text, sixDigits::write(text, value)};
}

/// Numbers of all magnitudes, those around 1 more often, and their neighbours at rounding halves.
std::vector<double> manyNumbers(int count) {
    std::mt19937_64 random(7);
    std::vector<double> numbers = {0.0,        -0.0,         1.0,           -1.0,     100000,
                                   999999,     999999.5,     999998.5,      9.999995, 0.0001,
                                   9.99999e-5, 99999.95,     0.5,           1e-300,   1e300,
                                   5e-324,     1e5,          123456.5,      2.5,      0.9999995,
                                   1234565.0,  std::nan(""), -std::nan(""), HUGE_VAL, -HUGE_VAL};
    for (int i = 0; i < count; ++i) {
        const std::uint64_t bits = random();
        double any = 0;
        std::memcpy(&any, &bits, sizeof any);
        numbers.push_back(any);
        const double usual = std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())),
                                        -63 + static_cast<int>(random() % 34) - 14);
        numbers.push_back(usual);
        numbers.push_back(static_cast<double>(static_cast<float>(usual)));
        // A seventh digit of 5 is a tie before the binary error comes in.
        const double tie = static_cast<double>(random() % 1000000) * 10 + 5;
        const double half = tie * std::pow(10.0, static_cast<double>(random() % 12) - 11);
        numbers.insert(numbers.end(), {half, std::nextafter(half, 0), std::nextafter(half, 1e9)});
    }
    return numbers;
}

TEST(sixDigits, writesWhatTheStreamWrites) {
    for (const double value : manyNumbers(50000)) {
        ASSERT_EQ(fastText(value), streamText(value)) << std::hexfloat << value;
    }
}

TEST(sixDigits, isCertainOnlyWhereTheBoundChangesNothing) {
    std::mt19937_64 random(11);
    char text[sixDigits::maxLength];
    int certain = 0;
    for (const double value : manyNumbers(20000)) {
        const double bound = std::fabs(value) * std::ldexp(1.0, -static_cast<int>(random() % 60));
        if (char* end = sixDigits::writeIfCertain(text, value, bound)) {
            const std::string found(&text[0], end);
            ASSERT_EQ(found, streamText(value - bound)) << std::hexfloat << value << ' ' << bound;
            ASSERT_EQ(found, streamText(value + bound)) << std::hexfloat << value << ' ' << bound;
            ++certain;
        }
    }
    EXPECT_GT(certain, 10000);
    EXPECT_EQ(sixDigits::writeIfCertain(text, 0.0, 0.0), nullptr);
    EXPECT_NE(sixDigits::writeIfCertain(text, 0.2, 1e-9), nullptr);
}

/// One extraction of each kind, from the stream and from the scanner, with its outcome as text.
std::string streamStep(std::istream& in, unsigned kind) {
    std::ostringstream seen;
    double d = 77;
    float f = 77;
    int i = 77;
    std::string word;
    switch (kind) {
    case 0:
        in >> d;
        seen << std::hexfloat << d;
        break;
    case 1:
        in >> f;
        seen << std::hexfloat << f;
        break;
    case 2:
        in >> i;
        seen << i;
        break;
    case 3:
        in >> word;
        break;
    case 4:
        std::getline(in, word);
        break;
    case 5:
        in >> std::ws;
        break;
    default:
        seen << in.peek();
        break;
    }
    seen << ' ' << in.good() << in.fail();
    return seen.str();
}

std::string scannerStep(textScanner& in, unsigned kind) {
    std::ostringstream seen;
    double d = 77;
    float f = 77;
    int i = 77;
    switch (kind) {
    case 0:
        in.read(d);
        seen << std::hexfloat << d;
        break;
    case 1:
        in.read(f);
        seen << std::hexfloat << f;
        break;
    case 2:
        in.read(i);
        seen << i;
        break;
    case 3:
        in.skipWord();
        break;
    case 4:
        in.skipLine();
        break;
    case 5:
        in.skipSpace();
        break;
    default:
        seen << in.peek();
        break;
    }
    seen << ' ' << in.good() << in.failed();
    return seen.str();
}

void expectSameSteps(const std::string& text, std::mt19937& random, int steps) {
    std::istringstream stream(text);
    std::istringstream source(text);
    textScanner scanner(source);
    for (int step = 0; step < steps; ++step) {
        const unsigned kind = static_cast<unsigned>(random() % 7);
        ASSERT_EQ(scannerStep(scanner, kind), streamStep(stream, kind))
            << "kind " << kind << ", step " << step << " of \"" << text.substr(0, 200) << '"';
    }
}

TEST(textScanner, readsWhatTheStreamReads) {
    const std::vector<std::string> pieces = {
        "1",
        "-2.5",
        "+1",
        "1e",
        ".",
        "1.",
        ".5",
        "-",
        "1e+",
        "1e5e",
        "1.2.3",
        "e5",
        ".e5",
        "nan",
        "inf",
        "-inf",
        "0x10",
        "1e400",
        "-1e400",
        "1e-400",
        "1e39",
        "4e-324",
        "1e-40",
        "2147483647",
        "2147483648",
        "-2147483649",
        "007",
        "+-1",
        "--1",
        "0.1e-2",
        "1E+2",
        "1,5",
        "3.4028236e38",
        "1_0",
        "0.30000000000000000000000000000000000000000000000000000000000000000001",
        "99999999999999999999",
        "abc",
        "\n",
        "\n\n",
        " ",
        "\t",
        "\r\n",
        "\v",
        "-0",
        "1d5",
        "-.5e1",
        std::string(1, '\0')};
    std::mt19937 random(3);
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t n = random() % 8; n > 0; --n) {
            text += pieces[random() % pieces.size()];
            text += random() % 2 == 0 ? " " : "";
        }
        // Long lines behind the pieces lead past the short way for the end of the block.
        text +=
            round % 2 == 0 ? "" : " " + std::string(80, 'x') + "\n1 2 3\n" + std::string(60, ' ');
        expectSameSteps(text, random, 12);
    }
}

TEST(textScanner, readsAcrossBlocks) {
    std::mt19937 random(5);
    std::string text;
    while (text.size() < 1'500'000) {
        text += streamText(static_cast<double>(random()) / 7e4) + (random() % 9 == 0 ? "\n" : " ");
        if (random() % 5000 == 0) {
            text += std::string(300'000, '1') + " ";
        }
    }
    expectSameSteps(text, random, 100'000);
}

} // namespace
