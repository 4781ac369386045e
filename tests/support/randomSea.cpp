#include "support/randomSea.hpp"

#include "base/classicText.hpp"
#include "support/numbers.hpp"
#include "waves/globals.hpp"

#include <ostream>
#include <utility>

using namespace sorvik;
using values = std::vector<double>;

namespace {

double uniform(std::mt19937& random, double low, double high) {
    return low + (high - low) * static_cast<double>(random()) / 0x1p32;
}

int upTo(std::mt19937& random, int most) {
    return 1 + static_cast<int>(random() % static_cast<unsigned>(most));
}

timeInstants randomInstants(std::mt19937& random, int size) {
    if (random() % 2 == 0) {
        const double starts[] = {0.0, uniform(random, -100.0, 10'000.0), 1e6};
        return {starts[random() % 3], uniform(random, 0.01, 800.0 / size), size};
    }
    values list = {0.0};
    while (list.size() < static_cast<std::size_t>(size)) {
        list.push_back(uniform(random, 0.0, 10'800.0));
    }
    return timeInstants(list);
}

} // namespace

reader configOf(const std::string& text) {
    globals::m_isSet = false;
    globals::set(3, {0.0, 0.0, -9.81}, 1000.0, 1.0, 0.0);
    globals::m_isSet = false;
    reader config;
    classicText in(text);
    config.inputs = inputMap(in, '=', '.');
    return config;
}

testSea::testSea(double ramp)
    : waveModel(configOf("environment.wave.rampTime = " + std::to_string(ramp))) {
    declareSumOfTrains<testSea>();
}

void testSea::add(double direction, const values& a, const values& omega, const values& phase) {
    addTrain(direction).setFrom_w(static_cast<int>(a.size()), a.data(), omega.data(), phase.data());
    finishTrains();
}

void testSea::addRandom(std::mt19937& random, int count) {
    values a, omega, phase;
    for (int i = 0; i < count; ++i) {
        a.push_back(uniform(random, 0.0, 4.0 / count));
        omega.push_back(uniform(random, 0.2, 3.0));
        phase.push_back(uniform(random, 0.0, 6.3));
    }
    add(uniform(random, -4.0, 4.0), a, omega, phase);
}

randomTable::randomTable(unsigned seed, int size)
    : random(seed), sea(random() % 2 == 0 ? 0.0 : uniform(random, 1.0, 50.0)),
      instants(randomInstants(random, size)) {
    for (int trains = upTo(random, 4); trains > 0; --trains) {
        sea.addRandom(random, upTo(random, 40));
    }
    for (int probes = upTo(random, size); probes > 0; --probes) {
        x.push_back(uniform(random, -5000.0, 5000.0));
        y.push_back(uniform(random, -5000.0, 5000.0));
    }
}

void writePlainTable(waveModel& model, const values& x, const values& y,
                     const timeInstants& instants, std::ostream& out) {
    values elevation(x.size(), 0.0);
    for (std::int64_t i = 0; i < instants.count(); ++i) {
        model.setTime(instants[i]);
        model.eta(static_cast<int>(x.size()), x.data(), y.data(), elevation.data());
        out << streamText(instants[i]);
        for (const double value : elevation) {
            out << '\t' << streamText(value);
        }
        out << '\n';
    }
}
