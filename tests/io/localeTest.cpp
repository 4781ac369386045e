#include "app/jsonFormat.hpp"
#include "app/meshConvert.hpp"
#include "io/printer.hpp"
#include "io/sorvikIO.hpp"
#include "mesh/bodyMesh.hpp"
#include "nemoh/nemohIO.hpp"
#include "nemoh/setNemohCase.hpp"
#include "support/files.hpp"
#include "support/program.hpp"
#include "waves/globals.hpp"
#include "waves/waveElevation.hpp"
#include "waves/waveTrain.hpp"

#include <filesystem>
#include <iterator>
#include <locale>
#include <map>
#include <sstream>

namespace fs = std::filesystem;

namespace {

/// 1500.5 is 1.500,5.
struct commaText : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

const std::pair<const char*, const char*> inputs[] = {
    {"sea.m", "environment.wave = {type = custom\nfile = sea.txt}\nsimulation.time = {start = "
              "1000.25\nend = 2500.5}\nsimulation.print.dt = 1.5e2\nlist = [1500.5, 0.5]\n"},
    {"sea.txt", "22.5\n0.25 1.5\n0.125 0.0625\n12.5 1000.5\n"},
    {"probes.txt", "1000.5 2.5\n-0.5 1e3\n"},
    {"listed/time.dat", "0.5\n1234.5\n"},
    {"jonswap.m", "environment.wave = {type = JONSWAP\nHs = 1.5\nfp = 0.125\nseed = 1}\n"},
    {"regular.m", "environment.wave = {type = regular\nheight = 1.5\nperiod = 12.5}\n"},
    {"hull.stl", "solid\nfacet normal 0 0 1\nouter loop\nvertex 0.5 0 -1.25\nvertex 1500.5 0 0.5\n"
                 "vertex 0 2000.75 -1.5\nendloop\nendfacet\nendsolid\n"},
    {"hull.m", "bem = {output = project\nbody = 1\nw0 = 0.25\nnFreqs = 3}\nhydroBody1.bemInput = "
               "{meshName = hull.stl\nposition = [0.5 1500.5 -0.25]}\n"},
    {"project/results/KH.dat", "1500.5 0.25\n"},
    {"project/results/Hydrostatics.dat", "x\ny\nz\nDisplacement = 1500.5\n"},
    {"project/results/ExcitationForce.tec",
     "1\n2\n3\n4\n5\n6\n7\nZone\n0.25 1500.5 0.5 2 2 3 3 4 4 5 5 6 6\n2 1 1 2 2 3 3 4 4 5 5 6 6\n5 "
     "1.5 1 2 2 3 3 4 4 5 5 6 6\n"}};

using words = std::vector<const char*>;

/// Runs all tasks, and prints what is read of Nemoh's files and what members that take a stream do.
void readAndWriteNumbers() {
    for (words run : {words{"-f", "sea.m", "-o", "grid", "-domain", "1500.5", "1e3", "1", "1000"},
                      words{"-f", "sea.m", "-o", "listed", "-xyFile", "probes.txt"},
                      words{"-f", "jonswap.m", "-o", "spectrum", "-positions", "0.5", "1500.5"},
                      words{"-f", "regular.m", "-o", "regular"}}) {
        globals::m_isSet = false;
        waveElevation(static_cast<int>(run.size()), run.data());
    }
    jsonFormat(2, words{"-f", "sea.m"}.data());
    sorvik::meshConvert(0, 7,
                        words{"", "hull.stl", "a.gdf", "-origin", "0.5", "-1500.25", "0"}.data());
    sorvik::meshConvert(0, 5, words{"", "a.gdf", "b.dat", "-wet", "-0.25"}.data());
    EXPECT_EQ(setNemohCase(inputMap("hull.m")), 1);
    bodyMesh mesh;
    mesh.read("project/hull_wetted.dat");
    mesh.stl_print_ascii("ascii.stl", false);

    const nemohIO project("project");
    std::vector<double> numbers[7];
    int sizes[2] = {};
    project.readCase(sizes[0], numbers[0], sizes[1], numbers[1]);
    project.readBody(1, sizes[0], sizes[1], numbers[2]);
    numbers[3] = {nemohIO::readC("project/results", numbers[4])};
    project.readExcitation(3, 1, 1, numbers[5], numbers[6]);
    std::istringstream table("1500.5 0.5\n"), delimited("0.5, 1500.5\n");
    std::ostringstream out;
    out << sorvikIO::readData(table, numbers[4], 0) << sorvikIO::isDLM<double>(delimited, 0);
    for (const auto& list : numbers) {
        printer::printMatrix(out, 1, static_cast<int>(list.size()), list);
    }
    waveTrain train(0.5, 1000, 9.81, 50);
    std::istringstream("22.5 2 0.25 1500.5 0.5 0.75 0.1 0.2 0.3 0.4 \n") >> train;
    out << train;
    printer::printLine(out, 2, 1500.5, 0.5, numbers[5].data());
    writeFile("streams", out.str());
}

/// All files that this leaves, by their names.
std::map<std::string, std::string> everything() {
    const temporaryFolder folder;
    const auto before = fs::current_path();
    fs::current_path(folder.path());
    fs::create_directory("listed");
    fs::create_directories("project/results");
    for (const auto& [name, text] : inputs) {
        writeFile(name, text);
    }
    std::map<std::string, std::string> found = {{"output", endOf(readAndWriteNumbers).output}};
    for (const auto& entry : fs::recursive_directory_iterator(".")) {
        if (entry.is_regular_file()) {
            found[entry.path().generic_string()] = readFile(entry.path().string());
        }
    }
    fs::current_path(before);
    return found;
}

TEST(locale, doesNotChangeNumbers) {
    const auto classic = everything();
    EXPECT_EQ(classic.at("./grid/waveDomain.dat"), "1500.5\t1000\t1\t1000\n");
    EXPECT_EQ(classic.size(), 2 + std::size(inputs) + 12);
    const auto before = std::locale::global(std::locale(std::locale(), new commaText));
    EXPECT_EQ((std::ostringstream() << 1500.5).str(), "1.500,5");
    EXPECT_EQ(everything(), classic);
    std::locale::global(before);
}

} // namespace
