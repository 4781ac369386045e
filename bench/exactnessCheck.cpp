// The long form of two tests of the suite: elevation tables against the plain loop and numbers
// against the stream, byte for byte.
//
//   exactnessCheck [rounds]
//
// A round is a table of a random sea, up to 200,000 elevations, and 300,000 numbers. The first
// difference ends the run with status 1.

#include "base/sixDigits.hpp"
#include "support/numbers.hpp"
#include "support/randomSea.hpp"
#include "waves/elevationTable.hpp"

#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>

using namespace sorvik;

namespace {

/// Returns the number of elevations compared, 0 for a difference.
std::size_t compareTables(unsigned seed) {
    randomTable t(seed, 450);
    std::ostringstream fast;
    std::ostringstream plain;
    std::streambuf* console = std::cout.rdbuf(nullptr); // the progress bar
    writeElevationTable(t.sea, t.x, t.y, t.instants, fast);
    std::cout.rdbuf(console);
    std::cout.clear();
    writePlainTable(t.sea, t.x, t.y, t.instants, plain);
    return fast.str() == plain.str() ? t.x.size() * static_cast<std::size_t>(t.instants.count())
                                     : 0;
}

std::size_t compareNumbers(unsigned seed) {
    const std::vector<double> numbers = manyNumbers(seed, 50'000);
    for (const double number : numbers) {
        char text[sixDigits::room];
        if (streamText(number) != std::string(&text[0], sixDigits::write(text, number))) {
            return 0;
        }
    }
    return numbers.size();
}

} // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 100;
    std::size_t elevations = 0;
    std::size_t numbers = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto seed = static_cast<unsigned>(1000 + round);
        const std::size_t moreElevations = compareTables(seed);
        const std::size_t moreNumbers = compareNumbers(seed);
        if (moreElevations == 0 || moreNumbers == 0) {
            std::cout << "different with seed " << seed << std::endl;
            return 1;
        }
        elevations += moreElevations;
        numbers += moreNumbers;
    }
    std::cout << elevations << " elevations and " << numbers << " numbers are the same"
              << std::endl;
    return 0;
}
