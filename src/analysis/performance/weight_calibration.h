#pragma once
// Fitting the weight's factors to the vehicles at hand.

#include "analysis/performance/weight_estimate.h"

#include <span>

namespace varrocade {

/// How a fit is drawn towards the factors that it begins with.
struct CalibrationOptions {
    /// The spread of an estimate's logarithm about the given weight.
    double spread = 0.12;
    /// By how much of its value a factor may well differ from one collection of files to another. Ten
    /// vehicles then move a factor half as far as a thousand would.
    double freedom = 0.20;
};

struct WeightCalibration {
    WeightFactors factors = builtInWeightFactors();
    double spread = 0.0;      ///< robust deviation of ln(given / estimate)
    std::size_t vehicles = 0; ///< how many it was fitted to
};

/// The factors that fit the given weights of these vehicles best. Vehicles far off count little (Huber's
/// weights on the logarithm), those without weight or estimate not at all. No factor leaves a quarter to four
/// times its start.
WeightCalibration calibrateWeight(std::span<const VehicleFigures> vehicles,
                                  const WeightFactors& start = builtInWeightFactors(),
                                  const CalibrationOptions& options = {});

} // namespace varrocade
