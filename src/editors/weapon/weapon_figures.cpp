#include "editors/weapon/weapon_figures.h"

#include "analysis/penetration.h"
#include "analysis/usual_spans.h"
#include "data/format/numbers.h"
#include "data/format/words.h"
#include "weapons/ammo_words.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr std::string_view NoFigure = "-";

std::string withUnit(double value, std::string_view unit) {
    if (value == 0) {
        return std::string(NoFigure);
    }
    std::string text;
    appendShortest(text, value);
    return text + " " + std::string(unit);
}

std::string penetrationAt(const WeaponRecord& weapon, const AmmoTypeRecord& ammo, int range) {
    return penetrationText(
        impactAt(projectileOf(weapon, ammo), defaultDrag(ammo.flavour), range, 0).penetration);
}

/// A line of figures of the weapon itself.
struct WeaponFigure {
    std::string_view label;
    std::string (*text)(const WeaponRecord&);
};

/// One of its ammunition.
struct AmmoFigure {
    std::string_view label;
    std::string (*text)(const WeaponRecord&, const AmmoTypeRecord&);
};

constexpr auto FiguresOfWeapon = std::to_array<WeaponFigure>({
    {"Calibre", [](const WeaponRecord& weapon) { return withUnit(weapon.calibre, "mm"); }},
    {"Barrel",
     [](const WeaponRecord& weapon) {
         if (!(weapon.calibre > 0) || weapon.barrelLength <= 0) {
             return withUnit(weapon.barrelLength, "mm");
         }
         std::string calibres;
         appendFixed(calibres, weapon.barrelLength / double{weapon.calibre}, 0);
         return withUnit(weapon.barrelLength, "mm") + " (L" + calibres + ")";
     }},
    {"Range", [](const WeaponRecord& weapon) { return withUnit(weapon.range, "m"); }},
    {"Rate of fire", [](const WeaponRecord& weapon) { return withUnit(weapon.rateOfFire, "/min"); }},
});

constexpr auto FiguresOfAmmo = std::to_array<AmmoFigure>({
    {"Ammunition",
     [](const WeaponRecord&, const AmmoTypeRecord& ammo) {
         return flavourWord(nameOf(ammo.flavour)) + (ammo.name.empty() ? "" : " " + ammo.name);
     }},
    {"Speed", [](const WeaponRecord&, const AmmoTypeRecord& ammo) { return withUnit(ammo.speed, "m/s"); }},
    {"Mass", [](const WeaponRecord&, const AmmoTypeRecord& ammo) { return withUnit(ammo.mass, "kg"); }},
    {"High explosive",
     [](const WeaponRecord&, const AmmoTypeRecord& ammo) { return withUnit(ammo.highExplosive, "kg"); }},
    {"Muzzle energy",
     [](const WeaponRecord&, const AmmoTypeRecord& ammo) {
         const double energy = muzzleEnergy(ammo);
         return energy > 0 ? energyText(energy) + " kJ" : std::string(NoFigure);
     }},
    {"Armour, muzzle",
     [](const WeaponRecord& weapon, const AmmoTypeRecord& ammo) { return penetrationAt(weapon, ammo, 0); }},
    {"Armour, 500 m",
     [](const WeaponRecord& weapon, const AmmoTypeRecord& ammo) { return penetrationAt(weapon, ammo, 500); }},
    {"Armour, 1000 m", [](const WeaponRecord& weapon,
                          const AmmoTypeRecord& ammo) { return penetrationAt(weapon, ammo, 1000); }},
});

} // namespace

std::size_t comparedAmmo(const WeaponRecord& weapon, AmmoFlavour flavour) {
    const auto same = std::find_if(weapon.ammoTypes.begin(), weapon.ammoTypes.end(),
                                   [flavour](const AmmoTypeRecord& ammo) { return ammo.flavour == flavour; });
    return same == weapon.ammoTypes.end() ? 0 : static_cast<std::size_t>(same - weapon.ammoTypes.begin());
}

std::vector<FigureRow> weaponFigureRows(const WeaponRecord& weapon, std::size_t ammo,
                                        const WeaponRecord* other) {
    std::vector<FigureRow> rows;
    rows.reserve(FiguresOfWeapon.size());
    for (const WeaponFigure& figure : FiguresOfWeapon) {
        rows.push_back({std::string(figure.label), figure.text(weapon),
                        other != nullptr ? figure.text(*other) : std::string()});
    }
    const AmmoTypeRecord* own = ammo < weapon.ammoTypes.size() ? &weapon.ammoTypes[ammo] : nullptr;
    const AmmoTypeRecord* others = nullptr;
    if (other != nullptr && !other->ammoTypes.empty()) {
        others = &other->ammoTypes[comparedAmmo(*other, own != nullptr ? own->flavour : AmmoFlavour::None)];
    }
    for (const AmmoFigure& figure : FiguresOfAmmo) {
        rows.push_back({std::string(figure.label),
                        own != nullptr ? figure.text(weapon, *own) : std::string(NoFigure),
                        others != nullptr ? figure.text(*other, *others) : std::string()});
    }
    return rows;
}

std::string energyText(double kilojoules) {
    constexpr double whole = 100;
    std::string text;
    if (kilojoules >= whole) {
        return grouped(static_cast<std::int32_t>(std::min(kilojoules + 0.5, 2e9)));
    }
    appendFixed(text, kilojoules, kilojoules < 10 ? 2 : 1);
    return text;
}

} // namespace varrocade
