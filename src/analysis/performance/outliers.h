#pragma once
// Vehicles of a folder whose figures cannot be right: a weight, a plate or a size out of line.

#include "analysis/performance/weight_calibration.h"
#include "data/unit/unit_record.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

enum class OutlierKind : std::uint8_t { Weight = 0, Plate = 1, Size = 2 };

/// The stable key of a kind: "vehicle-weight", "vehicle-plate", "vehicle-size".
std::string_view outlierKey(OutlierKind kind);

struct Outlier {
    std::size_t vehicle = 0; ///< in the list that was looked through
    std::string name;        ///< of its file
    OutlierKind kind = OutlierKind::Weight;
    std::size_t component = 0; ///< in the vehicle's list; 0 for its weight
    std::string what;          ///< such as "weight", "upper_front of the hull", "length of the hull"
    double given = 0.0;        ///< in the file's unit
    double expectedFrom = 0.0; ///< the range that would pass
    double expectedTo = 0.0;
    std::string sentence; ///< for people, with the figures
};

/// Sizes no vehicle has, plates out of proportion to the others of the vehicle and to its weight, weights far
/// from what the shares add up to. Vehicles with a fault of size or plate are not asked for their weight: it
/// would be wrong for that reason alone.
std::vector<Outlier> sizeOutliers(const VehicleRecord& vehicle);
std::vector<Outlier> plateOutliers(const VehicleRecord& vehicle, const VehicleFigures& figures);
/// Those of size and, behind them, those of plates.
std::vector<Outlier> bodyOutliers(const VehicleRecord& vehicle, const VehicleFigures& figures);
std::optional<Outlier> weightOutlier(const VehicleFigures& figures, const WeightCalibration& calibration);

/// All vehicles of a folder together; `figures` are those of `units`, in the same order. The weights' factors
/// are fitted to them first. In the order of the units.
std::vector<Outlier> findOutliers(std::span<const SquadRecord> units,
                                  std::span<const VehicleFigures> figures);

} // namespace varrocade
