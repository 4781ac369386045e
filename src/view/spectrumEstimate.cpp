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

std::size_t segmentLength(std::size_t count) {
    constexpr std::size_t longest = 2048;
    std::size_t length = 1;
    while (2 * length <= count / 3 && length < longest) {
        length *= 2;
    }
    return length;
}

/// Adds the squares of the amplitudes of the segment from `first` on; `sums` has one for each
/// frequency up to that of Nyquist.
void addSegment(const std::vector<double>& values, std::size_t first, complexSeries& work,
                std::vector<double>& sums) {
    const std::size_t length = work.size();
    for (std::size_t i = 0; i < length; ++i) {
        const double window =
            0.5 - 0.5 * std::cos(2 * pi * static_cast<double>(i) / static_cast<double>(length));
        work[i] = window * values[first + i];
    }
    transform(work);
    for (std::size_t i = 0; i <= length / 2; ++i) {
        const bool isAlone = i == 0 || i == length / 2; // others stand for the negative one too
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
    const double mean =
        std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(count);
    double variance = 0;
    for (double& value : values) {
        value -= mean;
        variance += value * value / static_cast<double>(count);
    }
    spectrumEstimate result;
    complexSeries work(segmentLength(count));
    const std::size_t length = work.size();
    result.density.assign(length / 2 + 1, 0.0);
    result.segments = (2 * count - 1) / length; // the last one ends with the series
    for (std::size_t i = 0; i < result.segments; ++i) {
        addSegment(values, i * (count - length) / (result.segments - 1), work, result.density);
    }
    result.step = 1 / (static_cast<double>(length) * step);
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
