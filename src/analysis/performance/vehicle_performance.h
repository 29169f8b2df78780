#pragma once
// What is worked out of one vehicle: what it should weigh, and how it drives.

#include "analysis/performance/drive_simulation.h"
#include "analysis/performance/weight_estimate.h"

#include <cstdint>
#include <optional>
#include <string>

namespace varrocade {

struct VehiclePerformance {
    VehicleFigures figures;
    std::optional<WeightShares> shares; ///< nothing where figures are missing, as below
    double estimate = 0.0;              ///< kilograms that the shares add up to; 0 without them
    double weight = 0.0;                ///< kilograms that it drives with: as given, or else the estimate
    std::optional<DriveModel> drive;
};

VehiclePerformance vehiclePerformance(const SquadRecord& unit, const WeaponMasses& weapons);

/// An estimate as people are told it and a file takes it: to 100 kg, below ten tonnes to 10 kg. More would
/// feign what no estimate knows.
std::int32_t roundedWeight(double kilograms);

/// What the figures lack: "no weight, no horsepower"; empty where they are complete.
std::string missingFiguresText(const VehicleFigures& figures);

/// Estimate and top speeds in one line: "Estimate: 55,800 kg, 2 % below the weight given; 39 km/h on roads,
/// 24 km/h on fields." Or what is missing for that.
std::string performanceLine(const VehiclePerformance& performance);

/// "2 % below the weight given", "as given"; empty where no weight is given or there is no estimate.
std::string estimateAgainstWeight(const VehiclePerformance& performance);

} // namespace varrocade
