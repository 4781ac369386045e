#include "mesh/bodyMesh.hpp"

#include "mesh/panels.hpp"
#include "numerics/matrixOp.hpp"

#include <algorithm>
#include <iostream>
#include <utility>

namespace {

constexpr std::array<double, 9> identity = {1, 0, 0, 0, 1, 0, 0, 0, 1};

v3<float> toFloat(double x, double y, double z) {
    return {static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)};
}

void shiftAll(std::vector<triangle>& panels, const v3<float>& d) {
    for (triangle& panel : panels) {
        panel.shift(d);
    }
}

} // namespace

bodyMesh::bodyMesh(std::string file, const std::vector<double>& meshOrigin,
                   const std::vector<double>& bodyPosition, double level)
    : meshFile(std::move(file)) {
    std::cout << "Body mesh generation... " << std::endl;
    read(meshFile);
    place(meshOrigin, bodyPosition, level);
    std::cout << "Body mesh generation done " << std::endl;
}

void bodyMesh::place(const std::vector<double>& meshOrigin, const std::vector<double>& bodyPosition,
                     double level) {
    rotation = identity;
    targetRotation = identity;
    shiftAll(faces, toFloat(meshOrigin[0], meshOrigin[1], meshOrigin[2]));
    origin = {};
    totalArea = surfaceArea();
    setPosition(bodyPosition.data());
    updateWetSurface(level);
}

void bodyMesh::setPosition(const double* p) {
    std::copy(p, p + position.size(), position.begin());
}

void bodyMesh::setRotation(const double* R) {
    std::copy(R, R + targetRotation.size(), targetRotation.begin());
}

void bodyMesh::translate() {
    const v3<float> d = toFloat(static_cast<double>(origin.x) - position[0],
                                static_cast<double>(origin.y) - position[1],
                                static_cast<double>(origin.z) - position[2]);
    shiftAll(faces, d);
    shiftAll(splitFaces, d);
    origin = toFloat(position[0], position[1], position[2]);
}

void bodyMesh::rotate() {
    std::array<double, 9> change{};
    matrixOp::MM(3, 3, 3, targetRotation.data(), rotation.data(), change.data());
    for (triangle& panel : faces) {
        panel.rotate(change.data());
    }
    rotation = targetRotation;
}

double bodyMesh::surfaceArea() const {
    double sum = 0;
    for (const triangle& panel : faces) {
        sum += panel.area;
    }
    return sum;
}

void bodyMesh::mirrorX() {
    sorvik::panelStore{faces, nFaces}.mirror(&v3<float>::x);
}

void bodyMesh::mirrorY() {
    sorvik::panelStore{faces, nFaces}.mirror(&v3<float>::y);
}

std::vector<double> bodyMesh::shellInertia(double mass) const {
    double xx = 0;
    double yy = 0;
    double zz = 0;
    double xy = 0;
    double xz = 0;
    double yz = 0;
    for (const triangle& panel : faces) {
        const auto& [fx, fy, fz] = panel.centroid;
        // Sums of squares are single precision, products double.
        xx += panel.area * static_cast<double>(fy * fy + fz * fz);
        yy += panel.area * static_cast<double>(fz * fz + fx * fx);
        zz += panel.area * static_cast<double>(fx * fx + fy * fy);
        const auto x = static_cast<double>(fx);
        const auto y = static_cast<double>(fy);
        const auto z = static_cast<double>(fz);
        xy -= panel.area * x * y;
        xz -= panel.area * x * z;
        yz -= panel.area * y * z;
    }
    std::vector<double> inertia = {xx, xy, xz, xy, yy, yz, xz, yz, zz};
    matrixOp::scale(9, mass / totalArea, inertia.data());
    return inertia;
}

std::vector<double> bodyMesh::volumeInertia(double mass) const {
    std::cout << "WARNING: THIS FEATURE IS NOT YET IMPLEMENTED. Returning the shell inertia."
              << std::endl;
    return shellInertia(mass);
}

void bodyMesh::FroudeKrylovForces(const double& elevation, const double& factor,
                                  std::vector<double>& F) const {
    v3<float> force;
    v3<float> moment;
    for (const triangle* panel : wetFaces) {
        const v3<float>& centre = panel->centroid;
        const auto head =
            static_cast<float>((elevation - position[2]) - static_cast<double>(centre.z));
        const v3<float> load = head * panel->areaVector;
        force = force - load;
        moment = moment - cross(centre, load);
    }
    const auto scale = static_cast<float>(factor);
    force = scale * force;
    moment = scale * moment;
    // uncovered: GCC counts the first line of a list separately
    F = {static_cast<double>(force.x),  static_cast<double>(force.y),
         static_cast<double>(force.z),  static_cast<double>(moment.x),
         static_cast<double>(moment.y), static_cast<double>(moment.z)};
}

void bodyMesh::faceCentresGlobal(std::vector<double>& out, bool blocked) const {
    out.resize(3 * faces.size());
    const std::size_t panelStride = blocked ? 1 : 3;
    const std::size_t axisStride = blocked ? faces.size() : 1;
    for (std::size_t i = 0; i < faces.size(); ++i) {
        v3<float> centre = faces[i].centroid;
        triangle::rotate(targetRotation.data(), centre);
        double* target = out.data() + i * panelStride;
        target[0] = static_cast<double>(centre.x) + position[0];
        target[axisStride] = static_cast<double>(centre.y) + position[1];
        target[2 * axisStride] = static_cast<double>(centre.z) + position[2];
    }
}
