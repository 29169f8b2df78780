#include "data/losses/value_meaning.h"

#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "data/unit/image_names.h"

#include <optional>

namespace varrocade {

namespace {

bool isSameNumber(std::string_view text, std::string_view value) {
    if (text.empty()) {
        return value == "0";
    }
    const std::optional<double> number = entireReal(text);
    return number && number == entireReal(value);
}

bool isSamePlate(std::string_view text, std::string_view value) {
    const auto angleOf = [](std::string_view plate) {
        const std::size_t at = plate.find('@');
        return at == std::string_view::npos ? std::string_view("0") : plate.substr(at + 1);
    };
    return isSameNumber(text.substr(0, text.find('@')), value.substr(0, value.find('@'))) &&
           isSameNumber(angleOf(text), angleOf(value));
}

bool isSameImage(std::string_view text, std::string_view value) {
    return imageNameOf(text) == value || (isDefaultImage(text) && value == DefaultImageName);
}

/// Texts of fixed capacity.
bool canBeCut(FieldKind kind) {
    switch (kind) {
    case FieldKind::Number:
    case FieldKind::Real:
    case FieldKind::Flag:
    case FieldKind::Choice:
    case FieldKind::Plate:
        return false;
    default:
        return true;
    }
}

} // namespace

bool means(std::string_view text, const TracedValue& value, Understanding understanding) {
    if (text == value.after || understanding == Understanding::Understood) {
        return true;
    }
    if (understanding == Understanding::NotUnderstood) {
        return false;
    }
    switch (value.field->kind) {
    case FieldKind::Number:
    case FieldKind::Real:
        return isSameNumber(text, value.after);
    case FieldKind::Flag:
        return text.empty() && value.after == valueText(false);
    case FieldKind::Plate:
        return isSamePlate(text, value.after);
    case FieldKind::Image:
        return isSameImage(text, value.after);
    default:
        break;
    }
    return false;
}

bool meansOpposite(std::string_view text, const TracedValue& value) {
    const std::optional<double> number = entireReal(text);
    const std::optional<double> read = entireReal(value.after);
    const bool isNumber = value.field->kind == FieldKind::Number || value.field->kind == FieldKind::Real;
    return isNumber && number && read && *number == -*read;
}

std::string misreadText(std::string_view text, const TracedValue& value) {
    if (canBeCut(value.field->kind) && !value.after.empty() && text.starts_with(value.after)) {
        return "is cut to " + std::to_string(value.after.size()) + " characters";
    }
    return value.after.empty() ? std::string("is read as nothing") : "is read as " + quoted(value.after);
}

} // namespace varrocade
