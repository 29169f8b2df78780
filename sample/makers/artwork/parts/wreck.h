#pragma once

#include "relief.h"

#include <cstdint>

/// What fire and shells leave: drawn over an intact vehicle, in the picture's own frame.
namespace artwork {

/// Burns an area: ash and rust in the middle, soot around, fading out.
void scorch(Relief& r, Vec2 centre, double radius, double strength, std::uint32_t seed);
/// Fire all over: paint gone in patches, rust coming through, plates warped by so many centimetres.
void burnAll(Relief& r, double strength, double warp, std::uint32_t seed);
/// A shot-through hole with a torn bright lip.
void shellHole(Relief& r, Vec2 centre, double radius);
/// A furrow where a shell glanced off.
void furrow(Relief& r, Vec2 from, Vec2 to, double width);
/// A hatch blown away: the dark opening.
void openHatch(Relief& r, const Shape& opening);
/// A plate torn off along a jagged outline around a centre; what lies below shows black.
void tornPlate(Relief& r, Vec2 centre, double rx, double ry, std::uint32_t seed);
/// A broken length of track lying askew.
void brokenTrack(Relief& r, Vec2 centre, double angle, double width, int links, double pitch);
/// Splinters and fragments scattered around.
void debris(Relief& r, Vec2 centre, double radius, int count, std::uint32_t seed);

} // namespace artwork
