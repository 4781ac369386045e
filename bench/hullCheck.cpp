// The check of a hull of 200,000 panels and its page, and its conversion to Nemoh, which the ratios
// are to.
//     hullCheck [--benchmark_repetitions=5]

#include "check/hullCheck.hpp"
#include "base/files.hpp"
#include "check/quietly.hpp"
#include "ellipsoid.hpp"
#include "mesh/bodyMesh.hpp"
#include "support/meshes.hpp"
#include "view/hullPage.hpp"

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

/// The check of a hull, and its page without scripts, which are the same for every hull.
void viewHull(const std::string& hull, const std::string& page) {
    std::vector<viewedHull> hulls;
    hulls.push_back({hull, checkHull(hull, {})});
    files::write(page, [&](std::ostream& out) { writePage(out, hullPage(hulls, 0), {}); });
}

void checkAgainstConversion(benchmark::State& state) {
    const auto folder = std::filesystem::temp_directory_path();
    const std::string hull = (folder / "sorvikHullBench.stl").string();
    const std::string page = (folder / "sorvikHullBench.html").string();
    quietly([&] {
        bodyMesh mesh;
        fillMesh(mesh, ellipsoid(200, 501));
        mesh.stl_print(hull, false);
    });
    double converting = 0;
    double checking = 0;
    double viewing = 0;
    for (auto _ : state) {
        converting += secondsOf([&] {
            quietly([&] {
                bodyMesh mesh(hull, {0, 0, 0}, {0, 0, 0}, 0);
                mesh.write((folder / "sorvikHullBench.dat").string(), true);
            });
        });
        checking += secondsOf([&] { benchmark::DoNotOptimize(checkHull(hull, {})); });
        viewing += secondsOf([&] { viewHull(hull, page); });
    }
    state.counters["check_to_conversion"] = checking / converting;
    state.counters["view_to_conversion"] = viewing / converting;
    std::filesystem::remove(page);
    std::filesystem::remove(hull);
    std::filesystem::remove(folder / "sorvikHullBench.dat");
}
BENCHMARK(checkAgainstConversion)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
