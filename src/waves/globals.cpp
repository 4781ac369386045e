#include "waves/globals.hpp"

#include "io/reader.hpp"
#include "numerics/matrixOp.hpp"

#include <algorithm>
#include <iostream>

namespace {

/// The axis map of `dim` dimensions; only the first axis is mapped for a number beyond 3.
std::vector<double> axisMap(int dim) {
    std::vector<double> map(3 * static_cast<std::size_t>(std::max(dim, 0)), 0.0);
    if (!map.empty()) {
        map[0] = 1.0;
    }
    if (dim == 2) {
        map[5] = 1.0;
    } else if (dim == 3) {
        map[4] = 1.0;
        map[8] = 1.0;
    }
    return map;
}

} // namespace

std::int32_t globals::m_dimensionNumber = 3;
double globals::m_rhoWater = 1000.0;
double globals::m_rhoAir = 1.0;
std::string globals::m_prefix = "environment.";
std::vector<double> globals::m_g = {0.0, 0.0, -9.81};
double globals::m_stillWaterLevel = 0.0;
bool globals::m_isSet = false;
std::vector<double> globals::m_dimMap(9, 0.0);

// uncovered: no task calls it
globals::globals(int dim, std::vector<double> g, double rhoWater, double rhoAir,
                 double stillWaterLevel) {
    set(dim, std::move(g), rhoWater, rhoAir, stillWaterLevel);
}

void globals::set(int dim, std::vector<double> g, double rhoWater, double rhoAir,
                  double stillWaterLevel) {
    if (m_isSet) {
        std::cout << "Warning: You are attempting to redefine your static global definitions. Are "
                     "you sure thats a good idea?... well, you can't!"
                  << std::endl;
        return;
    }
    m_dimensionNumber = dim;
    m_g = std::move(g);
    m_rhoWater = rhoWater;
    m_rhoAir = rhoAir;
    m_stillWaterLevel = stillWaterLevel;
    matrixOp::projectToDim(m_dimensionNumber, m_g);
    m_dimMap = axisMap(dim);
    if (dim == 1) {
        matrixOp::l2Norm = matrixOp::l2Norm1D; // uncovered: one dimension, which no task has
    } else if (dim == 2) {
        matrixOp::l2Norm = matrixOp::l2Norm2D;
    } else if (dim == 3) {
        matrixOp::l2Norm = matrixOp::l2Norm3D;
    }
    m_isSet = true;
}

void globals::set(const reader& config) {
    const auto read = [&](const char* name, double current) {
        return config.inputs.read<double>(m_prefix + name, current);
    };
    const double rhoWater = read("waterDensity", m_rhoWater);
    const double rhoAir = read("airDensity", m_rhoAir);
    const double waterLevel = read("waterLevel", m_stillWaterLevel);
    const double gravity = read("gravity", verticalGravity());
    set(3, {0.0, 0.0, gravity}, rhoWater, rhoAir, waterLevel);
}

double globals::verticalGravity() {
    return m_g.empty() ? 0.0 : m_g.back();
}

// uncovered: no task calls it
void globals::printInputExample() {
    std::cout << " waterDensity    = 1000; % \t (kg/m3) water density\n"
              << " airDensity      = 1.0; \t % (kg/m3) air density\n"
              << " gravity         = -9.81; \t % (m/s2) gravitational acceleration) \n"
              << std::endl;
}
