#pragma once
// The form engine: a dialog's fields are rows of a table, which fills the controls from a record and reads
// them back into it. It speaks to the controls through a port, so that forms are tested without windows.

#include "data/format/fixed_string.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace varrocade {

/// The controls of one dialog, by their ids.
class FormPort {
public:
    FormPort() = default;
    FormPort(const FormPort&) = delete;
    FormPort& operator=(const FormPort&) = delete;
    virtual ~FormPort() = default;

    virtual std::string text(int control) = 0;
    virtual void setText(int control, std::string_view text) = 0;
    virtual bool isChecked(int control) = 0;
    virtual void setChecked(int control, bool checked) = 0;
    virtual void setEnabled(int control, bool enabled) = 0;
    /// The entries of a drop-down list; its edit part is left alone.
    virtual void setChoices(int control, std::span<const std::string> choices) = 0;
    /// Whether a drop-down list holds a text.
    virtual bool offers(int control, std::string_view text) = 0;
    /// How many characters an edit takes.
    virtual void setLimit(int control, std::size_t characters) = 0;
    virtual void focus(int control) = 0;
};

/// A whole number with its bounds. A text that is no number is refused, unless the field takes it for 0.
struct NumberRange {
    std::int32_t least = INT32_MIN;
    std::int32_t greatest = INT32_MAX;
    bool zeroForOtherTexts = false;
};

inline constexpr NumberRange NotNegative = {.least = 0};

/// One field of a form: a control, the member of the record that it shows, and how.
template <typename Record>
struct FormField {
    using Member = std::variant<Text Record::*, LanguageCode Record::*, std::int32_t Record::*,
                                std::uint16_t Record::*, std::uint8_t Record::*, bool Record::*>;

    int control;
    std::string_view label; ///< for messages
    Member member;
    NumberRange range = {};
};

/// Why a form cannot be taken as it stands.
struct FormError {
    int control = 0;
    std::string message;
};

/// The number that a text holds, or nothing when there is another character than blanks around it. Numbers
/// too long for any field are brought to the nearest one of 64 bits.
std::optional<std::int64_t> wholeNumber(std::string_view text);

/// The message for a text that is not in a field's range.
std::string rangeMessage(std::string_view label, const NumberRange& range, std::string_view text);

/// Refuses a text that a file could not give back.
std::optional<FormError> valueError(int control, std::string_view label, std::string_view text);

/// A drop-down list whose edit part takes what its list does not offer: what old files hold is kept.
struct ChoiceField {
    int control;
    std::string_view label;
};

/// Names what the fields hold that their lists do not offer, or empty: `Unknown, kept as it is: Type "X"`.
std::string unknownChoices(FormPort& port, std::span<const ChoiceField> fields);

/// A range brought within what a member's type holds.
template <typename Integer>
NumberRange within(NumberRange range) {
    range.least = std::max<std::int32_t>(range.least, std::numeric_limits<Integer>::min());
    range.greatest = std::min<std::int32_t>(range.greatest, std::numeric_limits<Integer>::max());
    return range;
}

/// Shows a record in the controls of a form.
template <typename Record>
void fillForm(FormPort& port, std::span<const FormField<Record>> fields, const Record& record) {
    for (const FormField<Record>& field : fields) {
        std::visit(
            [&](auto member) {
                using Value = std::remove_cvref_t<decltype(record.*member)>;
                if constexpr (std::is_same_v<Value, bool>) {
                    port.setChecked(field.control, record.*member);
                } else if constexpr (std::is_integral_v<Value>) {
                    port.setText(field.control, std::to_string(record.*member));
                } else {
                    port.setLimit(field.control, Value::MaxLength);
                    port.setText(field.control, record.*member);
                }
            },
            field.member);
    }
}

/// Reads the controls of a form into a record. Fields are read in order; at the first one that cannot be
/// taken the record is left half read, so callers read into a copy.
template <typename Record>
std::optional<FormError> readForm(FormPort& port, std::span<const FormField<Record>> fields, Record& record) {
    for (const FormField<Record>& field : fields) {
        std::optional<FormError> error;
        std::visit(
            [&](auto member) {
                using Value = std::remove_cvref_t<decltype(record.*member)>;
                if constexpr (std::is_same_v<Value, bool>) {
                    record.*member = port.isChecked(field.control);
                } else if constexpr (std::is_integral_v<Value>) {
                    const NumberRange range = within<Value>(field.range);
                    const std::string text = port.text(field.control);
                    const std::optional<std::int64_t> number = wholeNumber(text);
                    const bool inRange = number && *number >= range.least && *number <= range.greatest;
                    if (inRange || (!number && range.zeroForOtherTexts)) {
                        record.*member = static_cast<Value>(number.value_or(0));
                    } else if (number != std::int64_t{record.*member}) {
                        // What an old file holds stays until the user changes it.
                        error = FormError{field.control, rangeMessage(field.label, range, text)};
                    }
                } else {
                    const std::string text = port.text(field.control);
                    error = valueError(field.control, field.label, text);
                    record.*member = text;
                }
            },
            field.member);
        if (error) {
            return error;
        }
    }
    return std::nullopt;
}

} // namespace varrocade
