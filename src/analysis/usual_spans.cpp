#include "analysis/usual_spans.h"

#include "analysis/compared_figures.h"
#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "weapons/ammo_words.h"
#include "weapons/weapon_fields.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

/// Values within this factor of the usual span are no news.
constexpr double Tolerance = 1.25;
constexpr double GramsPerKilogram = 1000;

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
    notes.push_back(std::string(figure.figure.label) + " " +
                    spanText(value * scale, value * scale, figure.shownUnit) + ": usual for " + kind +
                    " is " + spanText(span->least * scale, span->greatest * scale, figure.shownUnit));
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

std::vector<std::string> unusualFigures(const WeaponRecord& weapon, std::size_t ammo,
                                        std::span<const CatalogueEntry> others) {
    std::vector<std::string> notes;
    const Holder holder = holderOf(weapon.type);
    for (const ComparedFigure& figure : figuresOfWeapons()) {
        if (!figure.isNoted || !figure.figure.field->isStoredBy(holder)) {
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
    for (const ComparedFigure& figure : figuresOfAmmunition()) {
        if (!figure.isNoted || !figure.figure.field->isStoredBy(holderOf(chosen.flavour), holder)) {
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
