#include "waves/elevationKernel.hpp"

// Wider vectors where the processor has them; other compilers and processors take the plain form.
#if defined(__x86_64__) && defined(__GNUC__)
#define SORVIK_WIDE_VECTORS
#endif

namespace sorvik {
namespace {

constexpr std::size_t width = elevationKernel::width;

/// A part of `rows` x `columns` of a tile, small enough for its sums to stay in registers.
template <std::size_t rows, std::size_t columns>
[[gnu::always_inline]] inline void multiplyPart(std::size_t count, const double* instants,
                                                const double* probes, double* tile) {
    double sums[rows][columns] = {};
    for (std::size_t c = 0; c < count; ++c) {
        for (std::size_t i = 0; i < rows; ++i) {
            for (std::size_t j = 0; j < columns; ++j) {
                sums[i][j] += instants[c * width + i] * probes[c * width + j];
            }
        }
    }
    for (std::size_t i = 0; i < rows; ++i) {
        for (std::size_t j = 0; j < columns; ++j) {
            tile[i * width + j] = sums[i][j];
        }
    }
}

template <std::size_t rows, std::size_t columns>
[[gnu::always_inline]] inline void multiplyParts(std::size_t count, std::size_t strips,
                                                 const double* instants, const double* probes,
                                                 double* tiles) {
    for (std::size_t strip = 0; strip < strips; ++strip) {
        for (std::size_t i = 0; i < width; i += rows) {
            for (std::size_t j = 0; j < width; j += columns) {
                multiplyPart<rows, columns>(count, instants + i, probes + j, tiles + i * width + j);
            }
        }
        instants += count * width;
        tiles += elevationKernel::tileSize;
    }
}

void multiplyPlain(std::size_t count, std::size_t strips, const double* instants,
                   const double* probes, double* tiles) {
    multiplyParts<4, 4>(count, strips, instants, probes, tiles);
}

#ifdef SORVIK_WIDE_VECTORS
[[gnu::target("avx2")]] void multiplyWide(std::size_t count, std::size_t strips,
                                          const double* instants, const double* probes,
                                          double* tiles) {
    multiplyParts<4, 8>(count, strips, instants, probes, tiles);
}

[[gnu::target("avx512f")]] void multiplyWidest(std::size_t count, std::size_t strips,
                                               const double* instants, const double* probes,
                                               double* tiles) {
    multiplyParts<4, 8>(count, strips, instants, probes, tiles);
}
#endif

} // namespace

std::vector<elevationKernel::variant> elevationKernel::variants() {
    std::vector<variant> supported;
#ifdef SORVIK_WIDE_VECTORS
    if (__builtin_cpu_supports("avx512f") != 0) {
        supported.push_back({"avx512f", multiplyWidest});
    }
    // uncovered: the choice on processors without AVX-512
    if (__builtin_cpu_supports("avx2") != 0) {
        supported.push_back({"avx2", multiplyWide});
    }
#endif
    supported.push_back({"plain", multiplyPlain});
    return supported;
}

void elevationKernel::multiply(std::size_t count, std::size_t strips, const double* instants,
                               const double* probes, double* tiles) {
    static const auto fastest = variants().front().run;
    fastest(count, strips, instants, probes, tiles);
}

} // namespace sorvik
