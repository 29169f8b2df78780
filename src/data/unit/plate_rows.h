#pragma once
// The eight plates that stand around a component.

#include "data/unit/elements.h"
#include "data/unit/unit_record.h"

#include <array>
#include <string_view>

namespace varrocade {

struct ArmourPlateRow {
    std::string_view element;
    std::string_view label; ///< for people
    ArmourPlate ArmourRecord::*member;
};

inline constexpr auto ArmourPlateRows = std::to_array<ArmourPlateRow>({
    {element::UpperFront, "Upper front", &ArmourRecord::upperFront},
    {element::LowerFront, "Lower front", &ArmourRecord::lowerFront},
    {element::UpperLeft, "Upper left", &ArmourRecord::upperLeft},
    {element::UpperRight, "Upper right", &ArmourRecord::upperRight},
    {element::LowerLeft, "Lower left", &ArmourRecord::lowerLeft},
    {element::LowerRight, "Lower right", &ArmourRecord::lowerRight},
    {element::UpperRear, "Upper rear", &ArmourRecord::upperRear},
    {element::LowerRear, "Lower rear", &ArmourRecord::lowerRear},
});

} // namespace varrocade
