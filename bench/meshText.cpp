// Text meshes of 200,000 panels read and written by this library and by plain stream operators;
// both sides build the same panels. And nodes matched at two sizes, for the growth with the panel
// count.
//     meshText [--benchmark_repetitions=5]

#include "ellipsoid.hpp"
#include "mesh/bodyMesh.hpp"
#include "mesh/nodeMatcher.hpp"
#include "support/meshes.hpp"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <string>

#include <benchmark/benchmark.h>

using namespace sorvik;

namespace {

constexpr int around = 200;
constexpr int rings = 501;

/// The hull, wholly submerged, and its files.
struct hullFiles {
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "sorvikBench";
    bodyMesh mesh;
    std::string stl = (folder / "hull.stl").string();
    std::string gdf = (folder / "hull.gdf").string();
    std::string nemoh = (folder / "hull.dat").string();
    /// Written to the null device, so that what is timed is the text and not the disk.
    std::string target = "/dev/null";

    hullFiles() {
        std::filesystem::create_directories(folder);
        fillMesh(mesh, ellipsoid(around, rings));
        mesh.updateWetSurface(10);
        mesh.stl_print_ascii(stl, false);
        mesh.gdf_print(gdf, false, 1, 9.81);
        mesh.nemoh_print(nemoh, true);
    }
    ~hullFiles() { std::filesystem::remove_all(folder); }
};

const hullFiles& files() {
    static const hullFiles all;
    return all;
}

v3<float> streamPoint(std::istream& in) {
    v3<float> p;
    in >> p.x >> p.y >> p.z;
    return p;
}

void streamReadStl(const std::string& file, bodyMesh& mesh) {
    std::ifstream in(file);
    std::string word;
    std::getline(in, word);
    while (in >> word && word == "facet") {
        in >> word;
        const v3<float> normal = streamPoint(in);
        v3<float> corners[3];
        in >> word >> word;
        for (v3<float>& corner : corners) {
            in >> word;
            corner = streamPoint(in);
        }
        in >> word >> word;
        mesh.faces.emplace_back(normal, corners[0], corners[1], corners[2]);
    }
}

void streamReadGdf(const std::string& file, bodyMesh& mesh) {
    std::ifstream in(file);
    std::string line;
    for (int i = 0; i < 3; ++i) {
        std::getline(in, line);
    }
    int count = 0;
    in >> count;
    for (int i = 0; i < count; ++i) {
        const v3<float> a = streamPoint(in);
        const v3<float> b = streamPoint(in);
        const v3<float> c = streamPoint(in);
        streamPoint(in);
        if (i % 2 == 0) {
            mesh.faces.emplace_back(a, b, c);
        }
    }
}

void streamReadNemoh(const std::string& file, bodyMesh& mesh) {
    std::ifstream in(file);
    int a = 0;
    int b = 0;
    in >> a >> b;
    std::map<int, v3<float>> nodes;
    for (in >> a; a > 0; in >> a) {
        nodes[a] = streamPoint(in);
    }
    streamPoint(in);
    int c = 0;
    int d = 0;
    while (in >> a >> b >> c >> d) {
        mesh.faces.emplace_back(nodes[a], nodes[b], nodes[c]);
    }
}

std::ostream& operator<<(std::ostream& out, const v3<float>& p) {
    return out << p.x << ' ' << p.y << ' ' << p.z;
}

void streamWriteStl(const std::string& file, const bodyMesh& mesh) {
    std::ofstream out(file);
    out << "solid OBJECT\n";
    for (const triangle& t : mesh.faces) {
        out << "\tfacet normal " << t.normal << "\n\t\touter loop\n\t\t\tvertex " << t.vertexA
            << "\n\t\t\tvertex " << t.vertexB << "\n\t\t\tvertex " << t.vertexC
            << "\n\t\tendloop\n\tendfacet\n";
    }
    out << "endsolid OBJECT\n";
}

void streamWriteGdf(const std::string& file, const bodyMesh& mesh) {
    std::ofstream out(file);
    out << "head\n1 9.81\t ULEN GRAV\n0 0\t ISX ISY\n" << mesh.faces.size() << '\n';
    for (const triangle& t : mesh.faces) {
        out << t.vertexA << ' ' << t.vertexB << ' ' << t.vertexC << ' ' << t.vertexA << '\n';
    }
}

/// The nodes are matched as here: what is compared is the writing.
void streamWriteNemoh(const std::string& file, const bodyMesh& mesh) {
    nodeMatcher matcher(mesh.wetFaces.size());
    for (const triangle* t : mesh.wetFaces) {
        matcher.addPanel(t->vertexA, t->vertexB, t->vertexC);
    }
    std::ofstream out(file);
    out << "2 0\n";
    int number = 0;
    for (const auto& node : matcher.nodes()) {
        out << ++number << ' ' << node.place << '\n';
    }
    out << "0 0. 0. 0.\n";
    for (std::size_t i = 0; i < matcher.corners().size(); i += 3) {
        const int* n = matcher.corners().data() + i;
        out << n[0] << ' ' << n[1] << ' ' << n[2] << ' ' << n[0] << '\n';
    }
    out << "0 0 0 0\n";
}

/// Times `read` on a new mesh; the console lines of the library's readers go nowhere.
template <class Read>
void timeReading(benchmark::State& state, Read read) {
    files();
    std::cout.setstate(std::ios::failbit);
    for (auto step : state) {
        bodyMesh mesh;
        read(mesh);
        benchmark::DoNotOptimize(mesh.faces.data());
    }
    std::cout.clear();
}

template <class Write>
void timeWriting(benchmark::State& state, Write write) {
    files();
    for (auto step : state) {
        write(files().target, files().mesh);
    }
}

/// The part of writing a Nemoh file that both sides share, to be taken off their times.
void timeMatchingOfWritten(benchmark::State& state) {
    files();
    for (auto step : state) {
        nodeMatcher matcher(files().mesh.wetFaces.size());
        for (const triangle* t : files().mesh.wetFaces) {
            matcher.addPanel(t->vertexA, t->vertexB, t->vertexC);
        }
        benchmark::DoNotOptimize(matcher.nodes().data());
    }
}

void timeMatching(benchmark::State& state) {
    const int panelRings = static_cast<int>(state.range(0)) / (2 * around) + 1;
    const std::vector<triangle> panels = ellipsoid(around, panelRings);
    for (auto step : state) {
        nodeMatcher matcher(panels.size());
        for (const triangle& t : panels) {
            matcher.addPanel(t.vertexA, t.vertexB, t.vertexC);
        }
        benchmark::DoNotOptimize(matcher.nodes().data());
    }
}

BENCHMARK_CAPTURE(timeReading, STL_stream, [](bodyMesh& m) { streamReadStl(files().stl, m); });
BENCHMARK_CAPTURE(timeReading, STL, [](bodyMesh& m) { m.stl_read_ascii(files().stl); });
BENCHMARK_CAPTURE(timeReading, GDF_stream, [](bodyMesh& m) { streamReadGdf(files().gdf, m); });
BENCHMARK_CAPTURE(timeReading, GDF, [](bodyMesh& m) { m.gdf_read(files().gdf); });
BENCHMARK_CAPTURE(timeReading, Nemoh_stream,
                  [](bodyMesh& m) { streamReadNemoh(files().nemoh, m); });
BENCHMARK_CAPTURE(timeReading, Nemoh, [](bodyMesh& m) { m.nemoh_read(files().nemoh); });
BENCHMARK_CAPTURE(timeWriting, STL_stream, streamWriteStl);
BENCHMARK_CAPTURE(timeWriting, STL,
                  [](const std::string& f, const bodyMesh& m) { m.stl_print_ascii(f, false); });
BENCHMARK_CAPTURE(timeWriting, GDF_stream, streamWriteGdf);
BENCHMARK_CAPTURE(timeWriting, GDF,
                  [](const std::string& f, const bodyMesh& m) { m.gdf_print(f, false, 1, 9.81); });
BENCHMARK_CAPTURE(timeWriting, Nemoh_stream, streamWriteNemoh);
BENCHMARK_CAPTURE(timeWriting, Nemoh,
                  [](const std::string& f, const bodyMesh& m) { m.nemoh_print(f, true); });
BENCHMARK(timeMatchingOfWritten);
BENCHMARK(timeMatching)->Arg(10'000)->Arg(200'000);

} // namespace

BENCHMARK_MAIN();
