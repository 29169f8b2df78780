#include "view/drawing/armour_sketch.h"

#include "view/drawing/drawing_angles.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

constexpr double Top = 0.12;
constexpr double Middle = 0.5;
constexpr double Bottom = 0.88;
constexpr double Left = 0.15;
constexpr double Right = ArmourSketch::Width - Left;

/// How far a plate leans from the middle to its upper or lower edge.
double leanOf(const ArmourPlate& plate) {
    constexpr double most = 0.5; // flatter plates would meet in the middle
    constexpr double least = -0.1;
    constexpr std::int32_t steepest = 85;
    const double angle = radians(std::clamp(plate.angle, -steepest, steepest));
    return std::clamp(std::tan(angle) * (Middle - Top), least, most);
}

/// The four plates that stand around the sketch, and what joins them.
struct Around {
    const ArmourPlate& upperLeft;
    const ArmourPlate& lowerLeft;
    const ArmourPlate& upperRight;
    const ArmourPlate& lowerRight;
    std::int32_t spacedLeft;
    std::int32_t spacedRight;
};

void addPlate(ArmourSketch& sketch, const ArmourPlate& plate, Point from, Point to, std::int32_t spaced,
              int side) {
    SketchPlate line{
        .from = from, .to = to, .thickness = plate.thickness, .spaced = std::max(0, spaced), .side = side};
    line.label = plateText(plate) + (line.spaced > 0 ? " + " + std::to_string(line.spaced) : std::string());
    if (const auto effective = effectiveThickness(plate); effective && plate.angle != 0) {
        line.effective = "= " + std::to_string(std::lround(*effective));
    }
    sketch.plates.push_back(std::move(line));
}

void addLevel(ArmourSketch& sketch, std::int32_t thickness, Point from, Point to) {
    if (thickness >= 0) {
        sketch.plates.push_back(
            {.from = from, .to = to, .thickness = thickness, .label = std::to_string(thickness)});
    }
}

ArmourSketch sketchAround(const Around& plates, const ArmourRecord& armour) {
    ArmourSketch sketch;
    const Point upperLeft{Left + leanOf(plates.upperLeft), Top};
    const Point lowerLeft{Left + leanOf(plates.lowerLeft), Bottom};
    const Point upperRight{Right - leanOf(plates.upperRight), Top};
    const Point lowerRight{Right - leanOf(plates.lowerRight), Bottom};
    addPlate(sketch, plates.upperLeft, {Left, Middle}, upperLeft, plates.spacedLeft, -1);
    addPlate(sketch, plates.lowerLeft, {Left, Middle}, lowerLeft, plates.spacedLeft, -1);
    addPlate(sketch, plates.upperRight, {Right, Middle}, upperRight, plates.spacedRight, 1);
    addPlate(sketch, plates.lowerRight, {Right, Middle}, lowerRight, plates.spacedRight, 1);
    addLevel(sketch, armour.top, upperLeft, upperRight);
    addLevel(sketch, armour.bottom, lowerLeft, lowerRight);
    return sketch;
}

} // namespace

std::optional<double> effectiveThickness(const ArmourPlate& plate) {
    constexpr double leastCosine = 0.01;
    const double cosine = std::cos(radians(plate.angle));
    return cosine < leastCosine ? std::nullopt : std::optional(plate.thickness / cosine);
}

std::string plateText(const ArmourPlate& plate) {
    const std::string thickness = std::to_string(plate.thickness);
    return plate.angle == 0 ? thickness : thickness + " @ " + std::to_string(plate.angle) + "\xB0";
}

ArmourSketch sideSketch(const ArmourRecord& armour) {
    ArmourSketch sketch = sketchAround({armour.upperFront, armour.lowerFront, armour.upperRear,
                                        armour.lowerRear, armour.frontSpaced, armour.rearSpaced},
                                       armour);
    if (armour.mantlet >= 0) {
        constexpr double before = 0.1;
        constexpr double half = 0.13;
        sketch.plates.push_back({.from = {Left - before, Middle - half},
                                 .to = {Left - before, Middle + half},
                                 .thickness = armour.mantlet,
                                 .label = "mantlet " + std::to_string(armour.mantlet)});
    }
    return sketch;
}

ArmourSketch crossSketch(const ArmourRecord& armour) {
    return sketchAround({armour.upperLeft, armour.lowerLeft, armour.upperRight, armour.lowerRight,
                         armour.sideSpaced, armour.sideSpaced},
                        armour);
}

} // namespace varrocade
