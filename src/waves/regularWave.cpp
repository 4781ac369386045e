#include "waves/regularWave.hpp"

#include "io/printer.hpp"
#include "io/reader.hpp"
#include "waves/angles.hpp"
#include "waves/inputCheck.hpp"

#include <cmath>
#include <iostream>

namespace {

/// A key that fixes the wave, and the angular frequency [rad/s] or wave number [rad/m] that its
/// value gives.
struct waveKey {
    const char* name;
    bool isFrequency;
    double (*quantity)(double value);
};

/// In the order of precedence.
const waveKey waveKeys[] = {
    {"period", true, [](double period) { return 2 * sorvik::pi / period; }},
    {"frequency", true, [](double frequency) { return 2 * sorvik::pi * frequency; }},
    {"omega", true, [](double omega) { return omega; }},
    {"k", false, [](double k) { return k; }},
    {"length", false, [](double length) { return 2 * sorvik::pi / length; }},
};

bool isUsable(double value) {
    return std::isfinite(value) && value != 0.0;
}

} // namespace

regularWave::regularWave(const reader& config) : waveModel(config) {
    declareSumOfTrains<regularWave>();
    const inputMap& inputs = config.inputs;
    amplitude_ = inputs.read<double>(prefix + "amplitude", 0.0);
    if (amplitude_ == 0.0) {
        std::cout << "WARNING: the specified amplitude is zero. I assume this is intentional and "
                     "will proceed"
                  << std::endl;
    }
    const double useRadians = inputs.read<int>(prefix + "useRadians", 0);
    // Linear in the flag: pi/180 for 0, degrees, and 1 for 1, radians.
    const double angleFactor = (1 - useRadians) * sorvik::pi / 180 + useRadians;
    const double phase = inputs.read<double>(prefix + "phase", 0.0) * angleFactor;
    const double direction = inputs.read<double>(prefix + "direction", 0.0) * angleFactor;
    fillTrain(config, addTrain(direction), phase);
    finishTrains();
    regularWave::print(std::cout);
}

void regularWave::fillTrain(const reader& config, waveTrain& train, double phase) const {
    for (const waveKey& given : waveKeys) {
        const std::string key = prefix + given.name;
        if (config.inputs.map.count(key) == 0) {
            continue;
        }
        const auto value = config.inputs.read<double>(key, 0.0);
        const double quantity = given.quantity(value);
        if (!isUsable(value) || !isUsable(quantity)) {
            sorvik::refuseInput(config, key, value, "a finite number other than zero");
        }
        if (given.isFrequency) {
            train.setFrom_w(1, &amplitude_, &quantity, &phase);
        } else {
            train.setFrom_k(1, &amplitude_, &quantity, &phase);
        }
        if (sorvik::firstInfinite(train) >= 0) {
            sorvik::refuseInput(config, key, value,
                                "a number that gives a finite frequency and wave number");
        }
        return;
    }
    printer::fatalError("Essential wave parameters missing. Need at least one of: wave.period (s), "
                        "wave.length (m), wave.omega (rad/s), wave.frequency(Hz), wave.k (rad/m)");
}

void regularWave::print(std::ostream& out) const {
    printFirstTrain(out, "Regular wave model parameters:");
}
