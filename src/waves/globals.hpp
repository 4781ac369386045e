#pragma once

#include <cstdint>
#include <string>
#include <vector>

class reader;

/// The physical constants of the run, set once; until then they have the values below.
class globals {
public:
    static std::int32_t m_dimensionNumber; ///< 3
    static double m_rhoWater;              ///< 1000 kg/m³
    static double m_rhoAir;                ///< 1 kg/m³
    static std::string m_prefix;           ///< "environment.", in front of the keys
    static std::vector<double> m_g;        ///< {0, 0, -9.81} m/s², upwards positive
    static double m_stillWaterLevel;       ///< 0 m
    static bool m_isSet;                   ///< whether `set` has run
    /// The axes of the problem as rows of x, y, z: the identity in three dimensions, x and z in
    /// two. Nine zeros until set.
    static std::vector<double> m_dimMap;

    globals() = default;
    /// The same as `set`.
    globals(int dim, std::vector<double> g, double rhoWater, double rhoAir, double stillWaterLevel);

    /// Sets all members and the norm of `matrixOp` to `dim` dimensions; `g` has three components,
    /// or one for all axes; an empty one is no gravity. A second call prints a warning and changes
    /// nothing.
    static void set(int dim, std::vector<double> g, double rhoWater, double rhoAir,
                    double stillWaterLevel);
    /// Sets three dimensions and what the input says of densities, water level and gravity.
    static void set(const reader& config);

    /// The vertical component of gravity [m/s²], the last one of `m_g`; 0 where that is empty.
    static double verticalGravity();

    /// Prints an example of the input keys.
    static void printInputExample();
};
