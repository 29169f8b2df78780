#pragma once

#include "relief.h"

#include <initializer_list>
#include <vector>

/// Aircraft seen from above: nose towards +y, centimetres, the middle of the picture at the origin.
namespace artwork {

struct Section {
    double y = 0.0;
    double halfWidth = 0.0;
};

/// A round body through its sections, from the tail to the nose or the other way.
void fuselage(Relief& r, std::initializer_list<Section> sections, double z,
              const Paint& paint = paints::Hull);

/// A wing or tailplane: its right half's outline, leading edge first from the root outwards, then the
/// trailing edge back; drawn on both sides. `thickness` at the thickest.
void wingPair(Relief& r, std::initializer_list<Vec2> rightHalf, double z, double thickness);
/// The same line, ruled on both sides: ribs, flaps, ailerons.
void ruledPair(Relief& r, std::initializer_list<Vec2> line, double width = 2.0);
/// Panel lines across a body at these y.
void bodyFrames(Relief& r, std::initializer_list<double> at, double halfWidth);

/// A glazed hood with its frames; `frames` panes along.
void canopy(Relief& r, double from, double to, double halfWidth, double z, int frames);
/// The blur of a turning propeller ahead of its spinner.
void propeller(Relief& r, Vec2 hub, double radius, double spinner);
/// Paint burnt and smeared behind an exhaust.
void exhaustStain(Relief& r, Vec2 from, double length, double width);
/// A row of exhaust stubs along both sides of a nose, and the stain behind them. `x` of their outer ends, `y`
/// of the rearmost.
void exhaustStubs(Relief& r, double x, double y, double pitch, int count, double stain);
/// A fin seen from above.
void fin(Relief& r, double x, double front, double rear, double width, double z);

void starAndBar(Relief& r, Vec2 centre, double radius);
void redStarMark(Relief& r, Vec2 centre, double radius);
void plainCross(Relief& r, Vec2 centre, double size);
void britishRoundel(Relief& r, Vec2 centre, double radius, bool yellowRing);

} // namespace artwork
