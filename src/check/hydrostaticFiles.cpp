#include "base/files.hpp"
#include "base/numberText.hpp"
#include "check/hydrostatics.hpp"

#include <charconv>
#include <ostream>

namespace sorvik {
namespace {

using matrix6 = std::array<double, 36>;

std::string padded(const std::string& text, std::size_t width) {
    return std::string(text.size() < width ? width - text.size() : 0, ' ') + text;
}

/// As Fortran's E format of seven digits, such as "0.3069143E+05".
std::string exponentText(double value) {
    char digits[40];
    const auto end = std::to_chars(digits, digits + sizeof digits, value < 0 ? -value : value,
                                   std::chars_format::scientific, 6);
    std::string text(digits, end.ptr); // d.dddddde+xx
    if (text.find('e') == text.npos) {
        return text; // not finite
    }
    int exponent = 0;
    const std::size_t mark = text.find('e') + 1;
    std::from_chars(digits + mark + 1, end.ptr, exponent);
    exponent = (text[mark] == '-' ? -exponent : exponent) + (value == 0 ? 0 : 1);
    const std::string power = std::to_string(exponent < 0 ? -exponent : exponent);
    return std::string(value < 0 ? "-" : "") + "0." + text[0] + text.substr(2, 6) +
           (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
}

/// As Fortran's F7.3.
std::string fixedText(double value) {
    char digits[400];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 3);
    std::string text(digits, end.ptr);
    return padded(text == "-0.000" ? "0.000" : text, 7);
}

void writeMatrix(std::ostream& out, const matrix6& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        out << padded(exponentText(values[i]), 15) << (i % 6 == 5 ? "\n" : "");
    }
}

void writeCentres(std::ostream& out, const hydrostatics& h, const point3& cog) {
    for (std::size_t i = 0; i < 3; ++i) {
        const char axis = "XYZ"[i];
        out << ' ' << axis << "F = " << fixedText(h.buoyancy[i]) << " - " << axis
            << "G = " << fixedText(cog[i]) << '\n';
    }
    out << " Displacement = " << padded(exponentText(h.volume[2]), 14) << '\n'
        << " Waterplane area = " << padded(exponentText(h.waterplane), 14) << '\n'
        << " Mass = " << exponentText(h.mass) << '\n';
}

void writeMeshCal(std::ostream& out, const hydrostaticFiles& files) {
    out << files.meshName << "\n0\n0. 0.\n";
    for (std::size_t i = 0; i < 3; ++i) {
        out << numberText(files.cog[i]) << (i < 2 ? " " : "\n");
    }
    out << files.panels << '\n';
}

/// About the centre of gravity.
matrix6 inertiaOf(double mass, const point3& gyration) {
    matrix6 inertia = {};
    for (std::size_t i = 0; i < 3; ++i) {
        inertia[7 * i] = mass;
        inertia[7 * (i + 3)] = mass * gyration[i] * gyration[i];
    }
    return inertia;
}

} // namespace

std::string writeHydrostatics(const std::string& folder, const hydrostatics& h,
                              const hydrostaticFiles& wanted) {
    std::string failed;
    const auto write = [&](const std::string& name, auto content) {
        if (failed.empty() && !files::write(folder + "/" + name, content)) {
            failed = folder + "/" + name;
        }
    };
    const auto writeAll = [&](const std::string& name, const matrix6& values) {
        write(name, [&](std::ostream& out) { writeMatrix(out, values); });
    };
    if (!files::makeFolder(folder)) {
        return folder;
    }
    writeAll("KH.dat", h.stiffness);
    write("Hydrostatics.dat", [&](std::ostream& out) { writeCentres(out, h, wanted.cog); });
    write("Mesh.cal", [&](std::ostream& out) { writeMeshCal(out, wanted); });
    if (wanted.gyration) {
        if (!files::makeFolder(folder + "/Mechanics")) {
            return folder + "/Mechanics";
        }
        writeAll("Mechanics/Inertia.dat", inertiaOf(h.mass, *wanted.gyration));
        writeAll("Mechanics/Kh.dat", h.stiffness);
        writeAll("Mechanics/Km.dat", {});
        writeAll("Mechanics/Badd.dat", {});
    }
    return failed;
}

} // namespace sorvik
