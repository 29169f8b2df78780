#pragma once
// Values of fields as text: as people compare them, and as writers put them into files.

#include "data/field.h"
#include "data/format/file_text.h"
#include "data/unit/unit_record.h"

#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>

namespace varrocade {

/// A value as text: numbers in their shortest form, flags as "yes" and "no", image names without ".png".
std::string valueText(bool value);
std::string valueText(std::int32_t value);
std::string valueText(float value);
std::string valueText(double value);
std::string valueText(std::string_view value);
std::string valueText(const ArmourPlate& value);
/// Rear by its name too, although no file needs it.
std::string valueText(EngineMount value);

/// The text of any field's value. Enumerations of other layers bring a `valueText` of their own.
template <typename Value>
std::string textOfValue(const Value& value) {
    if constexpr (std::integral<Value> && !std::same_as<Value, bool>) {
        return valueText(std::int32_t{value});
    } else if constexpr (std::convertible_to<const Value&, std::string_view>) {
        return valueText(std::string_view(value));
    } else {
        return valueText(value);
    }
}

/// What writers print of fields: lines of their own, and pieces of a line.
namespace field_text {

/// A value as files have it.
template <typename Value>
void append(std::string& text, const FieldInfo& field, const Value& value) {
    if constexpr (std::integral<Value> && !std::same_as<Value, bool>) {
        appendInteger(text, value);
    } else if constexpr (std::same_as<Value, float>) {
        appendShortest(text, value);
    } else if constexpr (std::same_as<Value, double>) {
        appendFixed(text, value, field.traits.decimals);
    } else if constexpr (std::convertible_to<const Value&, std::string_view>) {
        text += std::string_view(value);
        if (field.kind == FieldKind::Image) {
            text += ImageEnding;
        }
    } else {
        text += valueText(value);
    }
}

/// The element with its value, whatever that is, within a line.
template <typename Record, typename Value>
void put(FileText& out, const Field<Record, Value>& field, const Record& record) {
    out.startTag(field.element);
    append(out.text(), field, field.of(record));
    out.endTag(field.element);
}

/// The same unless the value is left out.
template <typename Record, typename Value>
void piece(FileText& out, const Field<Record, Value>& field, const Record& record) {
    if (!field.isOmitted(record)) {
        put(out, field, record);
    }
}

/// A line with the element and its value, unless the value is left out.
template <typename Record, typename Value>
void line(FileText& out, int tabs, const Field<Record, Value>& field, const Record& record) {
    if (!field.isOmitted(record)) {
        out.indent(tabs);
        put(out, field, record);
        out.endLine();
    }
}

/// Lines of several fields, in this order.
template <typename Record, typename... Values>
void lines(FileText& out, int tabs, const Record& record, const Field<Record, Values>&... fields) {
    (line(out, tabs, fields, record), ...);
}

/// Pieces of a line, in this order.
template <typename Record, typename... Values>
void pieces(FileText& out, const Record& record, const Field<Record, Values>&... fields) {
    (piece(out, fields, record), ...);
}

} // namespace field_text

} // namespace varrocade
