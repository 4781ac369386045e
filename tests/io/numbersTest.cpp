#include "support/numbers.hpp"
#include "base/sixDigits.hpp"
#include "base/textScanner.hpp"
#include "support/files.hpp"

#include <cmath>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

using namespace sorvik;

namespace {

TEST(sixDigits, writesWhatTheStreamWrites) {
    char text[sixDigits::room];
    for (const double value : manyNumbers(7, 50000)) {
        ASSERT_EQ(std::string(text, sixDigits::write(text, value)), streamText(value))
            << std::hexfloat << value;
    }
}

TEST(sixDigits, isCertainOnlyWhereTheBoundChangesNothing) {
    std::mt19937_64 random(11);
    char text[sixDigits::room];
    int certain = 0;
    for (const double value : manyNumbers(7, 20000)) {
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
}

/// The stream under the scanner's names.
struct plainStream : std::istringstream {
    using std::istringstream::istringstream;
    template <class T>
    void read(T& value) {
        *this >> value;
    }
    void skipWord() {
        std::string word;
        *this >> word;
    }
    void skipLine() {
        std::string line;
        std::getline(*this, line);
    }
    void skipSpace() { *this >> std::ws; }
    bool failed() const { return fail(); }
};

/// One extraction of some kind, with its outcome as text.
template <class Reader>
std::string step(Reader& in, unsigned kind) {
    std::ostringstream seen;
    double d = 77;
    float f = 77;
    int i = 77;
    switch (kind) {
    case 0: in.read(d); break;
    case 1: in.read(f); break;
    case 2: in.read(i); break;
    case 3: in.skipWord(); break;
    case 4: in.skipLine(); break;
    case 5: in.skipSpace(); break;
    default: seen << in.peek();
    }
    seen << ' ' << std::hexfloat << d << ' ' << f << ' ' << i << in.good() << in.failed();
    return seen.str();
}

void expectSameSteps(const std::string& text, std::mt19937& random, int steps) {
    plainStream stream(text);
    std::istringstream source(text);
    textScanner scanner(source);
    for (int n = 0; n < steps; ++n) {
        const unsigned kind = static_cast<unsigned>(random() % 7);
        ASSERT_EQ(step(scanner, kind), step(stream, kind)) << kind << " in " << text.substr(0, 200);
    }
}

TEST(textScanner, readsWhatTheStreamReads) {
    std::vector<std::string> pieces = {"\n", "\n\n", " ", "\t", "\r\n", "\v", std::string(1, '\0')};
    std::istringstream numbers(readFile(SORVIK_TEST_DATA "/oddNumbers.txt"));
    for (std::string piece; numbers >> piece;) {
        pieces.push_back(piece);
    }
    ASSERT_GT(pieces.size(), 50U);
    std::mt19937 random(3);
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t n = random() % 8; n > 0; --n) {
            text += pieces[random() % pieces.size()] + (random() % 2 == 0 ? " " : "");
        }
        // With more text behind, numbers are not near the end of the block.
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
        text += random() % 5000 == 0 ? std::string(300'000, '1') + " " : "";
    }
    expectSameSteps(text, random, 100'000);
}

} // namespace
