#include "data/field_text.h"
#include "data/finding_text.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/rules/unit_rules.h"
#include "tools/checks/rules/weapon_file_rules.h"
#include "weapons/weapon_fields.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <type_traits>
#include <vector>

namespace varrocade {

namespace {

namespace ck = check_key;

std::string figureText(double value) {
    std::string text;
    appendShortest(text, value);
    return text;
}

void tellUnusual(const std::vector<UnusualValue>& values, FileFindings& out) {
    for (const UnusualValue& value : values) {
        const std::string unit =
            value.figure->unit.empty() ? std::string() : " " + std::string(value.figure->unit);
        out.atValue(value.path,
                    {.key = ck::UnusualValue,
                     .message = std::string(value.figure->label) + " " + figureText(value.value) + unit +
                                " is unlike all others of " + value.kind,
                     .value = figureText(value.value),
                     .expected = figureText(value.least) + " to " + figureText(value.greatest) + unit});
    }
}

/// Where the masses of all ammunition are too great for the calibre, or all too small, the calibre is what
/// they have in common.
void tellCalibre(const WeaponRecord& weapon, const std::vector<UnusualValue>& values, FileFindings& out) {
    std::vector<const UnusualValue*> masses;
    for (const UnusualValue& value : values) {
        if (value.figure->field == &weapon_field::Mass) {
            masses.push_back(&value);
        }
    }
    const auto given = std::count_if(weapon.ammoTypes.begin(), weapon.ammoTypes.end(),
                                     [](const AmmoTypeRecord& ammo) { return ammo.mass > 0; });
    if (masses.size() < 2 || std::ssize(masses) != given) {
        return;
    }
    const auto isGreat = [](const UnusualValue* mass) { return mass->value > mass->greatest; };
    const auto great = std::count_if(masses.begin(), masses.end(), isGreat);
    if (great != 0 && great != given) {
        return;
    }
    const UnusualValue& first = *masses.front();
    const std::string unit = " " + std::string(weapon_field::Calibre.traits.unit);
    const double calibre = weapon.calibre;
    out.atValue(
        weapon_field::Calibre.element,
        {.key = ck::UnusualValue,
         .message =
             "Calibre " + figureText(calibre) + unit + " does not go with the masses of all its ammunition",
         .value = figureText(calibre),
         .expected = figureText(std::round(calibre * std::cbrt(first.value / first.greatest))) + " to " +
                     figureText(std::round(calibre * std::cbrt(first.value / first.least))) + unit});
}

/// Whether a value is one that somebody gave: not what stands for none.
template <typename Value>
bool isGiven(const Value& value) {
    if constexpr (std::is_same_v<Value, bool>) {
        return value;
    } else if constexpr (std::is_arithmetic_v<Value>) {
        return value > 1; // one barrel is what a file without the element means
    } else if constexpr (std::is_same_v<Value, HeatEra>) {
        return value != HeatEra::Early;
    } else if constexpr (std::is_same_v<Value, ArmourPlate>) {
        return value.thickness > 0;
    } else if constexpr (std::is_convertible_v<const Value&, std::string_view>) {
        return !std::string_view(value).empty();
    } else {
        return false;
    }
}

/// Values that no file of the kind carries: the next saving drops them.
template <typename Record>
void tellUseless(const Record& record, FileFindings& out) {
    forEachField(record, [&](const FieldPlace& place, const auto& value) {
        // A quality is always there.
        if (place.isStored() || !isGiven(value) || &place.field == &field::Quality) {
            return;
        }
        const std::string text = textOfValue(value);
        out.atValue(place.path.text(), {.key = ck::UselessValue,
                                        .message = std::string(place.field.label) + " " + quoted(text) +
                                                   " has no use here, and saving drops it",
                                        .value = text});
    });
}

} // namespace

void checkValues(const CheckedUnit& checked) {
    tellUseless(checked.unit, checked.out);
    tellUnusual(checked.knowledge.usual.unusual(checked.unit), checked.out);
}

void checkWeaponValues(const CheckedWeapon& checked) {
    tellUseless(checked.weapon, checked.out);
    const std::vector<UnusualValue> unusual = checked.knowledge.usual.unusual(checked.weapon);
    tellUnusual(unusual, checked.out);
    tellCalibre(checked.weapon, unusual, checked.out);
}

} // namespace varrocade
