#include "arrays.hpp"
#include "base/files.hpp"
#include "check/nemohCal.hpp"
#include "check/openedProject.hpp"
#include "guard.hpp"
#include "nemoh/nemohIO.hpp"
#include "reports.hpp"

#include <pybind11/complex.h>
#include <pybind11/stl/filesystem.h>

#include <complex>
#include <filesystem>

namespace sorvik::python {
namespace {

/// The results of a Nemoh project.
struct nemohFolder {
    explicit nemohFolder(const std::filesystem::path& path);

    /// A `libraryError` with what was found of `file`, where its values are missing.
    void require(bool isThere, const std::string& file) const;

    std::string folder;
    nemohCal cal;
    report result;
    nemohResults values;
};

nemohFolder::nemohFolder(const std::filesystem::path& path)
    : folder(path.string()), cal(openNemohCal(folder)) {
    resultsReport checked = checkResults(folder, cal);
    result = std::move(checked.result);
    values = std::move(checked.values);
    if (const finding* unread = result.find("unread-project"); unread != nullptr) {
        throw libraryError(folder + ": " + unread->message);
    }
}

void nemohFolder::require(bool isThere, const std::string& file) const {
    if (isThere) {
        return;
    }
    for (const finding& each : result.findings) {
        if (each.message.find(file) != std::string::npos) {
            throw libraryError(each.message);
        }
    }
    throw libraryError(folder + " gives nothing of " + file);
}

py::ssize_t sizeOf(std::size_t size) {
    return static_cast<py::ssize_t>(size);
}

/// A view of (zone, force, frequency) as (frequency, zone, force).
template <class T>
py::array byFrequency(const T* data, const nemohResults& r, std::size_t zones, py::handle owner) {
    const py::ssize_t freqs = sizeOf(r.omegas.size());
    const py::ssize_t forces = sizeOf(r.forces.size());
    const py::ssize_t size = sizeof(T);
    return viewOf(data, {freqs, sizeOf(zones), forces}, owner,
                  {size, forces * freqs * size, freqs * size});
}

py::array radiationOf(const py::object& self, std::vector<double> nemohResults::*list) {
    const auto& run = self.cast<const nemohFolder&>();
    const std::vector<double>& values = run.values.*list;
    run.require(!values.empty(), "RadiationCoefficients.tec");
    return byFrequency(values.data(), run.values, run.values.motions.size(), self);
}

/// An array (frequency, direction, force) that owns the values (direction, force, frequency).
py::array forceOf(std::vector<std::complex<double>>&& values, const nemohResults& r) {
    const py::ssize_t count = sizeOf(values.size());
    const auto* data = values.data();
    const py::array owner = arrayOf(std::move(values), {count});
    return byFrequency(data, r, r.angles.size(), owner);
}

py::array excitationOf(const nemohFolder& run) {
    const nemohResults& r = run.values;
    run.require(!r.amplitudes.empty(), "ExcitationForce.tec");
    std::vector<std::complex<double>> values;
    for (std::size_t i = 0; i < r.amplitudes.size(); ++i) {
        values.push_back(r.amplitudes[i] * std::exp(std::complex<double>(0, r.phases[i])));
    }
    return forceOf(std::move(values), r);
}

/// A file of forces that Nemoh writes where it is asked to; None where it is not there.
py::object partOf(const nemohFolder& self, const char* name) {
    const std::filesystem::path folder = self.folder;
    if (!files::canOpen((folder / "Results" / name).string()) &&
        !files::canOpen((folder / "results" / name).string())) {
        return py::none();
    }
    const nemohResults& r = self.values;
    std::vector<std::complex<double>> values;
    run([&] {
        nemohIO::existing(self.folder)
            .readForce(name, static_cast<int>(r.omegas.size()), static_cast<int>(r.angles.size()),
                       1, static_cast<int>(r.forces.size()), values);
    });
    if (values.size() != r.omegas.size() * r.angles.size() * r.forces.size()) {
        throw libraryError(std::string(name) + " was read with other counts of Nemoh.cal.");
    }
    return forceOf(std::move(values), r);
}

py::array listOf(const py::object& self, std::vector<double> nemohResults::*list) {
    const std::vector<double>& values = self.cast<const nemohFolder&>().values.*list;
    return viewOf(values.data(), {sizeOf(values.size())}, self);
}

py::array stiffnessOf(const py::object& self) {
    const auto& run = self.cast<const nemohFolder&>();
    run.require(!run.values.stiffness.empty(), "KH.dat");
    return viewOf(run.values.stiffness.data(), {6, 6}, self);
}

py::list namesOf(const nemohFolder& run, std::vector<resultDof> nemohResults::*dofs) {
    static const char* const names[] = {"Surge", "Sway", "Heave", "Roll", "Pitch", "Yaw"};
    py::list all;
    for (const resultDof& dof : run.values.*dofs) {
        const std::string name = names[dof.number - 1];
        const bool isAlone = run.cal.bodies.size() == 1;
        all.append(isAlone ? name : "body_" + std::to_string(dof.body) + "__" + name);
    }
    return all;
}

constexpr const char* resultsText = R"(The results of Nemoh in a project folder, in SI units.

NemohResults(folder) reads Nemoh.cal, and RadiationCoefficients.tec, ExcitationForce.tec, KH.dat and
Hydrostatics.dat as far as they are there. What is not there or cannot be read is a sorvik.Error
when it is asked for. Names and the order of axes are those of Capytaine's data sets. Nothing is
converted: phases have the sign that Nemoh wrote. Arrays are views, which keep the results, unless
they say otherwise. Holds the interpreter's lock while it reads.
)";

using list = std::vector<double> nemohResults::*;

/// A property that is a view of a list.
void addView(py::class_<nemohFolder>& results, const char* name, list member,
             py::array (*view)(const py::object&, list), const char* text) {
    results.def_property_readonly(
        name, [member, view](const py::object& self) { return view(self, member); }, text);
}

void addRadiation(py::class_<nemohFolder>& results) {
    addView(results, "omega", &nemohResults::omegas, listOf, "Angular frequencies [rad/s].");
    addView(results, "directions", &nemohResults::angles, listOf, "Wave directions [degrees].");
    addView(results, "added_mass", &nemohResults::addedMass, radiationOf,
            "omega x radiating_dof x influenced_dof [kg, kg m, kg m2].");
    addView(results, "radiation_damping", &nemohResults::damping, radiationOf,
            "omega x radiating_dof x influenced_dof [kg/s, kg m/s, kg m2/s].");
    results
        .def_property_readonly(
            "radiating_dof",
            [](const nemohFolder& run) { return namesOf(run, &nemohResults::motions); },
            "Names of the motions: Heave, or body_1__Heave where there are several bodies.")
        .def_property_readonly(
            "influenced_dof",
            [](const nemohFolder& run) { return namesOf(run, &nemohResults::forces); },
            "Names of the forces, likewise.");
}

void addForces(py::class_<nemohFolder>& results) {
    results
        .def_property_readonly("excitation_force", excitationOf,
                               "Diffraction and Froude-Krylov together, amplitude * exp(i phase): "
                               "omega x wave_direction x influenced_dof [N, N m], a copy.")
        .def_property_readonly(
            "diffraction_force",
            [](const nemohFolder& run) { return partOf(run, "DiffractionForce.tec"); },
            "The same of DiffractionForce.tec; None where Nemoh did not write it.")
        .def_property_readonly(
            "Froude_Krylov_force",
            [](const nemohFolder& run) { return partOf(run, "FKForce.tec"); },
            "The same of FKForce.tec; None where Nemoh did not write it.")
        .def_property_readonly("hydrostatic_stiffness", stiffnessOf, "6 x 6 [N/m, N, N m].")
        .def_property_readonly(
            "volume",
            [](const nemohFolder& run) {
                run.require(run.values.volume >= 0, "KH.dat");
                return run.values.volume;
            },
            "Displaced volume [m3].")
        .def_property_readonly(
            "rho", [](const nemohFolder& run) { return run.cal.density.value; },
            "Density of the water [kg/m3].")
        .def_property_readonly(
            "g", [](const nemohFolder& run) { return run.cal.gravity.value; }, "Gravity [m/s2].")
        .def_property_readonly(
            "water_depth", [](const nemohFolder& run) { return run.cal.depth.value; },
            "Depth of the water [m], 0 for deep water.")
        .def(
            "check", [](const nemohFolder& run) { return dictOf(run.result); },
            "What `sorvikCheck results` found when the folder was read, as a dictionary.");
}

} // namespace

void addResults(py::module_& module) {
    py::class_<nemohFolder> results(module, "NemohResults", resultsText);
    results.def(py::init<const std::filesystem::path&>(), py::arg("folder"));
    addRadiation(results);
    addForces(results);
}

} // namespace sorvik::python
