// The elevation table with its file, against the plain loop over `eta` and a stream. The ratio of
// the two lines of a workload is the gain.
//
//   elevationBench [folder for the files]

#include "support/randomSea.hpp"
#include "waves/elevationTable.hpp"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <random>
#include <string>

#include <benchmark/benchmark.h>

using namespace sorvik;

namespace {

struct workload {
    const char* name;
    int nodesPerSide;
    int components;
    bool isEven;
};

const workload workloads[] = {
    {"1probe_100components", 1, 100, true},
    {"51x51nodes_100components", 51, 100, true},
    {"101x101nodes_1component", 101, 1, true},
    {"51x51nodes_100components_listed", 51, 100, false},
};

constexpr std::int64_t instantCount = 2001;
constexpr double step = 0.05;

timeInstants instantsOf(const workload& load) {
    if (load.isEven) {
        return {0.0, step, instantCount};
    }
    std::vector<double> list;
    for (std::int64_t i = 0; i < instantCount; ++i) {
        list.push_back(static_cast<double>(i) * step);
    }
    return timeInstants(list);
}

using tableWriter = void (*)(waveModel&, const std::vector<double>&, const std::vector<double>&,
                             const timeInstants&, std::ostream&);

void writeFile(benchmark::State& state, const workload& load, tableWriter write,
               const std::string& file) {
    std::mt19937 random(1);
    testSea sea(0.0);
    sea.addRandom(random, load.components);
    std::vector<double> x;
    std::vector<double> y;
    for (int j = 0; j < load.nodesPerSide; ++j) {
        for (int i = 0; i < load.nodesPerSide; ++i) {
            x.push_back(10.0 * i - 250.0);
            y.push_back(10.0 * j - 250.0);
        }
    }
    const timeInstants instants = instantsOf(load);
    std::streambuf* console = std::cout.rdbuf(nullptr); // the progress bar
    for ([[maybe_unused]] auto run : state) {
        std::ofstream out(file);
        write(sea, x, y, instants, out);
        out.close();
        state.PauseTiming();
        std::remove(file.c_str());
        state.ResumeTiming();
    }
    std::cout.rdbuf(console);
    std::cout.clear();
    const std::int64_t values = instantCount * static_cast<std::int64_t>(x.size());
    state.SetItemsProcessed(state.iterations() * values);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const std::string file = std::string(argc > 1 ? argv[1] : ".") + "/elevationBench.dat";
    for (const workload& load : workloads) {
        for (const auto& [kind, write] :
             {std::pair("plain/", &writePlainTable), std::pair("table/", &writeElevationTable)}) {
            benchmark::RegisterBenchmark((std::string(kind) + load.name).c_str(), writeFile, load,
                                         write, file)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
        }
    }
    benchmark::RunSpecifiedBenchmarks();
}
