#pragma once

#include "waves/fluidState.hpp"
#include "waves/waveTrain.hpp"

#include <iosfwd>
#include <string>
#include <typeinfo>
#include <vector>

class reader;

/// A sea state: wave trains that are ramped up from rest, frozen at one instant at a time. Without
/// trains it is still water.
///
/// Heights are global z coordinates [m]; the still water level, densities and gravity are those of
/// `globals`. Points in space are blocks of 3n doubles: all x, all y, all z; velocities and
/// accelerations likewise; 3n fits an int. Concrete models fill the trains in their constructors,
/// or answer with members of their own.
class waveModel {
public:
    /// Still water: depth 1000 m, gravity 9.81 m/s², density 1000 kg/m³.
    waveModel() = default;
    /// Depth and ramp time from the input, the rest from `globals`, which must have been set.
    explicit waveModel(const reader& config);
    waveModel(const waveModel&) = delete;
    waveModel& operator=(const waveModel&) = delete;
    virtual ~waveModel() = default;

    /// Marks the state as filled and evaluates its points.
    virtual void evaluate(fluidState& state) const;
    /// Moves the sea to the instant `t` [s].
    virtual void setTime(const double& t);
    /// Densities [kg/m³] below and above the still water level at `n` points; velocities and
    /// accelerations are multiplied by 0. Does nothing when disabled.
    virtual void evaluateRho(int n, const double* positions, double* velocity, double* acceleration,
                             double* density) const;
    /// Fluid velocity [m/s], acceleration [m/s²], density [kg/m³] and depth below the surface [m]
    /// at `n` points, with Wheeler stretching. Air is at rest. Does nothing when disabled.
    ///
    /// Velocities and accelerations are first multiplied by 0, so that they must hold numbers.
    virtual void evaluate(int n, const double* positions, double* velocity, double* acceleration,
                          double* density, double* depthBelowSurface) const;
    /// Surface elevation [m] above the still water level at `n` horizontal points.
    ///
    /// `elevation` is first multiplied by 0, so that it must hold numbers: a NaN in it stays.
    virtual void eta(int n, const double* x, const double* y, double* elevation) const;
    /// Pressure [Pa] at `n` points, 0 above the surface.
    virtual void pressure(int n, const double* positions, double* pressure) const;
    /// Prints nothing; concrete models add a `print` that takes a stream.
    virtual void print() const {} // uncovered: no task calls it

    /// Fills `n` phases from [0, 2 pi), the same for the same seed everywhere (MT19937, two 32-bit
    /// outputs per phase). The seed -1 draws a fresh one. Returns the seed used.
    static int uniformPhaseDistribution(int seed, int n, double* phases);

    /// The trains, in the order in which they were added.
    const std::vector<waveTrain>& trains() const { return trainList_; }
    /// Whether `eta` is the sum of the trains times `rampFactorAt` the instant of `setTime`, so
    /// that it may be computed without asking the model. Only for classes that
    /// `declareSumOfTrains`.
    bool isSumOfTrains() const { return typeid(*this) == *summing_; }
    /// The depth of the water [m].
    double depth() const { return depth_; }
    /// The magnitude of gravity [m/s²].
    double gravity() const { return gravity_; }
    /// The density of the water [kg/m³].
    double density() const { return density_; }
    /// The duration of the start-up ramp [s].
    double rampTime() const { return rampTime_; }
    /// The share of the waves that the start-up ramp lets through at the instant `t` [s]: 0 at
    /// t = 0, 1 from the ramp time on. Before t = 0 it oscillates.
    double rampFactorAt(double t) const;
    /// The depth over which `evaluate` stretches [m].
    double stretchingDepth() const { return stretching_; }

protected:
    /// Appends an empty train; the reference holds until the next one.
    waveTrain& addTrain(double direction);
    /// Ends every concrete constructor: settles the stretching depth and switches the waves on.
    void finishTrains();
    /// Declares in the constructor of the class T that T has the `eta` and `setTime` of this class.
    /// It does not hold for the classes derived from T.
    template <class T>
    void declareSumOfTrains() {
        summing_ = &typeid(T);
    }
    /// Writes `title` and the first train with its first component.
    void printFirstTrain(std::ostream& out, const char* title) const;

    /// The common beginning of the keys of all wave settings.
    std::string prefix = "environment.wave.";
    /// Makes `evaluate` and `evaluateRho` leave their arrays alone.
    bool isDisabled = false;

private:
    double sumOfEta(double x, double y) const;

    double depth_ = 1000.0;
    double gravity_ = 9.81;
    double density_ = 1000.0;
    bool hasWaves_ = false;
    std::vector<waveTrain> trainList_;
    double rampTime_ = 0.0;
    double rampFactor_ = 1.0;
    double stretching_ = 1000.0;
    const std::type_info* summing_ = &typeid(waveModel);
};
