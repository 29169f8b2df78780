#pragma once
// Fields as lines of a data sheet.

#include "data/field_text.h"
#include "data/format/words.h"
#include "data/unit/enumerations.h"

#include <concepts>
#include <string>
#include <string_view>

namespace varrocade {

/// A line of a data sheet: what it is and what it comes to.
struct SheetPair {
    std::string label;
    std::string value;
};

/// What the words of an enumeration begin with: "STEERING_".
inline std::string_view familyOf(const FieldInfo& field) {
    const std::string_view first = field.words().front();
    return first.substr(0, first.find('_') + 1);
}

/// A field's label, or another that the sheet has for it, and its value in words: numbers with their unit,
/// words without what all of their kind begin with, unknown ones as they stand.
template <typename Record, typename Value>
SheetPair pairOf(const Field<Record, Value>& field, const Record& record, std::string_view label = {}) {
    const Value& value = field.of(record);
    std::string text;
    if constexpr (std::same_as<Value, bool>) {
        text = yesNo(value);
    } else if constexpr (std::integral<Value>) {
        text = grouped(value);
    } else {
        text = textOfValue(value);
    }
    if (field.words != nullptr) {
        text = shownWord(text, familyOf(field), field.words());
    }
    if (!field.traits.unit.empty()) {
        text += " " + std::string(field.traits.unit);
    }
    return {std::string(label.empty() ? field.label : label), text};
}

} // namespace varrocade
