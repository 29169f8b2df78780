#pragma once
// What forms speak to: a dialog's controls, so that forms are tested without windows.

#include "data/field.h"
#include "data/finding.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace varrocade {

/// The controls of one dialog, by their ids. A control that the dialog lacks takes everything and holds
/// nothing.
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
    /// Shows in the control itself why it cannot be taken as it stands; an empty refusal shows that it can.
    virtual void mark(int control, std::string_view refusal) = 0;
};

/// Why a form cannot be taken as it stands, and the control of the field that the finding names.
struct FormError : Finding {
    int control = 0;
    std::string caption = {}; ///< of its box; empty: the dialog's own
};

/// The refusal of a text for a field.
inline Finding refusedInput(const FieldInfo& field, std::string message, std::string text = {}) {
    return {.key = finding_key::BadInput,
            .severity = Severity::Error,
            .field = std::string(field.element),
            .message = std::move(message),
            .value = std::move(text)};
}

/// What an edit shows of a text: records hold texts on one line.
std::string onOneLine(std::string_view text);

} // namespace varrocade
