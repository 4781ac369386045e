#pragma once

#include "io/reader.hpp"
#include "waves/timeInstants.hpp"
#include "waves/waveModel.hpp"

#include <iosfwd>
#include <random>
#include <string>
#include <vector>

/// The configuration that an input file of this text gives, in the environment of a new run.
reader configOf(const std::string& text);

/// A sea state of any components, 1000 m deep.
class testSea : public waveModel {
public:
    explicit testSea(double ramp = 0.0);

    /// Adds a train of the direction [rad] with a component for each element of the vectors.
    void add(double direction, const std::vector<double>& a, const std::vector<double>& omega,
             const std::vector<double>& phase);
    /// The same of random components with 0.2 to 3 rad/s.
    void addRandom(std::mt19937& random, int count);
};

/// The input of an elevation table: up to four trains, up to `size` probes within 5 km, about
/// `size` instants within 10,800 s, or late enough for rounding to be felt, even or listed, with a
/// ramp or without.
struct randomTable {
    randomTable(unsigned seed, int size);

    std::mt19937 random;
    testSea sea;
    sorvik::timeInstants instants;
    std::vector<double> x;
    std::vector<double> y;
};

/// The elevation table by the plain loop: `setTime`, `eta` of all points, and the stream's numbers.
void writePlainTable(waveModel& model, const std::vector<double>& x, const std::vector<double>& y,
                     const sorvik::timeInstants& instants, std::ostream& out);
