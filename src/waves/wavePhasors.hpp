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

/// The complex amplitudes of the components at the probes, a exp(i k s), in panels of
/// `elevationKernel::width` probes: a row of real parts per component, then a row of imaginary
/// parts per component. The last panel repeats the last probe.
///
/// Panels are kept for all probes if they take no more than `largestTable` bytes in all; otherwise
/// they are computed whenever they are asked for.
class probePhasors {
public:
    /// The vectors must outlive the object. There is at least one component and one probe.
    probePhasors(const std::vector<planeWave>& waves, const std::vector<double>& x,
                 const std::vector<double>& y, std::size_t largestTable);

    std::size_t panelCount() const { return panels_; }
    bool areKept() const { return kept_; }
    /// Valid until the next call.
    const double* panel(std::size_t index);

private:
    void fill(std::size_t index, double* panel) const;

    const std::vector<planeWave>& waves_;
    const std::vector<double>& x_;
    const std::vector<double>& y_;
    std::size_t panels_;
    std::size_t panelSize_;
    bool kept_;
    std::vector<double> table_;
};

/// exp(i angle) of the components at the instants, in panels of `elevationKernel::width` instants:
/// a row per component.
struct timePhasors {
    timePhasors(std::size_t waves, std::size_t panelCount);

    /// Instants `first` to `first` + `count` - 1 at the angles omega t - phase, the last one
    /// repeated up to the end of the panels.
    void setInstants(const std::vector<planeWave>& waves, const timeInstants& instants,
                     std::int64_t first, std::int64_t count);
    /// The angles omega (m + 1/2) step for m = 0, 1, ...
    void setHalfSteps(const std::vector<planeWave>& waves, double step);

    std::size_t panels;
    std::vector<double> cosines;
    std::vector<double> sines;

private:
    template <typename angle>
    void fill(std::size_t waves, const angle& angleOf);
};

/// exp(i (omega t - phase)) of the components at one instant: turns probe phasors to that instant.
class phasorTurn {
public:
    phasorTurn(const std::vector<planeWave>& waves, double t);

    /// `turned` becomes the panel of a exp(i (k s - omega t + phase)).
    void apply(const double* panel, double* turned) const;

private:
    std::vector<double> cosines_;
    std::vector<double> sines_;
};

} // namespace sorvik
