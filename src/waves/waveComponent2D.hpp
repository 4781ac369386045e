#pragma once

#include <iosfwd>

/// One sinusoid of linear (Airy) wave theory, travelling along a horizontal axis s.
///
/// Its surface is a cos(k s - omega t + phase), with a in m, k in rad/m, omega in rad/s, the phase
/// in rad. Heights z [m] are relative to the still water surface, positive upwards. Gravity
/// [m/s², positive] and depth [m] are kept as values, so that components can be copied and moved
/// freely.
class waveComponent2D {
public:
    /// The neutral component, deep whatever `h` is: a = 0, k = 1, omega = 1, phase = 0.
    waveComponent2D(const double& g, const double& h);
    waveComponent2D(const double& g, const double& h, double a, double k, double omega,
                    double phase);

    /// Replaces the four parameters; the instant stays.
    void set(const double& a, const double& k, const double& omega, const double& phase);
    /// Freezes the wave at the instant `t` [s].
    void setTime(double t) { timePhase_ = w_ * t - phi_; }

    double amplitude() const { return a_; }        ///< m
    double waveNumber() const { return k_; }       ///< rad/m
    double angularFrequency() const { return w_; } ///< rad/s
    double phase() const { return phi_; }          ///< rad
    /// Whether k h is above 3 pi / 2, from where on the sea bed is not felt.
    bool isDeep() const { return deep_; }

    /// The surface elevation [m] at `s` [m].
    double eta(double s) const;
    /// The share of the surface's pressure variation that is left at height `z`.
    double pressureFactor(double z) const;
    /// The elevation times the pressure factor at `z` [m].
    double pressureHead(double s, double z) const;

    /// Adds the particle velocity (`u` along s, `w` upwards) [m/s] and acceleration [m/s²] at `s`
    /// and `z` [m]. The frequency must not be zero.
    void kinematics(const double& s, const double& z, double& u, double& w, double& ax,
                    double& az) const;

    /// Writes one line of height, period, length and phase.
    void printInfo(std::ostream& out) const;

    /// Reads a, k, omega and phase; keeps the component as it is where they cannot be read.
    friend std::istream& operator>>(std::istream& in, waveComponent2D& component);

private:
    double surfaceAngle(double s) const { return k_ * s - timePhase_; }

    double g_;
    double h_;
    double a_ = 0.0;
    double k_ = 1.0;
    double w_ = 1.0;
    double phi_ = 0.0;
    double agk_ = 0.0;                   ///< a g k [m/s² times rad]
    double clippedKh_ = 6.28318;         ///< k h, at most 3 pi / 2; beyond it when neutral
    double coshKh_ = 267.74534051728284; ///< cosh of `clippedKh`
    double timePhase_ = 0.0;             ///< omega t - phase [rad], 0 until a time is set
    bool deep_ = true;
};

/// Writes a, k, omega and phase, separated by tabs.
std::ostream& operator<<(std::ostream& out, const waveComponent2D& component);
