#include "arrays.hpp"
#include "case.hpp"
#include "check/seaFacts.hpp"
#include "guard.hpp"
#include "io/reader.hpp"
#include "waves/elevationValues.hpp"
#include "waves/environment.hpp"
#include "waves/globals.hpp"
#include "waves/timeInstants.hpp"
#include "waves/waveFactory.hpp"
#include "waves/waveModel.hpp"

#include <algorithm>
#include <limits>
#include <memory>
#include <mutex>

namespace sorvik::python {
namespace {

using numbers = py::array_t<double, py::array::c_style | py::array::forcecast>;

/// The sea of an input file, in an environment of its own.
class sea {
public:
    explicit sea(const inputCase& input);

    py::array components() const;
    py::array times() const;
    py::array elevation(const numbers& t, const numbers& x, const numbers& y);
    py::tuple kinematics(const numbers& t, const numbers& x, const numbers& y, const numbers& z);
    py::array pressure(const numbers& t, const numbers& x, const numbers& y, const numbers& z);

private:
    reader config_;
    std::unique_ptr<waveModel> model_;
    environment environment_;
    /// Held while the model is at an instant: `elevation` works without the interpreter's lock.
    std::mutex isUsed_;
};

sea::sea(const inputCase& input) {
    config_.inputFile = input.file;
    config_.outputFolder = reader::removeExtension(input.file);
    config_.inputs = input.inputs;
    const environmentScope scope(environment::ofNewProcess());
    run([&] {
        globals::set(config_);
        model_.reset(waveFactory::create(config_));
    });
    environment_ = environment::current();
}

py::array sea::components() const {
    std::vector<seaComponent> all = componentsOf(*model_);
    const auto count = static_cast<py::ssize_t>(all.size());
    return arrayOf(std::move(all), {count});
}

py::array sea::times() const {
    std::vector<double> values;
    run([&] {
        const timeInstants instants = readInstants(config_);
        const std::int64_t count = instants.count();
        values.reserve(static_cast<std::size_t>(count));
        for (std::int64_t i = 0; i < count; ++i) {
            values.push_back(instants[i]);
        }
    });
    const auto count = static_cast<py::ssize_t>(values.size());
    return arrayOf(std::move(values), {count});
}

// ---- Points ----

std::vector<double> listOf(const numbers& values) {
    return {values.data(), values.data() + values.size()};
}

/// Coordinates of one shape, one list after the other, and instants.
struct request {
    request(const numbers& t, const py::tuple& coordinates);

    /// (instants, points, ...), with the shapes of the arguments.
    shapeList shape(std::initializer_list<py::ssize_t> more = {}) const {
        shapeList all = shape_;
        all.insert(all.end(), more);
        return all;
    }
    int count() const { return static_cast<int>(count_); }

    std::vector<double> instants;
    std::vector<std::vector<double>> axes;

private:
    shapeList shape_;
    std::size_t count_ = 0;
};

request::request(const numbers& t, const py::tuple& coordinates) : instants(listOf(t)) {
    const py::list same = py::module_::import("numpy").attr("broadcast_arrays")(*coordinates);
    shape_.assign(t.shape(), t.shape() + t.ndim());
    for (const py::handle each : same) {
        const numbers values = numbers::ensure(each);
        axes.push_back(listOf(values));
        if (axes.size() == 1) {
            shape_.insert(shape_.end(), values.shape(), values.shape() + values.ndim());
        }
    }
    count_ = axes.front().size();
    if (count_ > std::numeric_limits<int>::max() / 3) {
        throw py::value_error("there are " + std::to_string(count_) +
                              " points, expected at most 715827882");
    }
}

/// The instants of a list, as evenly spaced ones where they are just that: these take half the
/// products.
timeInstants instantsOf(std::vector<double>&& list) {
    const std::size_t count = list.size();
    if (count > 2) {
        timeInstants even(list[0], list[1] - list[0], static_cast<std::int64_t>(count));
        std::size_t i = 0;
        while (i < count && even[static_cast<std::int64_t>(i)] == list[i]) {
            ++i;
        }
        if (i == count) {
            return even;
        }
    }
    return timeInstants(std::move(list));
}

py::array sea::elevation(const numbers& t, const numbers& x, const numbers& y) {
    request asked(t, py::make_tuple(x, y));
    py::array_t<double> result(asked.shape());
    double* const values = result.mutable_data();
    {
        const py::gil_scoped_release others;
        const std::lock_guard<std::mutex> lock(isUsed_);
        computeElevations(*model_, asked.axes[0], asked.axes[1],
                          instantsOf(std::move(asked.instants)), values);
    }
    return result;
}

/// Calls `use` with the number of each instant and the points as one block of x, y and z, with the
/// model at that instant.
template <class Use>
void atInstants(const request& asked, waveModel& model, Use use) {
    std::vector<double> points;
    for (const std::vector<double>& axis : asked.axes) {
        points.insert(points.end(), axis.begin(), axis.end());
    }
    for (std::size_t i = 0; i < asked.instants.size(); ++i) {
        model.setTime(asked.instants[i]);
        use(i, points.data());
    }
}

/// Waits for the model without the interpreter's lock, which its present user may need.
std::unique_lock<std::mutex> takeModel(std::mutex& isUsed) {
    const py::gil_scoped_release others;
    return std::unique_lock<std::mutex>(isUsed);
}

py::tuple sea::kinematics(const numbers& t, const numbers& x, const numbers& y, const numbers& z) {
    const request asked(t, py::make_tuple(x, y, z));
    py::array_t<double> velocity(asked.shape({3}));
    py::array_t<double> acceleration(asked.shape({3}));
    const std::unique_lock<std::mutex> lock = takeModel(isUsed_);
    const environmentScope scope(environment_);
    fluidState state(asked.count());
    const auto count = static_cast<std::size_t>(state.n);
    const auto put = [&](const std::vector<double>& blocks, double* target) {
        for (std::size_t i = 0; i < count; ++i) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                *target++ = blocks[axis * count + i];
            }
        }
    };
    atInstants(asked, *model_, [&](std::size_t instant, const double* points) {
        std::fill(state.velocity.begin(), state.velocity.end(), 0.0);
        std::fill(state.acceleration.begin(), state.acceleration.end(), 0.0);
        model_->evaluate(state.n, points, state.velocity.data(), state.acceleration.data(),
                         state.density.data(), state.depthBelowSurface.data());
        put(state.velocity, velocity.mutable_data() + instant * 3 * count);
        put(state.acceleration, acceleration.mutable_data() + instant * 3 * count);
    });
    return py::make_tuple(velocity, acceleration);
}

py::array sea::pressure(const numbers& t, const numbers& x, const numbers& y, const numbers& z) {
    const request asked(t, py::make_tuple(x, y, z));
    py::array_t<double> result(asked.shape());
    const std::unique_lock<std::mutex> lock = takeModel(isUsed_);
    const environmentScope scope(environment_);
    const auto count = static_cast<std::size_t>(asked.count());
    atInstants(asked, *model_, [&](std::size_t instant, const double* points) {
        model_->pressure(asked.count(), points, result.mutable_data() + instant * count);
    });
    return result;
}

// ---- Python ----

constexpr const char* seaText = R"(The sea of an input file, as `sorvikPre -waveElevation` makes it.

Sea(case) takes a sorvik.Case. Names of files in the case are relative to the current folder. Each
sea has densities, gravity and water level of its own. An input without environment.wave.type is
still water; one that cannot be used is a sorvik.Error.

Instants t [s] are a number or an array, positions x, y and z [m] numbers or arrays of shapes that
NumPy broadcasts. Results have the shape of t, then that of the positions: instants x probes. z is
the height above the zero of environment.waterLevel.

>>> sea = sorvik.Sea(sorvik.Case("3-regular-wave/regularWave.m"))
>>> sea.elevation([0, 0.5, 1], x=[0, 10], y=0).shape
(3, 2)
)";

constexpr const char* componentsText =
    R"(The components in the order of the trains, a structured array.

Fields: train (from 1), direction [degrees], amplitude [m], frequency [Hz], length [m], phase
[degrees], kh (wave number times depth).

>>> sorvik.Sea(sorvik.Case("4-jonswap/jonswapSea.m")).components()["frequency"].shape
(121,)
)";

constexpr const char* elevationText =
    R"(Surface elevations [m] above the still water level: instants x probes.

The doubles whose six digits waveElevation.dat shows, by the same fast sums. Releases the
interpreter's lock: threads with a sea each compute at the same time; one sea serves one at a time.
)";

constexpr const char* kinematicsText =
    R"(Velocity [m/s] and acceleration [m/s2] of the water: two arrays instants x points x 3.

Linear theory with Wheeler stretching up to the surface; above it, zeros. Holds the interpreter's
lock: the environment belongs to the process.

>>> sea = sorvik.Sea(sorvik.Case("3-regular-wave/regularWave.m"))
>>> velocity, acceleration = sea.kinematics(0, x=0, y=0, z=[-1, -5])
>>> velocity.shape
(2, 3)
)";

constexpr const char* pressureText =
    R"(Pressure [Pa], hydrostatic and of the waves, 0 above the surface: instants x points.

Holds the interpreter's lock, as `kinematics`.
)";

} // namespace

void addSea(py::module_& module) {
    using namespace py::literals;
    PYBIND11_NUMPY_DTYPE(seaComponent, train, direction, amplitude, frequency, length, phase, kh);
    py::class_<sea>(module, "Sea", seaText)
        .def(py::init<const inputCase&>(), "case"_a)
        .def("components", &sea::components, componentsText)
        .def("times", &sea::times,
             "The instants of the run [s]: of time.dat in the folder named after the case, or of "
             "start, end and step of the input.")
        .def("elevation", &sea::elevation, elevationText, "t"_a, "x"_a, "y"_a)
        .def("kinematics", &sea::kinematics, kinematicsText, "t"_a, "x"_a, "y"_a, "z"_a)
        .def("pressure", &sea::pressure, pressureText, "t"_a, "x"_a, "y"_a, "z"_a);
}

} // namespace sorvik::python
