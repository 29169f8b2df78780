#include "data/field_text.h"
#include "data/finding_text.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/rules/unit_rules.h"
#include "tools/checks/rules/weapon_file_rules.h"
#include "weapons/weapon_fields.h"

#include <string>
#include <type_traits>

namespace varrocade {

namespace {

namespace ck = check_key;

std::string figureText(double value) {
    std::string text;
    appendShortest(text, value);
    return text;
}

template <typename Record>
void tellUnusual(const UsualValues& usual, const Record& record, FileFindings& out) {
    for (const UnusualValue& value : usual.unusual(record)) {
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
    tellUnusual(checked.knowledge.usual, checked.unit, checked.out);
}

void checkWeaponValues(const CheckedWeapon& checked) {
    tellUseless(checked.weapon, checked.out);
    tellUnusual(checked.knowledge.usual, checked.weapon, checked.out);
}

} // namespace varrocade
