#pragma once

#include "relief.h"

#include <span>
#include <vector>

/// Vehicles seen from their left: x runs from the front (negative) to the rear, y up from the ground, heights
/// towards the beholder. All in centimetres.
namespace artwork {

struct SideWheel {
    double x = 0.0;
    double y = 0.0;
    double radius = 0.0;
};

enum class WheelStyle : std::uint8_t { Disc, Rubber, Dished, Spoked, Bogie };

void roadWheel(Relief& r, const SideWheel& wheel, WheelStyle style, double z = 14.0);
void sprocket(Relief& r, const SideWheel& wheel, int teeth, double z = 14.0);

/// A row of equal wheels between two x.
std::vector<SideWheel> wheelRow(int count, double x0, double x1, double y, double radius);

/// The belt around a set of wheels, with the dark of the inside behind them. `pitch` is a link's length.
void trackBelt(Relief& r, std::span<const SideWheel> around, double thickness, double pitch);

/// A gun pointing to the front: what is drawn with +y forwards lies along -x from the given point.
Pose pointingForward(double x, double y, double z = 20.0, double elevation = 0.0);

/// A rolled or cast body: flat towards the beholder, its edge turned away.
void sidePlate(Relief& r, std::initializer_list<Vec2> corners, double z, double edge = 2.0);
/// A body seen from the side that curves away upwards and downwards, as a cast turret does.
void sideCast(Relief& r, std::initializer_list<Vec2> corners, double z, double edge, double depth);

void aerial(Relief& r, Vec2 foot, double height, double lean = 0.06);
/// Dust and mud along the lower edge.
void splashMud(Relief& r, double x0, double x1, double top, Rgb colour);
void tyre(Relief& r, const SideWheel& wheel, double rim, double z = 16.0);

} // namespace artwork
