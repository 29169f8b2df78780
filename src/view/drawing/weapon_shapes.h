#pragma once
// Weapons and ammunition as shapes to scale, drawn from the few figures that a weapon file has: calibre,
// barrel, kind. What the files do not say (stocks, cartridge cases) has the usual proportions. A weapon
// points upwards, its rear end at y = 0; sizes are centimetres.

#include "view/drawing/draw_list.h"
#include "weapons/weapon_record.h"

#include <vector>

namespace varrocade {

/// A drawing of one thing: its shapes and the box that they take.
struct ShapeGroup {
    std::vector<ShapeItem> shapes;
    double width = 0; ///< to both sides of x = 0
    double length = 0;
};

ShapeGroup weaponShape(const WeaponRecord& weapon);

/// One round: a cartridge, a shell with its case, a mortar bomb, a rocket, a bomb or a hand grenade.
ShapeGroup roundShape(const WeaponRecord& weapon, const AmmoTypeRecord& ammo);

/// Puts a group into a drawing, its rear end at a point, turned by degrees clockwise.
void addShapes(DrawList& list, const ShapeGroup& group, Point rear, double angle, UnitPart part = {});

/// Widens what a drawing covers by a rectangle.
void coverBox(DrawList& list, Point least, Point greatest);

} // namespace varrocade
