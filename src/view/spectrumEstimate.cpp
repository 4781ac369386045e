#include "view/spectrumEstimate.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numeric>

namespace sorvik {
namespace {

using complexSeries = std::vector<std::complex<double>>;

constexpr double pi = 3.14159265358979323846;

/// Replaces values, a power of two of them, by their discrete Fourier transform (J. W. Cooley and
/// J. W. Tukey, 1965).
void transform(complexSeries& values) {
    const std::size_t count = values.size();
    for (std::size_t i = 1, reversed = 0; i < count; ++i) {
        std::size_t bit = count / 2;
        for (; (reversed & bit) != 0; bit /= 2) {
            reversed ^= bit;
        }
        reversed |= bit;
        if (i < reversed) {
            std::swap(values[i], values[reversed]);
        }
    }
    for (std::size_t half = 1; half < count; half *= 2) {
        for (std::size_t k = 0; k < half; ++k) {
            const auto turn =
                std::polar(1.0, -pi * static_cast<double>(k) / static_cast<double>(half));
            for (std::size_t i = k; i < count; i += 2 * half) {
                const std::complex<double> odd = values[i + half] * turn;
                values[i + half] = values[i] - odd;
                values[i] += odd;
            }
        }
    }
}

/// The first power of two from `least` on.
std::size_t powerOfTwo(std::size_t least) {
    std::size_t power = 1;
    while (power < least) {
        power *= 2;
    }
    return power;
}

/// Takes the mean from the values and returns their variance.
double centre(std::vector<double>& values) {
    const auto count = static_cast<double>(values.size());
    const double mean = std::accumulate(values.begin(), values.end(), 0.0) / count;
    double variance = 0;
    for (double& value : values) {
        value -= mean;
        variance += value * value / count;
    }
    return variance;
}

/// Adds the squares of the amplitudes of a segment. Zeros after it, up to the length of `work`,
/// give values between its own frequencies. `sums` has one for each frequency up to that of
/// Nyquist.
void addSegment(const double* values, std::size_t length, complexSeries& work,
                std::vector<double>& sums) {
    std::fill(work.begin(), work.end(), 0.0);
    for (std::size_t i = 0; i < length; ++i) {
        const double turn = 2 * pi * static_cast<double>(i) / static_cast<double>(length);
        work[i] = (0.5 - 0.5 * std::cos(turn)) * values[i];
    }
    transform(work);
    for (std::size_t i = 0; i < sums.size(); ++i) {
        const bool isAlone =
            i == 0 || i + 1 == sums.size(); // others stand for the negative one too
        sums[i] += (isAlone ? 1 : 2) * std::norm(work[i]);
    }
}

} // namespace

double evenStep(const std::vector<double>& times) {
    if (times.size() < 2) {
        return 0;
    }
    const double first = times.front();
    const double step = (times.back() - first) / static_cast<double>(times.size() - 1);
    constexpr double halfDigit = 5e-6; // of a number of six digits
    const double ends = std::fabs(first) + std::fabs(times.back());
    for (std::size_t i = 0; i < times.size(); ++i) {
        const double error = times[i] - (first + static_cast<double>(i) * step);
        if (!(std::fabs(error) <= halfDigit * (ends + std::fabs(times[i])))) {
            return 0;
        }
    }
    return step;
}

spectrumEstimate estimateSpectrum(const std::vector<float>& elevations, double step) {
    const std::size_t count = elevations.size();
    if (!(step > 0) || count < fewestInstants) {
        return {};
    }
    std::vector<double> values(elevations.begin(), elevations.end());
    const double variance = centre(values);
    constexpr std::size_t longest = 2048;
    const std::size_t length = std::min(count / 3, longest);
    complexSeries work(powerOfTwo(2 * length));
    spectrumEstimate result;
    result.resolution = 1 / (static_cast<double>(length) * step);
    result.step = 1 / (static_cast<double>(work.size()) * step);
    result.density.assign(work.size() / 2 + 1, 0.0);
    const std::size_t shifts = (2 * (count - length) + length - 1) / length;
    result.segments = shifts + 1; // the last one ends with the series
    for (std::size_t i = 0; i <= shifts; ++i) {
        addSegment(&values[i * (count - length) / shifts], length, work, result.density);
    }
    const double sum = std::accumulate(result.density.begin(), result.density.end(), 0.0);
    if (!(sum > 0 && variance > 0)) {
        return {};
    }
    for (double& density : result.density) {
        density *= variance / (sum * result.step);
    }
    return result;
}

} // namespace sorvik
