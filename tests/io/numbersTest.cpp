#include "support/numbers.hpp"
#include "base/sixDigits.hpp"
#include "base/textScanner.hpp"
#include "support/program.hpp"

#include <cmath>
#include <random>
#include <sstream>

using namespace sorvik;

namespace {

TEST(sixDigits, writesWhatTheStreamWrites) {
    std::mt19937_64 random(11);
    char text[sixDigits::room];
    int certain = 0;
    for (const double value : manyNumbers(7, 50000)) {
        ASSERT_EQ(std::string(text, sixDigits::write(text, value)), streamText(value))
            << std::hexfloat << value;
        const double bound = std::fabs(value) * std::ldexp(1.0, -static_cast<int>(random() % 60));
        if (char* end = sixDigits::writeIfCertain(text, value, bound)) {
            const std::string found(&text[0], end);
            ASSERT_EQ(std::pair(found, found),
                      std::pair(streamText(value - bound), streamText(value + bound)))
                << std::hexfloat << value << ' ' << bound;
            ++certain;
        }
    }
    EXPECT_GT(certain, 25000);
    EXPECT_EQ(sixDigits::writeIfCertain(text, 0.0, 0.0), nullptr);
}

/// Reads a number where `value` was before from both.
template <class T>
void expectSameNumber(textScanner& scanner, std::istream& stream, T value) {
    T expected = value;
    scanner.read(value);
    stream >> expected;
    EXPECT_EQ(std::pair(value, std::signbit(value)), std::pair(expected, std::signbit(expected)));
}

void expectSameStep(textScanner& scanner, std::istream& stream, unsigned kind) {
    std::string skipped;
    switch (kind) {
    case 0: expectSameNumber(scanner, stream, 77.0); break;
    case 1: expectSameNumber(scanner, stream, 77.0F); break;
    case 2: expectSameNumber(scanner, stream, 77); break;
    case 3: scanner.skipWord(), stream >> skipped; break;
    case 4: scanner.skipLine(), std::getline(stream, skipped); break;
    case 5: scanner.skipSpace(), stream >> std::ws; break;
    default: EXPECT_EQ(scanner.peek(), stream.peek());
    }
    EXPECT_EQ(std::pair(scanner.good(), scanner.failed()), std::pair(stream.good(), stream.fail()));
}

void expectSameSteps(const std::string& text, std::mt19937& random, int steps) {
    std::istringstream stream(text), source(text);
    stream.imbue(std::locale::classic());
    textScanner scanner(source);
    for (; steps > 0 && !testing::Test::HasFailure(); --steps) {
        const unsigned kind = static_cast<unsigned>(random() % 7);
        SCOPED_TRACE(std::to_string(kind) + " in " + text.substr(0, 200));
        expectSameStep(scanner, stream, kind);
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
    std::string blocks;
    while (blocks.size() < 1'500'000) {
        blocks +=
            streamText(static_cast<double>(random()) / 7e4) + (random() % 9 == 0 ? "\n" : " ");
        blocks += random() % 5000 == 0 ? std::string(300'000, '1') + " " : "";
    }
    expectSameSteps(blocks, random, 100'000);
}

} // namespace
