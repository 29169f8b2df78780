#pragma once

#include "relief.h"

#include <initializer_list>
#include <span>
#include <vector>

/// Armoured bodies seen from above, and the marks on them.
namespace artwork {

/// A body with sloped walls: each edge of the lower outline rises to the same edge of the upper one. Both
/// outlines have as many corners; heights in the current frame.
void frustum(Relief& r, std::span<const Vec2> lower, std::span<const Vec2> upper, double bottom, double top,
             bool roof = true);
/// Both outlines given as right halves from front to rear.
void frustumSymmetric(Relief& r, std::initializer_list<Vec2> lower, std::initializer_list<Vec2> upper,
                      double bottom, double top, bool roof = true);
/// One flat plate through its corners; the height follows from the first three of `heights`.
void plate(Relief& r, std::initializer_list<Vec2> corners, double z0, double z1, double z2);

/// A ring of bolts and the well that a turret leaves open when it is not drawn.
void turretRing(Relief& r, Vec2 centre, double radius, int boltCount);

/// Rivets along a line at a pitch.
void rivets(Relief& r, std::initializer_list<Vec2> points, double pitch = 8.0, double radius = 1.2);

void star(Relief& r, Vec2 centre, double radius, Rgb colour, double opacity = 0.85);
void balkenCross(Relief& r, Vec2 centre, double size);
void roundel(Relief& r, Vec2 centre, double radius, std::initializer_list<Rgb> fromOutside);
/// Stencilled digits, standing upright, `height` tall.
void digits(Relief& r, Vec2 start, double height, const char* text, Rgb colour, double opacity = 0.85);

} // namespace artwork
