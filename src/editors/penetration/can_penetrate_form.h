#pragma once
// What the "Can It Penetrate?" dialog shows, without any window.

#include "analysis/plate_ranges.h"
#include "weapons/weapon_catalogue.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// The coefficients of the wind resistance by projectile class, as they were typed.
using DragTexts = std::array<std::string, 8>;

/// The coefficients to begin with.
DragTexts defaultDragTexts();

/// "never", "up to 1,314 m", "at every range".
std::string plateRangeText(std::optional<int> range);

inline constexpr std::array<std::string_view, 5> PlateRangeHeads = {"Component", "Plate", "Thickness",
                                                                    "Angle", "Goes through"};

/// A plate in the columns of `PlateRangeHeads`: "2. Turret", "Upper front", "100 mm", "10", "up to 850 m".
std::array<std::string, PlateRangeHeads.size()> plateRangeCells(const VehicleRecord& vehicle,
                                                                const PlateRange& range);

/// The same in a sentence, for the plate that the mouse points to.
std::string plateRangeSentence(const VehicleRecord& vehicle, const PlateRange& range);

/// What is being asked: who shoots with what at whom.
struct PenetrationQuestion {
    std::string vehicle;
    std::string weapon;
    std::string shell;
    std::string drag;
};

/// All plates as tab separated lines below the question and a head, for the clipboard.
std::string plateRangeTable(const PenetrationQuestion& question, const VehicleRecord& vehicle,
                            std::span<const PlateRange> ranges);

} // namespace varrocade
