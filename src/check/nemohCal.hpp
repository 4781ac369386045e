#pragma once

#include "check/finding.hpp"
#include "check/hullSurface.hpp"

#include <iosfwd>
#include <string>
#include <vector>

namespace sorvik {

/// Characters that Nemoh 3 keeps of the name of a mesh file.
constexpr std::size_t longestMeshName = 80;

/// A motion or force of a body.
struct calDof {
    int type = 1;      ///< 1 for a translation, 2 for a rotation
    point3 axis = {};  ///< its direction
    point3 point = {}; ///< that the rotation turns about [m]

    /// 1 to 6 for surge, sway, heave, roll, pitch and yaw, by the longest component of the axis.
    int number() const;
};

struct calBody {
    std::string mesh;     ///< the name of the mesh file as Nemoh 3 reads it
    std::string meshText; ///< the name as it stands before the comment
    int meshLine = 0;
    long long nodes = 0;
    long long panels = 0;
    int countsLine = 0;
    std::vector<calDof> motions;
    std::vector<calDof> forces;

    /// What the last rotation turns about, or else the point of the last motion.
    point3 centreOfRotation() const;
};

/// A number of the file, and its line, from 1; line 0 where it was not read.
struct calNumber {
    double value = 0;
    int line = 0;
};

/// What Nemoh.cal asks of Nemoh 3.
struct nemohCal {
    calNumber density; ///< kg/m³
    calNumber gravity; ///< m/s²
    calNumber depth;   ///< m, 0 for deep water
    calNumber bodyCount;
    std::vector<calBody> bodies;
    calNumber mode; ///< of frequencies: 1 rad/s, 2 Hz, 3 periods in s
    calNumber frequencies;
    double low = 0; ///< first and last frequency or period, in the unit of the mode
    double high = 0;
    calNumber directions;
    double firstDirection = 0; ///< degrees
    double lastDirection = 0;
    bool wantsMotions = false; ///< response amplitude operators
    std::string failure;       ///< where reading stopped: what was expected and found, or ""
    int failureLine = 0;

    /// The frequencies in rad/s, in the order of the file. The number is below 0 or beyond what
    /// `nemohIO` reads: an empty list.
    std::vector<double> omegas() const;
    /// The directions in degrees, likewise.
    std::vector<double> angles() const;
};

/// Reads a Nemoh.cal by the rules of Nemoh 3: headers take one line each; values are separated by
/// blanks or commas and go on in the next line where one lacks them; what follows is a comment.
nemohCal readNemohCal(std::istream& in);

/// Reads the Nemoh.cal of a project; throws `cannotCheck` where there is none.
nemohCal openNemohCal(const std::string& folder);

/// A line of the project's Nemoh.cal.
location ofCal(int line);
/// Adds `unread-project` where reading has stopped.
void addCalFailure(const nemohCal& cal, report& result);

} // namespace sorvik
