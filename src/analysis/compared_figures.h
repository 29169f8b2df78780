#pragma once
// Figures that are compared among weapons of a type, or among their ammunition of a flavour: by the notes of
// the weapon's dialog and by the checks.

#include "data/field.h"
#include "weapons/weapon_record.h"

#include <span>
#include <string_view>

namespace varrocade {

/// A figure that is compared among those of a kind: a value, or what two of them come to.
struct UsualFigure {
    FieldId field;          ///< that is to be mended; what a file does not carry of it counts for nothing
    std::string_view label; ///< for people
    std::string_view unit = {};
};

/// A figure that is the field's own value.
constexpr UsualFigure figureOf(const FieldInfo& field) {
    return {&field, field.label, field.traits.unit};
}

/// One of a weapon, or of ammunition fired from it.
struct ComparedFigure {
    UsualFigure figure;
    /// What is compared, in the figure's unit; 0 where there is none.
    double (*value)(const WeaponRecord&, const AmmoTypeRecord&);
    /// What brings that to a value of this very weapon, in `shownUnit`: of a mass for the calibre, kilograms.
    double (*scale)(const WeaponRecord&, const AmmoTypeRecord&);
    std::string_view shownUnit;
    bool isNoted = true; ///< whether the dialog has a note on it
};

/// Of the weapon itself, by its type.
std::span<const ComparedFigure> figuresOfWeapons();
/// Of ammunition, by its flavour and the weapon's type.
std::span<const ComparedFigure> figuresOfAmmunition();

/// The share of a projectile's mass that is high explosive, from 0 to 1; 0 without a mass.
double explosiveShare(const AmmoTypeRecord& ammo);

} // namespace varrocade
