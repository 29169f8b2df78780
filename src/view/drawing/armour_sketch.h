#pragma once
// Armour as a small drawing: a component from its side, the front to the left, and across, each plate as
// thick and as sloped as it is. Computed without any device.

#include "data/unit/unit_record.h"
#include "view/drawing/draw_list.h"

#include <optional>
#include <string>
#include <vector>

namespace varrocade {

/// What a shot straight from the plate's side has to go through, in millimetres: thickness / cos(angle). A
/// plate as good as horizontal has none.
std::optional<double> effectiveThickness(const ArmourPlate& plate);

/// "100 @ 24\xB0"; without an angle where the plate is upright.
std::string plateText(const ArmourPlate& plate);

/// A plate as a line. x counts to the right and y downwards, both in shares of the sketch's height.
struct SketchPlate {
    Point from;
    Point to;
    std::int32_t thickness = 0; ///< millimetres
    std::int32_t spaced = 0;    ///< of a second plate before it, 0 for none
    std::string label = {};
    std::string effective = {}; ///< what a level shot meets, or empty
    /// Where the label is: -1 beside the sketch on its left, 1 on its right, 0 within it.
    int side = 0;
};

struct ArmourSketch {
    static constexpr double Width = 1.5;
    std::vector<SketchPlate> plates;
};

/// The component from its left side: front, rear, top, bottom, mantlet.
ArmourSketch sideSketch(const ArmourRecord& armour);

/// The component from its front: left and right plates.
ArmourSketch crossSketch(const ArmourRecord& armour);

} // namespace varrocade
