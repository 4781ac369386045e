#pragma once

#include <cstddef>
#include <limits>
#include <vector>

class waveModel;

namespace sorvik {

/// A component of a sea: a cos(k s - 2 pi f t + phase) at the distance s along its direction.
struct seaComponent {
    int train = 0;        ///< from 1
    double direction = 0; ///< of travel, degrees from the x axis towards y
    double amplitude = 0; ///< m
    double frequency = 0; ///< Hz, not negative
    double length = 0;    ///< m
    double phase = 0;     ///< degrees
    double kh = 0;        ///< wave number times depth

    /// The variance of its elevation, a²/2 [m²].
    double energy() const { return amplitude * amplitude / 2; }
};

/// All components, in the order of the trains.
std::vector<seaComponent> componentsOf(const waveModel& sea);

/// What the components of a sea add up to. With m_n, the sum of a²/2 f^n, the heights and periods
/// are those of the list of sea state parameters of IAHR (1989) and of DNV-RP-C205. What a sea
/// without waves does not have is nan.
struct seaFacts {
    static constexpr double none = std::numeric_limits<double>::quiet_NaN();

    std::size_t components = 0;
    /// The fewest components that hold 90 % of the energy.
    std::size_t componentsOf90Percent = 0;
    double height = 0;        ///< significant, 4 sqrt(m_0) [m]
    double peakPeriod = none; ///< of the component with the largest amplitude [s]
    double peakLength = none; ///< wave length of that component [m]
    double peakKh = none;     ///< its k h
    double T01 = none;        ///< mean period m_0 / m_1 [s]
    double T02 = none;        ///< zero-crossing period sqrt(m_0 / m_2) [s]
    double Te = none;         ///< energy period m_-1 / m_0 [s]
    double largestCrest = 0;  ///< the sum of |a| [m]
    double steepness = none;  ///< H/L of one component, 2 pi Hs / (g Tp²) of several
    double leastKh = none;
    double greatestKh = none;
    double direction = none;      ///< mean direction [degrees], weighted by energy
    double spread = none;         ///< circular standard deviation sqrt(2 - 2 R) [degrees]
    double shortestPeriod = none; ///< s, as the next
    double longestPeriod = none;
    /// The period than which the waves with 99 % of the energy are longer [s].
    double shortestUsualPeriod = none;
    /// After which the elevation at a point repeats itself [s]; nan where it does not.
    double repeatPeriod = none;
    /// After which the groups, the envelope of the elevation, repeat themselves [s].
    double groupPeriod = none;
    double kurtosis = none; ///< of the elevation over all phases, 3 - 1.5 sum a^4 / (sum a²)²

    /// Whether they are too few for an irregular sea.
    bool hasFewComponents() const { return componentsOf90Percent < 10; }
};

/// Adds up components; `gravity` [m/s²] is a magnitude.
seaFacts factsOf(const std::vector<seaComponent>& components, double gravity);

} // namespace sorvik
