#pragma once

#include "numerics/matrixOp.hpp"

#include <cstdint>
#include <vector>

namespace sorvik {

/// All that `globals::set` sets, so that a process can work in several environments in turn.
struct environment {
    std::int32_t dimensions = 3;
    double waterDensity = 1000.0;                ///< kg/m³
    double airDensity = 1.0;                     ///< kg/m³
    std::vector<double> gravity = {0, 0, -9.81}; ///< m/s²
    double stillWaterLevel = 0.0;                ///< m
    bool isSet = false;                          ///< whether a further `globals::set` is refused
    std::vector<double> axes = std::vector<double>(9); ///< `globals::m_dimMap`
    decltype(matrixOp::l2Norm) norm = matrixOp::l2Norm;

    /// The one in which a process starts. The norm is that of now.
    static environment ofNewProcess() { return {}; }
    /// The one in force.
    static environment current();
    /// Puts it in force.
    void apply() const;
};

/// Puts an environment in force for its own lifetime.
class environmentScope {
public:
    explicit environmentScope(const environment& wanted) { wanted.apply(); }
    environmentScope(const environmentScope&) = delete;
    environmentScope& operator=(const environmentScope&) = delete;
    ~environmentScope() { former_.apply(); }

private:
    environment former_ = environment::current();
};

} // namespace sorvik
