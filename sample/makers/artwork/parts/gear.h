#pragma once

#include "relief.h"

#include <initializer_list>
#include <span>

/// Stowage, tools, running gear and guns seen from above, drawn like the fittings.
namespace artwork {

void shovel(Relief& r, double length);
void axe(Relief& r, double length);
void sledgehammer(Relief& r, double length);
void crowbar(Relief& r, double length);
void jack(Relief& r, double length);
void woodBlock(Relief& r, double width, double length);
void towCable(Relief& r, std::span<const Vec2> points, double width = 3.0);
void towCable(Relief& r, std::initializer_list<Vec2> points, double width = 3.0);
void cleaningRods(Relief& r, double length, int count);
void fireExtinguisher(Relief& r);
void headlight(Relief& r, double radius);
/// A Notek convoy lamp, like a flattened helmet.
void convoyLamp(Relief& r);
void shackle(Relief& r);
void stowageBox(Relief& r, double width, double length, double rise);
void jerrycan(Relief& r, const Paint& paint);
void canvasRoll(Relief& r, double length, double radius, const Paint& paint = paints::Canvas);
void crate(Relief& r, double width, double length, double rise);
/// A strip of track links lying flat, along y.
void spareTrack(Relief& r, double width, int links, double pitch);
void antennaBase(Relief& r);
void smokeTubes(Relief& r, int count, double length, double radius);

struct TrackStyle {
    double pitch = 13.0;
    double bar = 0.45; ///< share of the pitch that the grouser covers
    double barRise = 2.2;
    bool split = false; ///< every second link without a grouser
    bool rubber = false;
    bool chevron = false;
};
/// The upper run of a track between two x, from the rear wheel's to the front wheel's centre, curving down
/// around wheels of a radius at both ends.
void track(Relief& r, double x0, double x1, double rear, double front, double top, double radius,
           const TrackStyle& style);

/// A barrel along +y: points (y, radius), its axis at height z.
struct BarrelPoint {
    double y = 0.0;
    double radius = 0.0;
};
void barrel(Relief& r, std::span<const BarrelPoint> points, double z, const Paint& paint = paints::Hull);
void barrel(Relief& r, std::initializer_list<BarrelPoint> points, double z,
            const Paint& paint = paints::Hull);
/// A double-baffle muzzle brake whose tip is at y.
void muzzleBrake(Relief& r, double y, double length, double radius, double z);
void muzzleBore(Relief& r, double y, double radius, double z);
/// A light machine gun's barrel with a perforated jacket.
void machineGunBarrel(Relief& r, double from, double to, double radius, double z, bool jacket);

} // namespace artwork
