#pragma once

#include <string>
#include <vector>

namespace sorvik {

/// A degree of freedom of one of the bodies.
struct resultDof {
    int body = 1;   ///< from 1
    int number = 1; ///< 1 to 6: surge, sway, heave, roll, pitch, yaw

    /// Whether it is roll, pitch or yaw.
    bool isRotation() const { return number > 3; }
    /// Whether both are the same.
    bool operator==(const resultDof& other) const {
        return body == other.body && number == other.number;
    }
};

/// Results of Nemoh in SI units. What was not read is empty.
struct nemohResults {
    std::vector<double> omegas;     ///< rad/s
    std::vector<double> angles;     ///< wave directions [degrees]
    std::vector<resultDof> motions; ///< of all bodies
    std::vector<resultDof> forces;  ///< of all bodies
    std::vector<double> addedMass;  ///< (motion, force, frequency), the last varies fastest
    std::vector<double> damping;    ///< the same
    std::vector<double> amplitudes; ///< of excitation: (direction, force, frequency)
    std::vector<double> phases;     ///< rad
    std::vector<double> stiffness;  ///< hydrostatic, 6 x 6 by rows
    double volume = -1;             ///< displaced [m³], -1 where it is not known

    /// The place of the first frequency of the force `force` due to the motion or direction `zone`.
    std::size_t first(std::size_t zone, std::size_t force) const {
        return (zone * forces.size() + force) * omegas.size();
    }
};

/// Writes radiation.csv, excitation.csv and hydrostatics.csv into `folder`, which is made where it
/// is missing: one observation a row, named columns, numbers of 15 digits. A table without
/// values is left out. Returns the file or folder that could not be written, or "".
std::string writeResultTables(const std::string& folder, const nemohResults& results);

} // namespace sorvik
