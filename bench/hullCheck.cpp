// The check of a hull of 200,000 panels, and its conversion to Nemoh, which the ratio is to.
//     hullCheck [--benchmark_repetitions=5]

#include "check/hullCheck.hpp"
#include "check/quietly.hpp"
#include "ellipsoid.hpp"
#include "mesh/bodyMesh.hpp"
#include "support/meshes.hpp"

#include <chrono>
#include <filesystem>

#include <benchmark/benchmark.h>

using namespace sorvik;

namespace {

template <class Action>
double secondsOf(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void checkAgainstConversion(benchmark::State& state) {
    const auto folder = std::filesystem::temp_directory_path();
    const std::string hull = (folder / "sorvikHullBench.stl").string();
    quietly([&] {
        bodyMesh mesh;
        fillMesh(mesh, ellipsoid(200, 501));
        mesh.stl_print(hull, false);
    });
    double converting = 0;
    double checking = 0;
    for (auto _ : state) {
        converting += secondsOf([&] {
            quietly([&] {
                bodyMesh mesh(hull, {0, 0, 0}, {0, 0, 0}, 0);
                mesh.write((folder / "sorvikHullBench.dat").string(), true);
            });
        });
        checking += secondsOf([&] { benchmark::DoNotOptimize(checkHull(hull, {})); });
    }
    state.counters["check_to_conversion"] = checking / converting;
    std::filesystem::remove(hull);
    std::filesystem::remove(folder / "sorvikHullBench.dat");
}
BENCHMARK(checkAgainstConversion)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
