#include "analysis/performance/weight_calibration.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace varrocade {

namespace {

constexpr std::size_t N = WeightFactorCount;
constexpr int MaxRounds = 20;
constexpr double SettledStep = 1e-4;
/// Deviations beyond so many spreads count with the root of their weight only.
constexpr double HuberLimit = 1.5;
/// Beyond so many they are faults, not vehicles, and do not count.
constexpr double RejectLimit = 5.0;
constexpr double MinFactor = 0.25;
constexpr double MaxFactor = 4.0;
/// A normal distribution's standard deviation, of its median absolute deviation.
constexpr double DeviationOfMedian = 1.4826;

struct Sample {
    WeightTerms terms;
    double logWeight = 0.0;
};

/// A symmetric positive definite system, solved by elimination.
struct NormalEquations {
    std::array<std::array<double, N>, N> matrix = {};
    std::array<double, N> right = {};

    std::array<double, N> solve() {
        for (std::size_t i = 0; i < N; ++i) {
            for (std::size_t j = i + 1; j < N; ++j) {
                const double factor = matrix[j][i] / matrix[i][i];
                for (std::size_t k = i; k < N; ++k) {
                    matrix[j][k] -= factor * matrix[i][k];
                }
                right[j] -= factor * right[i];
            }
        }
        std::array<double, N> result = {};
        for (std::size_t i = N; i-- > 0;) {
            double sum = right[i];
            for (std::size_t k = i + 1; k < N; ++k) {
                sum -= matrix[i][k] * result[k];
            }
            result[i] = sum / matrix[i][i];
        }
        return result;
    }
};

double estimateOf(const Sample& sample, const WeightFactors& factors) {
    double sum = sample.terms.fixed;
    for (std::size_t k = 0; k < N; ++k) {
        sum += sample.terms.terms[k] * factors[k];
    }
    return std::max(sum, 1.0);
}

double huberWeight(double deviation, double spread) {
    const double size = std::abs(deviation) / spread;
    if (size > RejectLimit) {
        return 0.0;
    }
    return size <= HuberLimit ? 1.0 : HuberLimit / size;
}

/// One step of Gauss and Newton for the factors relative to their start.
WeightFactors improved(const std::vector<Sample>& samples, const WeightFactors& factors,
                       const WeightFactors& start, const CalibrationOptions& options) {
    NormalEquations equations;
    const double pull = options.spread * options.spread / (options.freedom * options.freedom);
    for (std::size_t k = 0; k < N; ++k) {
        equations.matrix[k][k] = pull;
        equations.right[k] = pull * (1.0 - factors[k] / start[k]);
    }
    for (const Sample& sample : samples) {
        const double estimate = estimateOf(sample, factors);
        const double deviation = sample.logWeight - std::log(estimate);
        const double weight = huberWeight(deviation, options.spread);
        std::array<double, N> slope;
        for (std::size_t k = 0; k < N; ++k) {
            slope[k] = sample.terms.terms[k] * start[k] / estimate;
        }
        for (std::size_t k = 0; k < N; ++k) {
            equations.right[k] += weight * slope[k] * deviation;
            for (std::size_t j = 0; j < N; ++j) {
                equations.matrix[k][j] += weight * slope[k] * slope[j];
            }
        }
    }
    const std::array<double, N> step = equations.solve();
    WeightFactors result = factors;
    for (std::size_t k = 0; k < N; ++k) {
        result[k] = std::clamp(factors[k] + step[k] * start[k], MinFactor * start[k], MaxFactor * start[k]);
    }
    return result;
}

double robustSpread(const std::vector<Sample>& samples, const WeightFactors& factors) {
    std::vector<double> sizes;
    sizes.reserve(samples.size());
    for (const Sample& sample : samples) {
        sizes.push_back(std::abs(sample.logWeight - std::log(estimateOf(sample, factors))));
    }
    if (sizes.empty()) {
        return 0.0;
    }
    const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    return DeviationOfMedian * *middle;
}

} // namespace

WeightCalibration calibrateWeight(std::span<const VehicleFigures> vehicles, const WeightFactors& start,
                                  const CalibrationOptions& options) {
    std::vector<Sample> samples;
    samples.reserve(vehicles.size());
    for (const VehicleFigures& vehicle : vehicles) {
        if (vehicle.canEstimate() && !vehicle.lacks(MissingFigure::Weight)) {
            samples.push_back({.terms = weightTerms(vehicle), .logWeight = std::log(vehicle.weight)});
        }
    }
    WeightCalibration calibration = {.factors = start, .vehicles = samples.size()};
    bool hasSettled = false;
    for (int round = 0; round < MaxRounds && !hasSettled; ++round) {
        const WeightFactors former = calibration.factors;
        calibration.factors = improved(samples, former, start, options);
        hasSettled = std::equal(former.begin(), former.end(), calibration.factors.begin(),
                                [](double a, double b) { return std::abs(a - b) <= SettledStep * b; });
    }
    calibration.spread = robustSpread(samples, calibration.factors);
    return calibration;
}

} // namespace varrocade
