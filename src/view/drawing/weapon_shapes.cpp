#include "view/drawing/weapon_shapes.h"

#include "view/drawing/drawing_angles.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace varrocade {

namespace {

constexpr Colour Gunmetal{58, 62, 68};
constexpr Colour Steel{96, 100, 106};
constexpr Colour Wood{128, 84, 48};
constexpr Colour Brass{198, 164, 82};
constexpr Colour Copper{176, 104, 62};
constexpr double MillimetresPerCentimetre = 10;
/// Thinner lines would be lost beside the grid.
constexpr double LeastCalibre = 0.55;

/// Collects shapes that are the same on both sides of x = 0.
class Turned {
public:
    /// A body by its half widths at distances from its rear end.
    void body(std::span<const Point> halves, Colour fill) {
        ShapeItem shape{.corners = {}, .fill = fill};
        for (const Point half : halves) {
            shape.corners.push_back(half);
            grow(half);
        }
        for (std::size_t i = halves.size(); i > 0; --i) {
            shape.corners.push_back({-halves[i - 1].x, halves[i - 1].y});
        }
        group_.shapes.push_back(std::move(shape));
    }

    void tube(double from, double to, double width, Colour fill) {
        body(std::array<Point, 2>{{{width / 2, from}, {width / 2, to}}}, fill);
    }

    /// What sticks out to the right only: a magazine, a grip.
    void side(std::span<const Point> corners, Colour fill) {
        group_.shapes.push_back({.corners = {corners.begin(), corners.end()}, .fill = fill});
        for (const Point corner : corners) {
            grow(corner);
        }
    }

    ShapeGroup take() { return std::move(group_); }

private:
    void grow(Point corner) {
        group_.width = std::max(group_.width, 2 * std::abs(corner.x));
        group_.length = std::max(group_.length, corner.y);
    }
    ShapeGroup group_;
};

double calibreOf(const WeaponRecord& weapon) {
    return std::max(LeastCalibre, weapon.calibre / MillimetresPerCentimetre);
}

double barrelOf(const WeaponRecord& weapon) {
    return weapon.barrelLength / MillimetresPerCentimetre;
}

/// How much of a weapon lies behind its barrel, in centimetres.
struct StockRow {
    WeaponType type;
    double behind;
    double magazine; ///< how far it sticks out
};

constexpr auto Stocks = std::to_array<StockRow>({
    {WeaponType::Rifle, 46, 3},
    {WeaponType::Carbine, 42, 3},
    {WeaponType::Shotgun, 44, 0},
    {WeaponType::Pistol, 8, 0},
    {WeaponType::Smg, 40, 16},
    {WeaponType::Lmg, 46, 10},
    {WeaponType::AtRifle, 55, 8},
    {WeaponType::GrenadeLauncher, 36, 0},
});

ShapeGroup shoulderArm(const WeaponRecord& weapon, const StockRow& row) {
    Turned shape;
    const double calibre = calibreOf(weapon);
    const double barrel = std::max(5.0, barrelOf(weapon));
    const double total = row.behind + barrel;
    if (weapon.type == WeaponType::Pistol) {
        shape.side(std::array<Point, 4>{{{0.5, 0}, {11, -1}, {11, 4}, {0.5, 5}}}, Wood);
        shape.tube(0, row.behind, 3.2, Gunmetal);
        shape.tube(row.behind, total, std::max(1.6, calibre * 1.8), Steel);
        return shape.take();
    }
    shape.side(std::array<Point, 4>{{{-1.2, 0}, {8, 0}, {2.5, row.behind * 0.6}, {-1.2, row.behind * 0.6}}},
               Wood);
    // The fore-end reaches half-way along the barrel.
    shape.tube(row.behind, row.behind + barrel * 0.5, 4.2, Wood);
    shape.tube(row.behind * 0.55, row.behind + 3, 5, Gunmetal);
    // Rifles of few rounds are held by the neck of the stock.
    constexpr std::int16_t mostWithoutGrip = 10;
    if (weapon.magazineCapacity > mostWithoutGrip) {
        shape.side(std::array<Point, 4>{{{2, row.behind * 0.6},
                                         {8, row.behind * 0.6 - 5},
                                         {8, row.behind * 0.6 - 1},
                                         {2, row.behind * 0.6 + 4}}},
                   Wood);
    }
    if (row.magazine > 0 && weapon.magazineCapacity > 1) {
        shape.side(std::array<Point, 4>{{{2, row.behind - 2},
                                         {2 + row.magazine, row.behind - 1},
                                         {2 + row.magazine, row.behind + 2},
                                         {2, row.behind + 3}}},
                   Gunmetal);
    }
    shape.tube(row.behind, total, std::max(1.4, calibre * 1.8), Steel);
    return shape.take();
}

/// A gun's barrel, thicker towards the breech, with the breech block behind it.
ShapeGroup gun(const WeaponRecord& weapon) {
    Turned shape;
    const double calibre = calibreOf(weapon);
    const double barrel = std::max(4 * calibre, barrelOf(weapon));
    const double block = 3 * calibre;
    const double rest = block + barrel;
    shape.body(std::array<Point, 4>{{{calibre * 1.05, block},
                                     {calibre * 1.05, block + barrel * 0.3},
                                     {calibre * 0.75, block + barrel * 0.34},
                                     {calibre * 0.65, rest}}},
               Steel);
    shape.tube(0, block, calibre * 3, Gunmetal);
    // The brake of a long gun.
    constexpr double longBarrel = 40; // calibres
    if (barrel > longBarrel * calibre && weapon.type == WeaponType::Cannon) {
        shape.tube(rest - 3 * calibre, rest - 0.6 * calibre, calibre * 2, Gunmetal);
    }
    return shape.take();
}

ShapeGroup heavyMachineGun(const WeaponRecord& weapon) {
    Turned shape;
    const double barrel = std::max(20.0, barrelOf(weapon));
    constexpr double box = 42;
    shape.tube(0, 4, 10, Wood);
    shape.tube(4, box, 9, Gunmetal);
    shape.tube(box, box + barrel * 0.55, std::max(4.5, calibreOf(weapon) * 3), Steel);
    shape.tube(box + barrel * 0.55, box + barrel, std::max(1.8, calibreOf(weapon) * 2), Gunmetal);
    return shape.take();
}

ShapeGroup mortar(const WeaponRecord& weapon) {
    Turned shape;
    const double calibre = calibreOf(weapon);
    const double barrel = std::max(4 * calibre, barrelOf(weapon));
    shape.body(std::array<Point, 4>{{{calibre * 2.4, 0}, {calibre * 2.4, 2}, {calibre * 0.9, 5}, {0.5, 6}}},
               Gunmetal);
    shape.tube(5, 5 + barrel, calibre * 1.25, Steel);
    shape.tube(5 + barrel * 0.6, 5 + barrel * 0.66, calibre * 1.7, Gunmetal);
    return shape.take();
}

/// An open tube: a recoilless rifle or an anti-tank launcher.
ShapeGroup launcher(const WeaponRecord& weapon) {
    Turned shape;
    const double calibre = calibreOf(weapon);
    const double barrel = std::max({4 * calibre, barrelOf(weapon), 30.0});
    shape.body(std::array<Point, 3>{{{calibre * 0.95, 0}, {calibre * 0.6, 12}, {calibre * 0.6, 14}}},
               Gunmetal);
    shape.tube(12, barrel, calibre * 1.15, Steel);
    shape.side(std::array<Point, 4>{{{calibre * 0.55, barrel * 0.55},
                                     {calibre * 0.55 + 10, barrel * 0.55 - 3},
                                     {calibre * 0.55 + 10, barrel * 0.55},
                                     {calibre * 0.55, barrel * 0.55 + 4}}},
               Wood);
    return shape.take();
}

ShapeGroup rocketRails(const WeaponRecord& weapon) {
    Turned shape;
    const double calibre = calibreOf(weapon);
    const double barrel = std::max(6 * calibre, barrelOf(weapon));
    constexpr int mostTubes = 12;
    const int tubes = std::clamp<int>(weapon.numberOfBarrels, 1, mostTubes);
    for (int i = 0; i < tubes; ++i) {
        const double left = (i - tubes / 2.0) * calibre * 1.4;
        shape.side(
            std::array<Point, 4>{
                {{left, 0}, {left + calibre * 1.3, 0}, {left + calibre * 1.3, barrel}, {left, barrel}}},
            i % 2 == 0 ? Steel : Gunmetal);
    }
    return shape.take();
}

ShapeGroup flamethrower(const WeaponRecord& weapon) {
    Turned shape;
    const bool isPortable = weapon.type == WeaponType::FlamethrowerPortable;
    const double length = std::max(isPortable ? 80.0 : 120.0, barrelOf(weapon));
    if (isPortable) {
        shape.side(std::array<Point, 4>{{{12, 0}, {28, 0}, {28, 55}, {12, 55}}}, Gunmetal);
        shape.side(std::array<Point, 4>{{{30, 4}, {40, 4}, {40, 50}, {30, 50}}}, Steel);
    }
    shape.tube(0, length, 3.2, Steel);
    shape.tube(length - 8, length, 5.5, Gunmetal);
    return shape.take();
}

// ---- rounds

bool isSmoke(AmmoFlavour flavour) {
    return flavour == AmmoFlavour::Smoke || flavour == AmmoFlavour::MortarSmoke ||
           flavour == AmmoFlavour::GrenadeSmoke || flavour == AmmoFlavour::ArtillerySmoke ||
           flavour == AmmoFlavour::RpgSmoke;
}

Colour bodyColour(AmmoFlavour flavour) {
    switch (flavour) {
    case AmmoFlavour::Ball:
    case AmmoFlavour::Pellets:
        return Copper;
    case AmmoFlavour::Ap:
    case AmmoFlavour::Apc:
    case AmmoFlavour::Apcbc:
    case AmmoFlavour::AtRifleAp:
        return {48, 48, 50};
    case AmmoFlavour::Apcr:
    case AmmoFlavour::Apcnr:
    case AmmoFlavour::Apds:
    case AmmoFlavour::Apfsds:
        return {104, 108, 120};
    default:
        return isSmoke(flavour)  ? Colour{142, 164, 140}
               : isHeat(flavour) ? Colour{92, 92, 70}
                                 : Colour{122, 120, 62};
    }
}

/// A pointed body of `calibre` from `from` on.
void addProjectile(Turned& shape, double calibre, double from, double length, Colour colour) {
    const double half = calibre / 2;
    shape.body(std::array<Point, 6>{{{half * 0.86, from},
                                     {half, from + length * 0.1},
                                     {half, from + length * 0.45},
                                     {half * 0.8, from + length * 0.68},
                                     {half * 0.45, from + length * 0.88},
                                     {0, from + length}}},
               colour);
}

void addFins(Turned& shape, double calibre, double length) {
    shape.body(
        std::array<Point, 4>{
            {{calibre * 0.5, 0}, {calibre * 0.5, length}, {calibre * 0.12, length * 1.4}, {0, length * 1.4}}},
        Steel);
}

ShapeGroup finned(double calibre, double length, Colour colour) {
    Turned shape;
    addFins(shape, calibre, length * 0.18);
    shape.body(std::array<Point, 6>{{{calibre * 0.12, length * 0.16},
                                     {calibre * 0.4, length * 0.42},
                                     {calibre * 0.5, length * 0.62},
                                     {calibre * 0.46, length * 0.8},
                                     {calibre * 0.25, length * 0.94},
                                     {0, length}}},
               colour);
    return shape.take();
}

ShapeGroup handGrenade(Colour colour) {
    Turned shape;
    shape.body(std::array<Point, 6>{{{1.5, 0}, {2.7, 1.6}, {2.9, 4.5}, {2.2, 7}, {1.2, 8}, {1.2, 10}}},
               colour);
    return shape.take();
}

/// A bomb's diameter from its mass: about a third of it is hollow or explosive, and its length is four to
/// five of them.
double bombDiameter(float kilograms) {
    constexpr double centimetresOfOneKilogram = 5.6;
    return centimetresOfOneKilogram * std::cbrt(std::max(1.0F, kilograms));
}

ShapeGroup cartridge(const WeaponRecord& weapon, const AmmoTypeRecord& ammo) {
    Turned shape;
    const double calibre = std::max(0.4, weapon.calibre / MillimetresPerCentimetre);
    const bool isShort = weapon.type == WeaponType::Pistol || weapon.type == WeaponType::Smg;
    // A case grows with the speed it gives: about five calibres at 750 m/s for rifles and tank guns alike.
    constexpr double speedOfACalibre = 150;
    const double caseLength = calibre * (isShort ? 2.2 : 2 + std::min(1500.0F, ammo.speed) / speedOfACalibre);
    const bool isArrow = ammo.flavour == AmmoFlavour::Apfsds;
    const double length = calibre * (isArrow ? 5 : isShort ? 1.2 : 3.2);
    const double caseHalf = calibre * (isShort ? 0.54 : 0.66);
    shape.body(std::array<Point, 5>{{{caseHalf * 1.06, 0},
                                     {caseHalf, caseLength * 0.06},
                                     {caseHalf * 0.95, caseLength * 0.78},
                                     {calibre * 0.52, caseLength * 0.88},
                                     {calibre * 0.52, caseLength}}},
               Brass);
    addProjectile(shape, isArrow ? calibre * 0.35 : calibre, caseLength, length, bodyColour(ammo.flavour));
    return shape.take();
}

} // namespace

ShapeGroup weaponShape(const WeaponRecord& weapon) {
    const auto stock = std::find_if(Stocks.begin(), Stocks.end(),
                                    [&](const StockRow& row) { return row.type == weapon.type; });
    if (stock != Stocks.end()) {
        return shoulderArm(weapon, *stock);
    }
    switch (weapon.type) {
    case WeaponType::Hmg:
        return heavyMachineGun(weapon);
    case WeaponType::Mortar:
        return mortar(weapon);
    case WeaponType::Rpg:
    case WeaponType::RecoillessRifle:
        return launcher(weapon);
    case WeaponType::Mlrs:
        return rocketRails(weapon);
    case WeaponType::FlamethrowerPortable:
    case WeaponType::FlamethrowerTank:
        return flamethrower(weapon);
    case WeaponType::Bomb:
    case WeaponType::Grenade:
        return roundShape(weapon, weapon.ammoTypes.empty() ? AmmoTypeRecord{} : weapon.ammoTypes.front());
    default:
        return gun(weapon);
    }
}

ShapeGroup roundShape(const WeaponRecord& weapon, const AmmoTypeRecord& ammo) {
    const double calibre = calibreOf(weapon);
    const Colour colour = bodyColour(ammo.flavour);
    switch (weapon.type) {
    case WeaponType::Bomb: {
        const double diameter = weapon.calibre > 0 ? calibre : bombDiameter(ammo.mass);
        return finned(diameter, diameter * 4.6, colour);
    }
    case WeaponType::Grenade:
        return handGrenade(colour);
    case WeaponType::Mortar:
        return finned(calibre, calibre * 4, colour);
    case WeaponType::Rpg:
    case WeaponType::Mlrs:
        return finned(std::max(3.0, calibre), std::max(3.0, calibre) * 7, colour);
    case WeaponType::FlamethrowerPortable:
    case WeaponType::FlamethrowerTank:
        return {};
    default:
        return cartridge(weapon, ammo);
    }
}

void addShapes(DrawList& list, const ShapeGroup& group, Point rear, double angle, UnitPart part) {
    for (const ShapeItem& shape : group.shapes) {
        ShapeItem moved = shape;
        moved.part = part;
        for (Point& corner : moved.corners) {
            corner = rear + turned(corner, angle);
        }
        list.items.emplace_back(std::move(moved));
    }
}

void coverBox(DrawList& list, Point least, Point greatest) {
    list.least = {std::min(list.least.x, least.x), std::min(list.least.y, least.y)};
    list.greatest = {std::max(list.greatest.x, greatest.x), std::max(list.greatest.y, greatest.y)};
}

} // namespace varrocade
