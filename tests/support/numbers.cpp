#include "support/numbers.hpp"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <sstream>

std::string streamText(double value) {
    if (std::isnan(value)) { // the stream of Windows leaves out its sign
        return std::signbit(value) ? "-nan" : "nan";
    }
    std::ostringstream out;
    out.imbue(std::locale::classic());
    out << value;
    return out.str();
}

std::vector<double> manyNumbers(unsigned seed, int count) {
    std::mt19937_64 random(seed);
    std::vector<double> numbers = {0.0,          -0.0,     0.9999997, 999999,       999999.5,
                                   999998.5,     9.999995, 0.0001,    1e-300,       9.99999e-5,
                                   9.9999997e-5, 999999.7, 99999.95,  1e300,        5e-324,
                                   0.9999995,    HUGE_VAL, -HUGE_VAL, std::nan(""), -std::nan("")};
    for (int i = 0; i < count; ++i) {
        const std::uint64_t bits = random();
        double any = 0;
        std::memcpy(&any, &bits, sizeof any);
        const double usual = std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())),
                                        -77 + static_cast<int>(random() % 34));
        // A seventh digit of 5 is a tie before the binary error comes in.
        const double half = (static_cast<double>(random() % 1000000) * 10 + 5) *
                            std::pow(10.0, static_cast<double>(random() % 12) - 11);
        numbers.insert(numbers.end(), {any, usual, static_cast<double>(static_cast<float>(usual)),
                                       half, std::nextafter(half, 0), std::nextafter(half, 1e9)});
    }
    return numbers;
}
