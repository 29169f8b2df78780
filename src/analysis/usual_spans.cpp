#include "analysis/usual_spans.h"

#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "weapons/ammo_words.h"
#include "weapons/weapon_fields.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varrocade {

namespace {

/// Values within this factor of the usual span are no news.
constexpr double Tolerance = 1.25;
constexpr double GramsPerKilogram = 1000;

double cubed(double value) {
    return value * value * value;
}

/// A figure of a weapon, or of ammunition fired from it, that is compared among its kind. `value` is 0 where
/// there is none. `scale` brings the value to what is shown, in the unit of the field.
struct ComparedFigure {
    const FieldInfo* field; ///< that it is about: what the weapon's file does not carry counts for nothing
    std::string_view label;
    std::string_view unit;
    double (*value)(const WeaponRecord&, const AmmoTypeRecord&);
    double (*scale)(const WeaponRecord&, const AmmoTypeRecord&);
};

double one(const WeaponRecord&, const AmmoTypeRecord&) {
    return 1;
}

/// Of ammunition, by its flavour. Projectiles of a kind are alike in shape: their masses go with the cube of
/// the calibre.
constexpr auto AmmoFigures = std::to_array<ComparedFigure>({
    {&weapon_field::Speed, weapon_field::Speed.label, weapon_field::Speed.traits.unit,
     [](const WeaponRecord&, const AmmoTypeRecord& ammo) { return double{ammo.speed}; }, one},
    {&weapon_field::Mass, "Mass for the calibre", weapon_field::Mass.traits.unit,
     [](const WeaponRecord& weapon, const AmmoTypeRecord& ammo) {
         return weapon.calibre > 0 ? double{ammo.mass} / cubed(double{weapon.calibre}) : 0.0;
     },
     [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return cubed(double{weapon.calibre}); }},
    {&weapon_field::HighExplosive, "Share of high explosive", "%",
     [](const WeaponRecord&, const AmmoTypeRecord& ammo) { return explosiveShare(ammo); },
     [](const WeaponRecord&, const AmmoTypeRecord&) { return 100.0; }},
});

/// Of the weapon itself, by its type.
constexpr auto WeaponFigures = std::to_array<ComparedFigure>({
    {&weapon_field::Calibre, weapon_field::Calibre.label, weapon_field::Calibre.traits.unit,
     [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return double{weapon.calibre}; }, one},
    {&weapon_field::BarrelLength, weapon_field::BarrelLength.label, weapon_field::BarrelLength.traits.unit,
     [](const WeaponRecord& weapon, const AmmoTypeRecord&) {
         return weapon.calibre > 0 ? weapon.barrelLength / double{weapon.calibre} : 0.0;
     },
     [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return double{weapon.calibre}; }},
    {&weapon_field::Range, weapon_field::Range.label, weapon_field::Range.traits.unit,
     [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return 1.0 * weapon.range; }, one},
    {&weapon_field::RateOfFire, weapon_field::RateOfFire.label, weapon_field::RateOfFire.traits.unit,
     [](const WeaponRecord& weapon, const AmmoTypeRecord&) { return 1.0 * weapon.rateOfFire; }, one},
});

std::string figureText(double value) {
    std::string text;
    // Three digits are enough to compare by.
    const double exponent = value > 0 ? std::floor(std::log10(value)) : 0;
    const double step = std::pow(10.0, exponent - 2);
    appendShortest(text, value > 0 && exponent < 3 ? std::round(value / step) * step : std::round(value));
    return text;
}

/// "457 to 1000 m/s"; what is less than a tenth of a kilogram is told in grams.
std::string spanText(double least, double greatest, std::string_view unit) {
    const bool isLight = unit == weapon_field::Mass.traits.unit && greatest < 0.1;
    const double factor = isLight ? GramsPerKilogram : 1;
    const std::string low = figureText(least * factor);
    const std::string high = figureText(greatest * factor);
    const std::string shownUnit(isLight ? "g" : unit);
    return (low == high ? low : low + " to " + high) + " " + shownUnit;
}

/// What the others have of a figure; a value each where there is one.
template <typename IsAlike>
std::vector<double> valuesOf(const ComparedFigure& figure, const WeaponRecord& weapon,
                             std::span<const CatalogueEntry> others, bool isOfAmmo, IsAlike isAlike) {
    std::vector<double> values;
    const auto add = [&](const WeaponRecord& other, const AmmoTypeRecord& ammo) {
        const double value = figure.value(other, ammo);
        if (value > 0 && isAlike(other, ammo)) {
            values.push_back(value);
        }
    };
    for (const CatalogueEntry& entry : others) {
        if (!entry.holdsWeapon || equalsIgnoringCase(entry.weapon.fileName, weapon.fileName)) {
            continue;
        }
        if (!isOfAmmo) {
            add(entry.weapon, {});
            continue;
        }
        for (const AmmoTypeRecord& ammo : entry.weapon.ammoTypes) {
            add(entry.weapon, ammo);
        }
    }
    return values;
}

void note(std::vector<std::string>& notes, const ComparedFigure& figure, const WeaponRecord& weapon,
          const AmmoTypeRecord& ammo, std::vector<double> values, const std::string& kind) {
    const double value = figure.value(weapon, ammo);
    const auto span = usualSpan(std::move(values));
    if (value <= 0 || !span || !isUnusual(value, *span)) {
        return;
    }
    const double scale = figure.scale(weapon, ammo);
    notes.push_back(std::string(figure.label) + " " + spanText(value * scale, value * scale, figure.unit) +
                    ": usual for " + kind + " is " +
                    spanText(span->least * scale, span->greatest * scale, figure.unit));
}

} // namespace

std::optional<UsualSpan> usualSpan(std::vector<double> values) {
    if (values.size() < LeastForSpan) {
        return std::nullopt;
    }
    std::sort(values.begin(), values.end());
    const std::size_t left = values.size() / 20;
    return UsualSpan{.least = values[left], .greatest = values[values.size() - 1 - left]};
}

bool isUnusual(double value, const UsualSpan& span) {
    return value * Tolerance < span.least || value > span.greatest * Tolerance;
}

double muzzleEnergy(const AmmoTypeRecord& ammo) {
    constexpr double joulesPerKilojoule = 1000;
    return double{ammo.mass} * ammo.speed * ammo.speed / 2 / joulesPerKilojoule;
}

double explosiveShare(const AmmoTypeRecord& ammo) {
    return ammo.mass > 0 ? double{ammo.highExplosive} / ammo.mass : 0.0;
}

std::vector<std::string> unusualFigures(const WeaponRecord& weapon, std::size_t ammo,
                                        std::span<const CatalogueEntry> others) {
    std::vector<std::string> notes;
    const Holder holder = holderOf(weapon.type);
    for (const ComparedFigure& figure : WeaponFigures) {
        if (!figure.field->isStoredBy(holder)) {
            continue;
        }
        auto values =
            valuesOf(figure, weapon, others, false, [&](const WeaponRecord& other, const AmmoTypeRecord&) {
                return other.type == weapon.type;
            });
        note(notes, figure, weapon, {}, std::move(values), "the type " + std::string(wordOf(weapon.type)));
    }
    if (ammo >= weapon.ammoTypes.size()) {
        return notes;
    }
    const AmmoTypeRecord& chosen = weapon.ammoTypes[ammo];
    for (const ComparedFigure& figure : AmmoFigures) {
        if (!figure.field->isStoredBy(holderOf(chosen.flavour), holder)) {
            continue;
        }
        auto values = valuesOf(figure, weapon, others, true,
                               [&](const WeaponRecord& other, const AmmoTypeRecord& round) {
                                   return round.flavour == chosen.flavour && other.type == weapon.type;
                               });
        note(notes, figure, weapon, chosen, std::move(values), flavourWord(nameOf(chosen.flavour)));
    }
    return notes;
}

} // namespace varrocade
