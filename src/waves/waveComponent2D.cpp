#include "waves/waveComponent2D.hpp"

#include "base/classicLocale.hpp"
#include "waves/angles.hpp"

#include <algorithm>
#include <cmath>
#include <istream>
#include <ostream>

namespace {

/// From this k h on, 3 pi / 2, cosh and sinh are taken as one exponential.
constexpr double deepKh = 4.71238898038469;

} // namespace

waveComponent2D::waveComponent2D(const double& g, const double& h) : g_(g), h_(h) {}

waveComponent2D::waveComponent2D(const double& g, const double& h, double a, double k, double omega,
                                 double phase)
    : g_(g), h_(h) {
    set(a, k, omega, phase);
}

void waveComponent2D::set(const double& a, const double& k, const double& omega,
                          const double& phase) {
    a_ = a;
    k_ = k;
    w_ = omega;
    phi_ = phase;
    agk_ = a_ * g_ * k_;
    clippedKh_ = std::min(k_ * h_, deepKh);
    coshKh_ = std::cosh(clippedKh_);
    deep_ = k_ * h_ > deepKh;
}

double waveComponent2D::eta(double s) const {
    return a_ * std::cos(surfaceAngle(s));
}

double waveComponent2D::pressureFactor(double z) const {
    return deep_ ? std::exp(k_ * z) : std::cosh(k_ * z + clippedKh_) / coshKh_;
}

double waveComponent2D::pressureHead(double s, double z) const {
    return a_ * pressureFactor(z) * std::cos(surfaceAngle(s));
}

void waveComponent2D::kinematics(const double& s, const double& z, double& u, double& w, double& ax,
                                 double& az) const {
    const double horizontalFactor = pressureFactor(z);
    const double verticalFactor =
        deep_ ? horizontalFactor : std::sinh(k_ * z + clippedKh_) / coshKh_;
    const double theta = surfaceAngle(s);
    const double cosTheta = std::cos(theta);
    const double sinTheta = std::sin(theta);
    const double speed = agk_ / w_;
    u += speed * horizontalFactor * cosTheta;
    w += speed * verticalFactor * sinTheta;
    ax += agk_ * horizontalFactor * sinTheta;
    az -= agk_ * verticalFactor * cosTheta;
}

void waveComponent2D::printInfo(std::ostream& out) const {
    const sorvik::classicLocale whileWriting(out);
    out << "Wave height (m): " << 2 * a_ << ", Period (s): " << 2 * sorvik::pi / w_
        << ", Wave length (m): " << 2 * sorvik::pi / k_
        << ", Phase (deg): " << phi_ * 180 / sorvik::pi << std::endl;
}

std::istream& operator>>(std::istream& in, waveComponent2D& component) {
    const sorvik::classicLocale whileReading(in);
    double a = 0.0;
    double k = 0.0;
    double omega = 0.0;
    double phase = 0.0;
    if (in >> a >> k >> omega >> phase) {
        component.set(a, k, omega, phase);
    }
    return in;
}

std::ostream& operator<<(std::ostream& out, const waveComponent2D& component) {
    const sorvik::classicLocale whileWriting(out);
    return out << component.amplitude() << '\t' << component.waveNumber() << '\t'
               << component.angularFrequency() << '\t' << component.phase();
}
