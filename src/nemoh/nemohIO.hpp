#pragma once

#include <complex>
#include <fstream>
#include <iosfwd>
#include <string>
#include <vector>

/// The project folder of a case for the boundary-element solver Nemoh: its control files are
/// written, and they and the results are read back.
///
/// A project is written in the order `setEnv`, `addBody` once per body, `addLoadCases`,
/// `addPostProc`; each call leaves whole sections in `Nemoh.cal`, so that a run that stops early
/// leaves a readable file. Numbers have the default stream format of the classic locale.
///
/// Result files are looked for in `Results`, then in `results`. One that does not hold what the
/// sizes and `Nemoh.cal` announce is a fatal error that names the file and the line.
class nemohIO {
public:
    /// Makes the folder `path` and in it `mesh` and `results`, unless they exist. A folder that
    /// cannot be made or written to ends the process with status 1; so does a missing parent.
    explicit nemohIO(std::string path);

    /// The project in the folder `path`, for reading: makes and changes nothing.
    static nemohIO existing(std::string path);

    // ---- Control files (nemohIO_cal.cpp) ----

    /// Returns the text of `value` and a blank, with a point between them if the value is an
    /// integer of 32 bits: "1000. ", "9.81 ", "1e+06. ", "3e+09 ", "-0. ", "nan ".
    static std::string printVal(double value);

    /// The number that `printCalHdr` takes for a section without one.
    static constexpr int noNumber = -1;

    /// Writes the header line of a section and rewrites `input_solver.txt`. A `Nemoh.cal` that
    /// could not be opened, or an earlier section that could not be written, ends the process with
    /// status 1.
    void printCalHdr(const std::string& name, int number);

    /// Opens `Nemoh.cal`, overwriting, and writes the environment and the number of bodies. `rho`
    /// in kg/m³, `gravity` in m/s² (positive), `depth` and the point (x, y) of zero wave phase in
    /// m.
    void setEnv(const double& rho, const double& gravity, const double& depth, const double& x,
                const double& y, int bodies);

    /// Leaves its arguments as they are.
    void getEnv(double& rho, double& gravity, double& depth, double& x, double& y) const;

    /// Writes one body; `meshName` is relative to the project folder.
    ///
    /// `dofs` holds numbers from 1 to 6 (surge, sway, heave, roll, pitch, yaw) and serves for
    /// motions and forces alike. `refPoint` holds x, y, z [m] of the point that rotations turn
    /// about. `rotation` is empty or the 3 x 3 matrix, row-major, that turns the axes of the
    /// degrees of freedom. Other numbers and sizes are undefined behaviour.
    void addBody(const std::string& meshName, int points, int panels, const std::vector<int>& dofs,
                 const std::vector<double>& refPoint, const std::vector<double>& rotation);

    /// Writes the angular frequencies [rad/s] from `w0` to `w1` and the wave directions [degrees]
    /// from `dir0` to `dir1`, as the numbers of evenly spaced values and the ends.
    void addLoadCases(int freqs, double w0, double w1, int directions, double dir0, double dir1);

    /// Writes the rest of the file. The impulse response is computed for a `step` [s] above 0, over
    /// `duration` [s].
    void addPostProc(double step, double duration);

    /// Closes `Nemoh.cal` and returns whether it holds all that was written.
    bool finish();

    // ---- Reading the case back (nemohIO_case.cpp) ----

    /// Reads lines, blank ones skipped after each, until one begins with `key`; the stream then
    /// stands at the line after it. Returns the number of lines read, or -1 if no line begins with
    /// `key` or nothing follows that line.
    static int skipToKey(std::istream& in, const std::string& key);

    /// Skips the rest of the line and `count` - 1 more lines, not counting blank ones. Does nothing
    /// for a count below 1.
    static void skipLines(std::istream& in, int count);

    /// Reads the load cases from `Nemoh.cal`, sizes and fills the vectors (rad/s and degrees) and
    /// returns the number of bodies. A single frequency is not stored: its element keeps its value,
    /// 0 in a vector that was empty. A file that is missing or that lacks a value, and a count
    /// below 0 or above `maxCases`, are fatal.
    int readCase(int& freqs, std::vector<double>& frequencies, int& directions,
                 std::vector<double>& angles) const;
    static constexpr int maxCases = 1'000'000;

    /// Reads from `Nemoh.cal` how many motions and forces are computed for `body`, counted from 1,
    /// and the reference point (x, y, z in m) of its last motion. Returns 0, or -1 if the body is
    /// missing or a count is missing or negative; a missing count is -1. A missing file is fatal.
    int readBody(int body, int& motions, int& forces, std::vector<double>& refPoint) const;

    /// Appends the numbers of `folder`/KH.dat, 6 x 6 row-major for one body, to `stiffness`, up to
    /// the end or the first non-numeric word, and returns the displaced volume [m³] from
    /// Hydrostatics.dat. A missing file is a warning; without the second, the volume is -1.
    static double readC(const std::string& folder, std::vector<double>& stiffness);

    // ---- Coefficients and forces (nemohIO_results.cpp) ----
    //
    // The sizes are those of the case: `freqs` and `directions` from `readCase`, `bodies` its
    // result. Frequencies vary fastest, then forces (those of body 1, then of body 2, ...). With 2
    // bodies of 6 degrees of freedom and 10 frequencies, index (7 * 12 + 3) * 10 + 4 is the force 4
    // on body 1 due to motion 2 of body 2, at the fifth frequency.

    /// Reads added mass and damping, (motion, force, frequency) each; the motions are those of all
    /// `bodies`.
    void readCoeffs(int freqs, int bodies, std::vector<double>& addedMass,
                    std::vector<double>& damping) const;

    /// Reads the amplitudes and phases [rad] of the excitation, (direction, force, frequency) each.
    void readExcitation(int freqs, int directions, int bodies, std::vector<double>& amplitudes,
                        std::vector<double>& phases) const;

    /// Reads another force file, "DiffractionForce.tec" or "FKForce.tec", as
    /// amplitude * exp(i phase), (direction, force, frequency), with `forces` on every body.
    void readForce(const std::string& ending, int freqs, int directions, int bodies, int forces,
                   std::vector<std::complex<double>>& values) const;

    /// Transposes a row-major matrix: target[j * rows + i] = source[i * cols + j]. Does nothing if
    /// a size is below 1. The arrays must not overlap.
    static void transposeTo(int rows, int cols, const double* source, double* target);

private:
    nemohIO() = default;

    std::string folder_;
    std::ofstream cal_;
    int nBodies_ = 0;
};
