#include "analysis/compared_figures.h"

#include "weapons/weapon_fields.h"

#include <array>

namespace varrocade {

namespace {

namespace wf = weapon_field;

using Value = double (*)(const WeaponRecord&, const AmmoTypeRecord&);

double one(const WeaponRecord&, const AmmoTypeRecord&) {
    return 1;
}

constexpr ComparedFigure ofField(const FieldInfo& field, Value value, bool isNoted = true) {
    return {figureOf(field), value, one, field.traits.unit, isNoted};
}

/// The volume of a cube as wide as the calibre, in cubic decimetres.
double cubeOfCalibre(const WeaponRecord& weapon) {
    constexpr double decimetre = 100; // millimetres
    const double calibre = weapon.calibre / decimetre;
    return calibre * calibre * calibre;
}

constexpr auto WeaponFigures = std::to_array<ComparedFigure>({
    ofField(wf::Calibre,
            [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return double{weapon.calibre}; }),
    {{&wf::BarrelLength, wf::BarrelLength.label, "calibres"},
     [](const WeaponRecord& weapon, const AmmoTypeRecord&) {
         return weapon.calibre > 0 ? weapon.barrelLength / double{weapon.calibre} : 0.0;
     },
     [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return double{weapon.calibre}; },
     wf::BarrelLength.traits.unit},
    ofField(wf::Range, [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return 1.0 * weapon.range; }),
    ofField(wf::RateOfFire,
            [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return 1.0 * weapon.rateOfFire; }),
    ofField(
        wf::Capacity,
        [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return 1.0 * weapon.magazineCapacity; },
        false),
});

/// Projectiles of a kind are alike in shape: their masses go with the cube of the calibre.
constexpr auto AmmoFigures = std::to_array<ComparedFigure>({
    ofField(wf::Speed, [](const WeaponRecord&, const AmmoTypeRecord& ammo) { return double{ammo.speed}; }),
    {{&wf::Mass, "Mass for the calibre", "kg/dm3"},
     [](const WeaponRecord& weapon, const AmmoTypeRecord& ammo) {
         return weapon.calibre > 0 ? ammo.mass / cubeOfCalibre(weapon) : 0.0;
     },
     [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return cubeOfCalibre(weapon); },
     wf::Mass.traits.unit},
    {{&wf::HighExplosive, "Share of high explosive"},
     [](const WeaponRecord&, const AmmoTypeRecord& ammo) { return explosiveShare(ammo); },
     [](const WeaponRecord&, const AmmoTypeRecord&) { return 100.0; },
     "%"},
    ofField(
        wf::ExplodeIn, [](const WeaponRecord&, const AmmoTypeRecord& ammo) { return double{ammo.explodeIn}; },
        false),
});

} // namespace

std::span<const ComparedFigure> figuresOfWeapons() {
    return WeaponFigures;
}

std::span<const ComparedFigure> figuresOfAmmunition() {
    return AmmoFigures;
}

double explosiveShare(const AmmoTypeRecord& ammo) {
    return ammo.mass > 0 ? double{ammo.highExplosive} / ammo.mass : 0.0;
}

} // namespace varrocade
