#include "waves/waveTrain.hpp"

#include "base/classicLocale.hpp"
#include "base/memory.hpp"
#include "waves/angles.hpp"

#include <algorithm>
#include <cmath>
#include <iostream>

waveTrain::waveTrain(double direction, double rho, double g, double h)
    : direction_(180 * direction / sorvik::pi), rho_(rho), g_(g), h_(h), influence_(h),
      cosine_(std::cos(direction)), sine_(std::sin(direction)) {}

double waveTrain::dispersionRelationFrom_w(const double& omega, const double& g, const double& h) {
    constexpr double tolerance = 1e-12;
    constexpr int maxNewtonSteps = 500;
    const double k0 = omega * omega / g;
    double x = k0 * h;
    if (x > 2 * sorvik::pi) {
        return k0;
    }
    const auto residualAt = [&](double kh) { return g / h * kh * std::tanh(kh) - omega * omega; };
    double residual = residualAt(x);
    for (int step = 0; step < maxNewtonSteps; ++step) {
        const bool isOpen = std::fabs(residual) > tolerance;
        if (!isOpen) {
            return x / h;
        }
        const double coshX = std::cosh(x);
        x -= residual / (g / h * (std::tanh(x) + x / (coshX * coshX)));
        residual = residualAt(x);
    }
    std::cout << "Warning, could not find solution for dispersion relation!" << std::endl;
    std::cout << "w=" << omega << " rad/s, but k=" << x / h << " rad/m was found with error "
              << residual << std::endl;
    std::cout << "Deep water assumption is used instead, i.e. k= " << k0 << std::endl;
    return k0;
}

void waveTrain::setFrom_k(int n, const double* a, const double* k, const double* phase) {
    count_ = n;
    for (int i = 0; i < n; ++i) {
        const double omega = std::sqrt(std::tanh(k[i] * h_) * g_ * k[i]);
        list_.emplace_back(g_, h_, a[i], k[i], omega, phase[i]);
    }
    updateInfluence();
}

void waveTrain::setFrom_w(int n, const double* a, const double* omega, const double* phase) {
    count_ = n;
    for (int i = 0; i < n; ++i) {
        const double k = dispersionRelationFrom_w(omega[i], g_, h_);
        list_.emplace_back(g_, h_, a[i], k, omega[i], phase[i]);
    }
    updateInfluence();
}

void waveTrain::updateInfluence() {
    const auto longest = std::min_element(list_.begin(), list_.end(), [](auto& one, auto& other) {
        return one.waveNumber() < other.waveNumber();
    });
    if (longest != list_.end()) {
        influence_ = std::min(2 * sorvik::pi / longest->waveNumber(), h_);
    }
}

void waveTrain::setTime(double t) {
    for (waveComponent2D& component : list_) {
        component.setTime(t);
    }
}

double waveTrain::eta(const double& x, const double& y) const {
    const double s = along(x, y);
    double sum = 0.0;
    for (const waveComponent2D& component : list_) {
        sum += component.eta(s);
    }
    return sum;
}

void waveTrain::kinematics(const double& x, const double& y, const double& z, double& u, double& v,
                           double& w, double& ax, double& ay, double& az) const {
    const double s = along(x, y);
    double horizontalVelocity = 0.0;
    double horizontalAcceleration = 0.0;
    for (const waveComponent2D& component : list_) {
        component.kinematics(s, z, horizontalVelocity, w, horizontalAcceleration, az);
    }
    u += horizontalVelocity * cosine_;
    v += horizontalVelocity * sine_;
    ax += horizontalAcceleration * cosine_;
    ay += horizontalAcceleration * sine_;
}

double waveTrain::dynamicPressure(const double& x, const double& y, const double& z) const {
    const double s = along(x, y);
    double head = 0.0;
    for (const waveComponent2D& component : list_) {
        head += component.pressureHead(s, z);
    }
    return rho_ * g_ * head;
}

double waveTrain::totalPressure(const double& x, const double& y, const double& z,
                                const double& zKinematic) const {
    return dynamicPressure(x, y, zKinematic) - rho_ * g_ * z;
}

std::istream& operator>>(std::istream& in, waveTrain& train) {
    const sorvik::classicLocale whileReading(in);
    train.direction_ = 0.0;
    train.count_ = 0;
    in >> train.direction_ >> train.count_;
    const double radians = train.direction_ * sorvik::radiansPerDegree;
    train.cosine_ = std::cos(radians);
    train.sine_ = std::sin(radians);

    train.list_.clear();
    const auto listed = static_cast<std::size_t>(std::max(train.count_, 0));
    if (!sorvik::memory::canHold(listed, sizeof(waveComponent2D))) {
        in.setstate(std::ios::failbit); // uncovered: more components than memory holds
        return in;
    }
    const waveComponent2D neutral(train.g_, train.h_);
    train.list_.assign(listed, neutral);
    waveComponent2D passedOver = neutral;
    // At the end of the text, skipping white space would fail the stream.
    if (in >> passedOver && !in.eof()) {
        in >> std::ws;
    }
    return in;
}

std::ostream& operator<<(std::ostream& out, const waveTrain& train) {
    const sorvik::classicLocale whileWriting(out);
    out << train.directionDegrees() << '\t' << train.componentCount();
    for (const waveComponent2D& component : train.components()) {
        out << '\t' << component;
    }
    return out << '\n';
}
