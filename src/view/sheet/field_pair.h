#pragma once
// Fields as lines of a data sheet.

#include "data/field_text.h"
#include "data/format/numbers.h"
#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "weapons/weapon_names.h"

#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>

namespace varrocade {

/// A line of a data sheet: what it is and what it comes to.
struct SheetPair {
    std::string label;
    std::string value;
};

/// What all words of an enumeration begin with: "STEERING_", "HEAT_ERA_".
inline std::string_view familyOf(const FieldInfo& field) {
    std::string_view family = field.words().front();
    for (const std::string_view word : field.words()) {
        while (!word.starts_with(family)) {
            family.remove_suffix(1);
        }
    }
    return family.substr(0, family.rfind('_') + 1);
}

/// What a sheet says of a field in its own way.
struct PairTerms {
    std::string_view label = {};    ///< in the place of the field's
    std::string_view nothing = "-"; ///< in the place of an empty text
    bool zeroIsNothing = false;     ///< a size that nobody has measured, a speed of what is thrown
    bool withoutUnit = false;       ///< where the label says it
};

/// A field's value in words: numbers with their unit, words without what all of their kind begin with,
/// unknown ones as they stand.
template <typename Record, typename Value>
std::string shownValue(const Field<Record, Value>& field, const Record& record, const PairTerms& terms = {}) {
    const Value& value = field.of(record);
    std::string text;
    if constexpr (std::same_as<Value, bool>) {
        text = yesNo(value);
    } else if constexpr (std::is_arithmetic_v<Value>) {
        if (terms.zeroIsNothing && !(value > 0)) {
            return std::string(terms.nothing);
        }
        if constexpr (std::integral<Value>) {
            text = grouped(value);
        } else if (field.traits.decimals >= 0) {
            appendFixed(text, value, field.traits.decimals);
        } else {
            appendShortest(text, value);
        }
    } else {
        text = textOfValue(value);
        if (text.empty()) {
            return std::string(terms.nothing);
        }
    }
    if constexpr (requires { wordOf(value); }) {
        text = wordOf(value);
    } else if (field.words != nullptr) {
        text = shownWord(text, familyOf(field), field.words());
    }
    if (!field.traits.unit.empty() && !terms.withoutUnit) {
        text += " " + std::string(field.traits.unit);
    }
    return text;
}

/// The line of a field.
template <typename Record, typename Value>
SheetPair pairOf(const Field<Record, Value>& field, const Record& record, const PairTerms& terms = {}) {
    return {std::string(terms.label.empty() ? field.label : terms.label), shownValue(field, record, terms)};
}

} // namespace varrocade
