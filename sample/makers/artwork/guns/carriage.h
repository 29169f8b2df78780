#pragma once

#include "relief.h"

#include <initializer_list>

/// The parts of towed guns seen from above; the origin is the gun's pivot, +y the way it points.
namespace artwork {

enum class GunWheel : std::uint8_t { Disc, Pneumatic, Spoked, Perforated };

void gunWheel(Relief& r, double x, double y, double radius, double width, GunWheel style);

struct Trails {
    double hinge = 24.0;  ///< sideways from the middle
    double start = -8.0;  ///< y of the hinges
    double reach = 300.0; ///< y of the spades, counted backwards
    double spread = 22.0; ///< degrees outwards, each
    double width = 13.0;  ///< of the leg at its hinge
    double z = 40.0;      ///< height at the hinge; the spade lies on the ground
    bool tubular = true;
};
void splitTrails(Relief& r, const Trails& trails);

/// A shield plate leaning back: its lower edge, then its upper edge, both from left to right.
void shieldPlate(Relief& r, std::initializer_list<Vec2> lower, std::initializer_list<Vec2> upper, double z0,
                 double z1);
/// A box-shaped cradle below the barrel.
void cradle(Relief& r, double from, double to, double width, double z);
/// Breech ring with its opening lever.
void breech(Relief& r, double from, double to, double width, double z);
void handwheel(Relief& r, double radius);
void axle(Relief& r, double halfWidth, double y, double z);

} // namespace artwork
