#pragma once

#include "relief.h"

#include <span>

/// Small fittings of a vehicle seen from above. Each is drawn around the origin of the current frame,
/// standing on height 0 of it; place it with Relief::place. Sizes are centimetres.
namespace artwork {

void bolts(Relief& r, Vec2 from, Vec2 to, int count, double radius = 1.5);
void boltRing(Relief& r, Vec2 centre, double radius, int count, double size = 1.4);
/// A raised, slightly uneven seam.
void weld(Relief& r, std::span<const Vec2> points, double width = 2.0);
void weld(Relief& r, std::initializer_list<Vec2> points, double width = 2.0);
/// A gap between two plates.
void gap(Relief& r, std::initializer_list<Vec2> points, double width = 1.0, double depth = 1.2);
/// A plate standing proud with a thin gap around it, corners rounded.
void panel(Relief& r, double x0, double y0, double x1, double y1, double rise = 1.2, double radius = 2.0);

void hatchRound(Relief& r, double radius, double rise = 4.0);
void hatchRect(Relief& r, double width, double length, double rise = 3.5, double radius = 4.0);
/// Two leaves side by side that open outwards.
void hatchSplit(Relief& r, double width, double length, double rise = 3.5);
void hinge(Relief& r, double width);
void handle(Relief& r, double width);
void periscope(Relief& r, double width = 16.0, double depth = 9.0, double height = 6.0);
void liftingHook(Relief& r);
void ventDome(Relief& r, double radius);
void fillerCap(Relief& r, double radius);
/// A drum with vision blocks around it and a hatch on top.
void cupola(Relief& r, double radius, double rise, int blocks, bool castRing);

/// An opening closed by slats across (crosswise) or along.
void louvres(Relief& r, double x0, double y0, double x1, double y1, int slats, bool crosswise = true);
/// An opening under a wire mesh in a frame.
void meshGrille(Relief& r, double x0, double y0, double x1, double y1, double pitch = 4.0);
/// A round grating with spokes over a dark well, the fan's blades showing.
void fanGrille(Relief& r, double radius, int spokes);
/// An armoured cowl over an air intake, open on its outer side.
void intakeCowl(Relief& r, double width, double length, double rise);

/// An upright exhaust stack under a curved heat shield.
void exhaustStack(Relief& r, double radius, double rise);
/// A lying silencer with a tail pipe.
void silencer(Relief& r, double length, double radius, double tail);
void exhaustPipe(Relief& r, double length, double radius);

} // namespace artwork
