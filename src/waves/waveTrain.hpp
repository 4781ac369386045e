#pragma once

#include "waves/waveComponent2D.hpp"

#include <iosfwd>
#include <vector>

/// The wave components that travel in one direction, over water of one depth.
///
/// Heights z [m] are relative to the still water surface, positive upwards. Without components the
/// water is still. Trains own their components and can be copied and moved freely.
class waveTrain {
public:
    /// `direction` [rad] from the x axis towards y, water density `rho` [kg/m³], gravity `g`
    /// [m/s², positive], depth `h` [m].
    waveTrain(double direction, double rho, double g, double h);

    /// The wave number k [rad/m] of the frequency `omega` [rad/s] over the depth `h` [m]: the root
    /// of omega² = g k tanh(k h), by Newton's method from the deep-water number omega²/g.
    ///
    /// Beyond a depth of one wave length, and with three lines of warning where Newton's method
    /// does not converge, it is the deep-water number.
    static double dispersionRelationFrom_w(const double& omega, const double& g, const double& h);

    /// Appends `n` components of amplitudes `a` [m], wave numbers `k` [rad/m], phases [rad].
    void setFrom_k(int n, const double* a, const double* k, const double* phase);
    /// Appends `n` components of amplitudes `a` [m], frequencies `omega` [rad/s], phases [rad].
    void setFrom_w(int n, const double* a, const double* omega, const double* phase);

    /// Freezes all components at the instant `t` [s].
    void setTime(double t);

    /// The direction of travel [degrees] from the x axis towards y.
    double directionDegrees() const { return direction_; }
    double directionCosine() const { return cosine_; }
    double directionSine() const { return sine_; }
    /// The number of components that was last given or read; `components` may hold more.
    int componentCount() const { return count_; }
    const std::vector<waveComponent2D>& components() const { return list_; }
    /// The longest wave length or the depth, whichever is less [m].
    double influenceDepth() const { return influence_; }

    /// The surface elevation [m] at a point.
    double eta(const double& x, const double& y) const;
    /// Adds the particle velocity (u, v, w) [m/s] and acceleration [m/s²] at a point.
    void kinematics(const double& x, const double& y, const double& z, double& u, double& v,
                    double& w, double& ax, double& ay, double& az) const;
    /// The pressure [Pa] of the waves alone at a point.
    double dynamicPressure(const double& x, const double& y, const double& z) const;
    /// The pressure [Pa] with the hydrostatic part at `z` and that of the waves at `zKinematic`,
    /// the stretched height.
    double totalPressure(const double& x, const double& y, const double& z,
                         const double& zKinematic) const;

    /// Reads direction [degrees] and count, and resets the list to that many neutral components. It
    /// consumes the values of one component without storing them, and the white space after them. A
    /// count that does not fit into memory fails the stream.
    friend std::istream& operator>>(std::istream& in, waveTrain& train);

private:
    /// x cos + y sin: the place of a point along the direction of travel.
    double along(double x, double y) const { return x * cosine_ + y * sine_; }
    void updateInfluence();

    double direction_; ///< degrees
    int count_ = 0;
    double rho_;
    double g_;
    double h_;
    double influence_;
    std::vector<waveComponent2D> list_;
    double cosine_;
    double sine_;
};

/// Writes direction [degrees], count and the values of each component on one tab-separated line.
std::ostream& operator<<(std::ostream& out, const waveTrain& train);
