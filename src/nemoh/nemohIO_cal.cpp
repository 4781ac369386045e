#include "nemoh/nemohIO.hpp"

#include "base/files.hpp"
#include "base/numberText.hpp"
#include "base/processEnd.hpp"
#include "io/reader.hpp"
#include "numerics/matrixOp.hpp"

#include <array>
#include <cassert>
#include <cmath>
#include <limits>
#include <ostream>
#include <utility>

// Nemoh.cal is read by line: values first, then a comment. Sections, in Nemoh's order:
//
//     --- Environment ----...               density, gravity, depth, point of zero phase
//     --- Description of floating bodies    number of bodies
//     --- Body 1 ---...                     mesh, motions, forces
//     --- Load cases to be solved ---...    frequencies, directions
//     --- Post processing ---...            switches, then the QTF switch in a section of its own

namespace {

/// Dashes and name of a header together; one digit and its blank more make all headers equally
/// long.
constexpr std::ptrdiff_t headerLength = 125;
constexpr std::ptrdiff_t numberedLength = 123;

constexpr const char* solverSettings =
    "2 \t\t ! Gauss quadrature (GQ) surface integration, N^2 GQ Nodes, specify N(1,4) \n"
    "0.001  \t\t  ! eps_zmin for determine minimum z of flow and source points of panel, "
    "zmin=eps_zmin*body_diameter\n"
    "1 \t\t\t\t! 0 GAUSS ELIM.; 1 LU DECOMP.: 2 GMRES\t!Linear system solver \n"
    "10 1e-5 1000  \t \t Restart parameter, Relative Tolerance, max iter -> additional input for "
    "GMRES\n";

/// Three unit vectors, one per row.
using axes = std::array<double, 9>;

axes turnedAxes(const std::vector<double>& rotation) {
    const axes unit = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    if (rotation.empty()) {
        return unit;
    }
    assert(rotation.size() == unit.size());
    axes turned{};
    for (std::size_t first = 0; first < turned.size(); first += 3) {
        matrixOp::MV(3, 3, rotation.data(), &unit[first], &turned[first]);
    }
    return turned;
}

void printVector(std::ostream& out, const double* v) {
    out << nemohIO::printVal(v[0]) << nemohIO::printVal(v[1]) << nemohIO::printVal(v[2]);
}

void printDofs(std::ostream& out, const char* what, const std::vector<int>& dofs,
               const axes& directions, const double* refPoint) {
    out << dofs.size() << " \t ! number of " << what << "s to compute\n";
    for (const int dof : dofs) {
        assert(dof >= 1 && dof <= 6);
        const bool isTranslation = dof < 4;
        out << (isTranslation ? 1 : 2) << ' ';
        printVector(out, &directions[static_cast<std::size_t>(dof - (isTranslation ? 1 : 4)) * 3]);
        printVector(out, refPoint);
        out << "\t ! " << what << " in dof " << dof << " \n";
    }
}

} // namespace

nemohIO::nemohIO(std::string path) : folder_(std::move(path)) {
    for (const char* name : {"", "/mesh", "/results"}) {
        reader::makeFolder(folder_ + name);
    }
}

nemohIO nemohIO::existing(std::string path) {
    nemohIO project;
    project.folder_ = std::move(path);
    return project;
}

std::string nemohIO::printVal(double value) {
    using limits = std::numeric_limits<int>;
    const bool isInteger =
        value >= limits::min() && value <= limits::max() && value == std::trunc(value);
    return sorvik::numberText(value) + (isInteger ? ". " : " ");
}

void nemohIO::printCalHdr(const std::string& name, int number) {
    if (!cal_.good()) {
        sorvik::endWithError("Cannot write to or open " + folder_ + "/Nemoh.cal for some reason.");
    }
    cal_ << "--- " << name << ' ';
    std::ptrdiff_t dashes = headerLength;
    if (number != noNumber) {
        cal_ << number << ' ';
        dashes = numberedLength;
    }
    dashes -= static_cast<std::ptrdiff_t>(name.size());
    cal_ << std::string(dashes > 0 ? static_cast<std::size_t>(dashes) : 0, '-') << '\n';

    // Of the two control files only Nemoh.cal is worth stopping for.
    sorvik::files::create(folder_ + "/input_solver.txt") << solverSettings;
}

void nemohIO::setEnv(const double& rho, const double& gravity, const double& depth, const double& x,
                     const double& y, int bodies) {
    if (!cal_.is_open()) {
        cal_ = sorvik::files::create(folder_ + "/Nemoh.cal");
    }
    printCalHdr("Environment", noNumber);
    // uncovered: GCC counts the first line of a statement separately
    cal_ << printVal(rho) << "\t ! rho kg/m3 \n"
         << printVal(gravity) << "\t ! gravity m/s2 \n"
         << printVal(depth) << "\t ! water depth m \n"
         << printVal(x) << printVal(y) << "\t ! wave elevation point (zero phase) \n";
    printCalHdr("Description of floating bodies", noNumber);
    cal_ << bodies << "\t ! number of bodies\n" << std::flush;
}

// uncovered: no task calls it
void nemohIO::getEnv(double& /*rho*/, double& /*gravity*/, double& /*depth*/, double& /*x*/,
                     double& /*y*/) const {}

void nemohIO::addBody(const std::string& meshName, int points, int panels,
                      const std::vector<int>& dofs, const std::vector<double>& refPoint,
                      const std::vector<double>& rotation) {
    assert(refPoint.size() >= 3);
    printCalHdr("Body", ++nBodies_);
    cal_ << meshName << "\t ! mesh file name \n"
         << points << ' ' << panels << "\t ! number of points and panels in the mesh\n";
    const axes directions = turnedAxes(rotation);
    printDofs(cal_, "body motion", dofs, directions, refPoint.data());
    printDofs(cal_, "force", dofs, directions, refPoint.data());
    cal_ << "0\t\t ! number of additional lines\n" << std::flush;
}

void nemohIO::addLoadCases(int freqs, double w0, double w1, int directions, double dir0,
                           double dir1) {
    printCalHdr("Load cases to be solved", noNumber);
    cal_ << "1 " << freqs << ' ' << printVal(w0) << printVal(w1)
         << "\t ! mode (radians/s), number of frequencies, [min max] in rad/s.\n"
         << directions << ' ' << printVal(dir0) << printVal(dir1)
         << "\t ! Number of wave directions, [min,max] in degrees.\n"
         << std::flush;
}

void nemohIO::addPostProc(double step, double duration) {
    printCalHdr("Post processing", noNumber);
    cal_ << (step > 0 ? 1 : 0) << ' ' << printVal(step) << printVal(duration)
         << "\t ! Impulse Response Function (IRF): switch, time step size , and duration  (s)\n"
         << "0 \t\t ! Dont show pressure\n"
         << "0 " << printVal(0) << printVal(180) << "\t ! Kochin function output\n"
         << "0 50 200 200\t ! Free surface elevation \n"
         << "0 \t\t ! Response Amplitude Operator (RAO), 0 no calculation, 1 calculated \n"
         << "1 \t\t !output freq type, 1,2,3=[rad/s,Hz,s] \n"
         << "---QTF---\n"
         << "0\t\t ! QTF flag, 1 is calculated\n"
         << "----------\n"
         << std::flush;
}

bool nemohIO::finish() {
    cal_.close();
    return cal_.good();
}
