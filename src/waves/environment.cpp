#include "waves/environment.hpp"

#include "waves/globals.hpp"

namespace sorvik {

environment environment::current() {
    return {globals::m_dimensionNumber, globals::m_rhoWater, globals::m_rhoAir, globals::m_g,
            globals::m_stillWaterLevel, globals::m_isSet,    globals::m_dimMap, matrixOp::l2Norm};
}

void environment::apply() const {
    globals::m_dimensionNumber = dimensions;
    globals::m_rhoWater = waterDensity;
    globals::m_rhoAir = airDensity;
    globals::m_g = gravity;
    globals::m_stillWaterLevel = stillWaterLevel;
    globals::m_isSet = isSet;
    globals::m_dimMap = axes;
    matrixOp::l2Norm = norm;
}

} // namespace sorvik
