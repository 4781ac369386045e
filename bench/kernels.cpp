// How far the numeric kernels are from what the core can do.
//
// Each run times a kernel and a limit of the same amount of work by turns, takes the fastest of
// either, and reports `timesLimit`, the kernel's time in units of the limit's. Limits:
// - memory: the C library's copy (memcpy) and comparison (memcmp) of as many bytes as the kernel
//   writes and reads;
// - arithmetic: multiplications and additions in registers, in twenty independent sums.
// The slower of the two is the limit that counts.

#include "numerics/matrixOp.hpp"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

using numbers = std::vector<double>;

template <class Work>
double seconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Does `count` multiplications, each followed by an addition.
void multiplyAndAdd(std::int64_t count) {
    double factor = 1.0;
    double term = 1e-9;
    benchmark::DoNotOptimize(factor);
    benchmark::DoNotOptimize(term);
    double a0 = 0, a1 = 1, a2 = 2, a3 = 3, a4 = 4, a5 = 5, a6 = 6, a7 = 7, a8 = 8, a9 = 9;
    double b0 = 0, b1 = 1, b2 = 2, b3 = 3, b4 = 4, b5 = 5, b6 = 6, b7 = 7, b8 = 8, b9 = 9;
    for (std::int64_t i = 0; i < count; i += 20) {
        a0 = a0 * factor + term;
        a1 = a1 * factor + term;
        a2 = a2 * factor + term;
        a3 = a3 * factor + term;
        a4 = a4 * factor + term;
        a5 = a5 * factor + term;
        a6 = a6 * factor + term;
        a7 = a7 * factor + term;
        a8 = a8 * factor + term;
        a9 = a9 * factor + term;
        b0 = b0 * factor + term;
        b1 = b1 * factor + term;
        b2 = b2 * factor + term;
        b3 = b3 * factor + term;
        b4 = b4 * factor + term;
        b5 = b5 * factor + term;
        b6 = b6 * factor + term;
        b7 = b7 * factor + term;
        b8 = b8 * factor + term;
        b9 = b9 * factor + term;
    }
    double sums[] = {a0, a1, a2, a3, a4, a5, a6, a7, a8, a9,
                     b0, b1, b2, b3, b4, b5, b6, b7, b8, b9};
    benchmark::DoNotOptimize(sums);
}

/// Copies and compares that move the bytes of a kernel.
struct traffic {
    std::size_t copied;   ///< bytes read once and written once
    std::size_t compared; ///< bytes read from one array and, as many, from another
};

/// Times `kernel`, which does so many multiplications with an addition each, against its limits.
template <class Kernel>
void compare(benchmark::State& state, std::int64_t operations, traffic moved, Kernel kernel) {
    std::vector<char> from(std::max(moved.copied, moved.compared), 1);
    std::vector<char> to = from;
    // Short kernels repeat until the clock's own time is lost in theirs.
    const std::int64_t repeats = 1 + 200000 / operations;
    double fastest = std::numeric_limits<double>::infinity();
    double memory = fastest;
    double arithmetic = fastest;
    const auto repeated = [=](auto work) {
        return seconds([=] {
            for (std::int64_t r = 0; r < repeats; ++r) {
                work();
                benchmark::ClobberMemory();
            }
        });
    };
    for (auto _ : state) {
        const double time = repeated(kernel);
        state.SetIterationTime(time);
        fastest = std::min(fastest, time);
        memory = std::min(memory, repeated([&] {
                              std::memcpy(to.data(), from.data(), moved.copied);
                              int order = std::memcmp(to.data(), from.data(), moved.compared);
                              benchmark::DoNotOptimize(order);
                          }));
        arithmetic = std::min(arithmetic, seconds([=] { multiplyAndAdd(operations * repeats); }));
    }
    const auto work = static_cast<double>(operations * repeats) * 1e-9;
    state.counters["Gops/s"] = work / fastest;
    state.counters["memory"] = work / memory;
    state.counters["arithmetic"] = work / arithmetic;
    state.counters["timesLimit"] = fastest / std::max(memory, arithmetic);
}

void axpy(benchmark::State& state) {
    const auto n = static_cast<int>(state.range(0));
    const auto size = static_cast<std::size_t>(n);
    numbers x(size, 1.0), y(size, 1.0);
    // Two numbers read and one written: a copy of one, and half a comparison.
    compare(state, n, {8 * size, 4 * size},
            [&, n] { matrixOp::axpy(n, 1e-9, x.data(), y.data()); });
}

void dot(benchmark::State& state) {
    const auto n = static_cast<int>(state.range(0));
    const auto size = static_cast<std::size_t>(n);
    const numbers x(size, 1.0), y(size, 1.0);
    compare(state, n, {0, 8 * size}, [&, n] {
        double sum = matrixOp::dot(n, x.data(), y.data());
        benchmark::DoNotOptimize(sum);
    });
}

void MV(benchmark::State& state) {
    const auto n = static_cast<int>(state.range(0));
    const auto size = static_cast<std::size_t>(n);
    const numbers A(size * size, 1.0), x(size, 1.0);
    numbers y(size);
    compare(state, state.range(0) * n, {0, 4 * size * size},
            [&, n] { matrixOp::MV(n, n, A.data(), x.data(), y.data()); });
}

void MM(benchmark::State& state) {
    const auto n = static_cast<int>(state.range(0));
    const auto size = static_cast<std::size_t>(n);
    const numbers A(size * size, 1.0), B(size * size, 1.0);
    numbers C(size * size);
    compare(state, state.range(0) * n * n, {8 * size * size, 8 * size * size},
            [&, n] { matrixOp::MM(n, n, n, A.data(), B.data(), C.data()); });
}

// Arrays that lie in the first cache, in the second one, and in main memory.
BENCHMARK(axpy)->Arg(1000)->Arg(20000)->Arg(4000000)->UseManualTime();
BENCHMARK(dot)->Arg(1000)->Arg(20000)->Arg(4000000)->UseManualTime();
BENCHMARK(MV)->Arg(48)->Arg(250)->Arg(2500)->UseManualTime();
BENCHMARK(MM)->Arg(24)->Arg(100)->Arg(400)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
