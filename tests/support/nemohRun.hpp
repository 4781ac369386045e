#pragma once

#include "check/resultsCheck.hpp"
#include "nemoh/nemohIO.hpp"
#include "support/program.hpp"

#include <array>
#include <cmath>
#include <locale>
#include <sstream>

/// A mesh of Nemoh without its last line: 2 m x 2 m, 1 m deep, open at the water plane.
inline const std::string boxMesh =
    "2 0\n1 -1 -1 -1\n2 1 -1 -1\n3 1 1 -1\n4 -1 1 -1\n5 -1 -1 0\n6 1 -1 0\n"
    "7 1 1 0\n8 -1 1 0\n0 0 0 0\n1 4 3 2\n1 2 6 5\n2 3 7 6\n3 4 8 7\n4 1 5 8\n";

constexpr std::size_t freqs = 9;

/// Added mass and damping of heave and pitch: (motion, force, frequency, A or B).
using matrices = std::array<std::array<std::array<std::array<double, 2>, freqs>, 2>, 2>;

inline matrices soundMatrices() {
    matrices m;
    for (std::size_t f = 0; f < freqs; ++f) {
        const double w = 0.5 + 0.25 * static_cast<double>(f);
        const double fade = std::exp(-w);
        m[0][0][f] = {1000 + 500 * fade, 300 * w * fade};
        m[1][1][f] = {4000 + 900 * fade, 800 * w * w * fade};
        m[0][1][f] = {-200 * fade, -90 * w * fade};
        m[1][0][f] = {-200 * fade + 5, -90 * w * fade};
    }
    return m;
}

inline std::string radiationText(const matrices& m) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << "VARIABLES=\"w (rad/s)\"\n\"A   1   3\" \"B   1   3\"\n\"A   1   5\" \"B   1   5\"\n";
    for (const auto& motion : m) {
        text << "Zone t=\"Motion of body    1 in DoF   1\",I=     9,F=POINT\n";
        for (std::size_t f = 0; f < freqs; ++f) {
            text << 0.5 + 0.25 * static_cast<double>(f);
            for (const auto& force : motion) {
                text << ' ' << force[f][0] << ' ' << force[f][1];
            }
            text << '\n';
        }
    }
    return text.str();
}

/// A project of one body with heave and pitch, 9 frequencies and a direction, and its results but
/// for added mass and damping. Its mesh is missing.
struct nemohRun : testing::Test {
    nemohRun() {
        nemohIO nemoh(folder.path());
        nemoh.setEnv(1000, 9.81, 60, 0, 0, 1);
        nemoh.addBody("box.dat", 8, 5, {3, 5}, {0, 0, -0.5}, {});
        nemoh.addLoadCases(freqs, 0.5, 2.5, 1, 30, 30);
        nemoh.addPostProc(0, 20);
        nemoh.finish();
        std::string force = "VARIABLES=\n\"F\" \"F\"\n\"F\" \"F\"\nZone t=\"30\",I=  9,F=POINT\n";
        for (std::size_t f = 0; f < freqs; ++f) {
            force += "1 " + std::to_string(f) + ".125 0.5 7 -0.25\n";
        }
        writeFile(folder.path("results/ExcitationForce.tec"), force);
        std::string stiffness;
        for (int i = 0; i < 36; ++i) {
            stiffness += std::to_string(i) + " ";
        }
        writeFile(folder.path("mesh/KH.dat"), stiffness);
        writeFile(folder.path("mesh/Hydrostatics.dat"), "X\nY\nZ\nDisplacement = 4.\n");
    }

    sorvik::resultsReport check(const std::string& radiation) const {
        writeFile(folder.path("results/RadiationCoefficients.tec"), radiation);
        return sorvik::checkResults(folder.path());
    }

    const temporaryFolder folder;
};
