#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class waveModel;

namespace sorvik {

class timeInstants;

/// One component of a sea state with the direction it travels in.
struct planeWave {
    double amplitude;  ///< m
    double waveNumber; ///< rad/m
    double omega;      ///< rad/s
    double phase;      ///< rad
    double directionCosine;
    double directionSine;
};

/// The components of all trains, one train after the other.
std::vector<planeWave> planeWavesOf(const waveModel& model);

/// The complex amplitudes of the components at the probes, a exp(i k s), in groups of
/// `elevationKernel::width` probes: a strip of real parts, then a strip of imaginary parts. The
/// last group repeats the last probe.
///
/// Groups are kept for all probes if they take no more than `largestTable` bytes in all; otherwise
/// they are computed whenever they are asked for.
class probePhasors {
public:
    /// The vectors must outlive the object. There is at least one component and one probe.
    probePhasors(const std::vector<planeWave>& waves, const std::vector<double>& x,
                 const std::vector<double>& y, std::size_t largestTable);

    std::size_t groupCount() const { return groups_; }
    bool areKept() const { return kept_; }
    /// The two strips of a group, valid until the next call.
    const double* group(std::size_t index);

private:
    void fill(std::size_t index, double* group) const;

    const std::vector<planeWave>& waves_;
    const std::vector<double>& x_;
    const std::vector<double>& y_;
    std::size_t groups_;
    std::size_t groupSize_; ///< doubles
    bool kept_;
    std::vector<double> table_;
};

/// cos and sin of the angles of the components at the instants, in strips of
/// `elevationKernel::width` instants.
struct timePhasors {
    timePhasors(std::size_t waves, std::size_t stripCount);

    /// Instants `first` to `first` + `count` - 1 at the angles omega t - phase, the last one
    /// repeated up to the end of the strips.
    void setInstants(const std::vector<planeWave>& waves, const timeInstants& instants,
                     std::int64_t first, std::int64_t count);
    /// The angles omega (m + 1/2) step for m = 0, 1, ...
    void setHalfSteps(const std::vector<planeWave>& waves, double step);

    std::size_t strips;
    std::vector<double> cosines;
    std::vector<double> sines;

private:
    template <class Angle>
    void fill(std::size_t waves, const Angle& angleOf);
};

/// exp(i (omega t - phase)) of the components at one instant: turns probe phasors to that instant.
class phasorTurn {
public:
    phasorTurn(const std::vector<planeWave>& waves, double t);

    /// Turns the two strips of a `group` of probes: a exp(i k s) becomes
    /// a exp(i (k s - omega t + phase)).
    void apply(const double* group, double* turned) const;

private:
    std::vector<double> cosines_;
    std::vector<double> sines_;
};

} // namespace sorvik
