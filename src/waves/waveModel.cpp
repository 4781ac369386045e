#include "waves/waveModel.hpp"

#include "base/classicLocale.hpp"
#include "base/platform.hpp"
#include "io/printer.hpp"
#include "io/reader.hpp"
#include "numerics/matrixOp.hpp"
#include "waves/angles.hpp"
#include "waves/globals.hpp"
#include "waves/inputCheck.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <ostream>
#include <random>
#include <string>

namespace {

/// Wheeler stretching: the height over the still water level, `z`, of a point between the sea bed
/// at -h and the surface at `eta`, moved to where its motion is that of a point between -h and 0.
double stretched(double z, double eta, double h) {
    return h * (z + h) / (eta + h) - h;
}

void setStillWaterDensity(int n, const double* z, double* density) {
    for (int i = 0; i < n; ++i) {
        const bool isAir = z[i] > globals::m_stillWaterLevel;
        density[i] = isAir ? globals::m_rhoAir : globals::m_rhoWater;
    }
}

/// The blocks of a point set of 3n doubles.
struct pointBlocks {
    pointBlocks(std::ptrdiff_t n, const double* positions)
        : x(positions), y(positions + n), z(positions + 2 * n) {}
    const double* x;
    const double* y;
    const double* z;
};

int freshSeed() {
    try {
        std::random_device device(sorvik::platform::randomSource);
        // -1 would not reproduce the phases.
        constexpr unsigned askForFresh = 0xFFFFFFFF;
        unsigned seed = askForFresh;
        while (seed == askForFresh) {
            seed = device();
        }
        return static_cast<int>(seed);
    } catch (const std::exception& error) {
        // uncovered: a system without random numbers
        printer::fatalError(std::string("Cannot draw a seed for random phases from ") +
                            sorvik::platform::randomSource + ": " + error.what() +
                            ". Give one as environment.wave.seed.");
    }
}

} // namespace

waveModel::waveModel(const reader& config) {
    const inputMap& inputs = config.inputs;
    const double ground = inputs.read<double>("environment.ground.level", -1000.0);
    depth_ = inputs.read<double>(prefix + "depth", globals::m_stillWaterLevel - ground);
    gravity_ = std::fabs(globals::verticalGravity());
    density_ = globals::m_rhoWater;
    rampTime_ = inputs.read<double>(prefix + "rampTime", 0.0);
    stretching_ = depth_;
}

waveTrain& waveModel::addTrain(double direction) {
    if (!(depth_ > 0.0)) {
        sorvik::refuseInput(
            "The water depth", depth_,
            "one above zero [m]: environment.wave.depth, or environment.waterLevel less "
            "environment.ground.level");
    }
    if (gravity_ == 0.0) {
        sorvik::refuseInput("environment.gravity", gravity_, "a number other than zero");
    }
    return trainList_.emplace_back(direction, density_, gravity_, depth_);
}

void waveModel::finishTrains() {
    const auto deepest =
        std::max_element(trainList_.begin(), trainList_.end(), [](auto& one, auto& other) {
            return one.influenceDepth() < other.influenceDepth();
        });
    if (deepest != trainList_.end()) {
        stretching_ = deepest->influenceDepth();
    }
    hasWaves_ = true;
}

void waveModel::setTime(const double& t) {
    for (waveTrain& train : trainList_) {
        train.setTime(t);
    }
    rampFactor_ = rampFactorAt(t);
}

double waveModel::rampFactorAt(double t) const {
    constexpr double shortestRamp = 1e-12; // s
    const double share = std::min(t / std::max(rampTime_, shortestRamp), 1.0);
    return (std::sin((share - 0.5) * sorvik::pi) + 1) * 0.5;
}

double waveModel::sumOfEta(double x, double y) const {
    double sum = 0.0;
    for (const waveTrain& train : trainList_) {
        sum += train.eta(x, y);
    }
    return sum;
}

void waveModel::eta(int n, const double* x, const double* y, double* elevation) const {
    for (int i = 0; i < n; ++i) {
        double& value = elevation[i];
        value *= 0.0;
        for (const waveTrain& train : trainList_) {
            value += train.eta(x[i], y[i]);
        }
        value *= rampFactor_;
    }
}

void waveModel::evaluate(fluidState& state) const {
    state.hasKinematics = true;
    state.hasDensity = true;
    evaluate(state.n, state.positions.data(), state.velocity.data(), state.acceleration.data(),
             state.density.data(), state.depthBelowSurface.data());
}

void waveModel::evaluate(int n, const double* positions, double* velocity, double* acceleration,
                         double* density, double* depthBelowSurface) const {
    if (isDisabled) {
        return;
    }
    matrixOp::scale(globals::m_dimensionNumber * n, 0.0, velocity);
    matrixOp::scale(globals::m_dimensionNumber * n, 0.0, acceleration);
    const std::ptrdiff_t block = n;
    const pointBlocks points(block, positions);
    const double level = globals::m_stillWaterLevel;
    if (!hasWaves_) {
        setStillWaterDensity(n, points.z, density);
        for (int i = 0; i < n; ++i) {
            depthBelowSurface[i] = level - points.z[i];
        }
        return;
    }
    for (int i = 0; i < n; ++i) {
        const double surface = rampFactor_ * sumOfEta(points.x[i], points.y[i]);
        depthBelowSurface[i] = (level + surface) - points.z[i];
        const double z = stretched(points.z[i] - level, surface, stretching_);
        density[i] = z > 0.0 ? globals::m_rhoAir : globals::m_rhoWater;
        if (z > 0.0) {
            continue;
        }
        double* v = velocity + i;
        double* a = acceleration + i;
        for (const waveTrain& train : trainList_) {
            train.kinematics(points.x[i], points.y[i], z, v[0], v[block], v[2 * block], a[0],
                             a[block], a[2 * block]);
        }
    }
    matrixOp::scale(3 * n, rampFactor_, velocity);
    matrixOp::scale(3 * n, rampFactor_, acceleration);
}

void waveModel::evaluateRho(int n, const double* positions, double* velocity, double* acceleration,
                            double* density) const {
    if (isDisabled) {
        return;
    }
    setStillWaterDensity(n, pointBlocks(n, positions).z, density);
    matrixOp::scale(globals::m_dimensionNumber * n, 0.0, velocity);
    matrixOp::scale(globals::m_dimensionNumber * n, 0.0, acceleration);
}

void waveModel::pressure(int n, const double* positions, double* pressure) const {
    const pointBlocks points(n, positions);
    for (int i = 0; i < n; ++i) {
        const double x = points.x[i];
        const double y = points.y[i];
        const double z = points.z[i] - globals::m_stillWaterLevel;
        const double zKinematic = stretched(z, rampFactor_ * sumOfEta(x, y), depth_);
        if (zKinematic > 0.0) {
            pressure[i] = 0.0;
            continue;
        }
        double dynamic = 0.0;
        for (const waveTrain& train : trainList_) {
            dynamic += train.dynamicPressure(x, y, zKinematic);
        }
        pressure[i] = -z * density_ * gravity_ + rampFactor_ * dynamic;
    }
}

int waveModel::uniformPhaseDistribution(int seed, int n, double* phases) {
    if (seed == -1) {
        seed = freshSeed();
    }
    // The standard fixes the outputs of the generator, but not those of its distributions.
    std::mt19937 random(static_cast<std::uint32_t>(seed));
    constexpr double below1 = 1.0 - 0x1p-53;
    for (int i = 0; i < n; ++i) {
        const auto low = static_cast<double>(random());
        const auto high = static_cast<double>(random());
        const double share = (low + high * 0x1p32) * 0x1p-64;
        phases[i] = 2 * sorvik::pi * std::min(share, below1);
    }
    return seed;
}

void waveModel::printFirstTrain(std::ostream& out, const char* title) const {
    const sorvik::classicLocale whileWriting(out);
    out << title << " \n\t";
    if (trainList_.empty()) {
        return; // uncovered: a model without waves
    }
    const waveTrain& train = trainList_.front();
    out << "Direction (deg): " << train.directionDegrees()
        << "\n\tWave components :" << train.componentCount() << " \n\tFirst component: ";
    if (!train.components().empty()) {
        train.components().front().printInfo(out);
    }
}
