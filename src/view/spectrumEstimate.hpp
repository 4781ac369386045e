#pragma once

#include <cstddef>
#include <vector>

namespace sorvik {

/// The variance density spectrum of a series, estimated from segments.
struct spectrumEstimate {
    double step = 0;             ///< between frequencies [Hz]; the first one is 0
    std::vector<double> density; ///< one-sided [m²/Hz]; empty where there is no estimate
    double resolution = 0;       ///< 1 / duration of a segment [Hz]; `step` is finer
    std::size_t segments = 0;    ///< in the mean
};

/// The fewest instants of a spectrum.
constexpr std::size_t fewestInstants = 64;

/// The distance [s] between instants that are evenly spaced, as far as the six digits of a table
/// show; 0 where they are not, or are fewer than two.
double evenStep(const std::vector<double>& times);

/// Estimates the spectrum of elevations [m] every `step` [s]: the mean over segments that overlap
/// by half or more, without the mean elevation and under Hann's window (P. D. Welch, The use of
/// fast Fourier transform for the estimation of power spectra, 1967). Its sum times `step` of the
/// estimate is the variance of the series: the window weighs the instants unevenly, which a factor
/// makes good. A segment has at most a third of the instants, and at most 2048. There is no
/// estimate for a step that is not positive, for fewer than `fewestInstants`, or for still water.
spectrumEstimate estimateSpectrum(const std::vector<float>& elevations, double step);

} // namespace sorvik
