#include "data/losses/value_meaning.h"

#include "data/format/texts.h"
#include "data/losses/loss_list.h"
#include "data/unit/image_names.h"

#include <charconv>
#include <optional>

namespace varrocade {

namespace {

/// A text that is a number from its first to its last character, blanks at the ends aside.
std::optional<double> numberOf(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with('+') && !text.starts_with("+-")) {
        text.remove_prefix(1);
    }
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc() && result.ptr == text.data() + text.size() ? std::optional(value)
                                                                               : std::nullopt;
}

bool isSameNumber(std::string_view text, std::string_view value) {
    if (text.empty()) {
        return value == "0";
    }
    const std::optional<double> number = numberOf(text);
    return number && number == numberOf(value);
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

} // namespace

bool means(std::string_view text, const TracedValue& value, Understanding understanding) {
    if (text == value.after || understanding == Understanding::Understood) {
        return true;
    }
    if (understanding == Understanding::NotUnderstood) {
        return false;
    }
    switch (value.kind) {
    case ValueKind::Number:
        return isSameNumber(text, value.after);
    case ValueKind::Flag:
        return text.empty() && value.after == valueText(false);
    case ValueKind::Plate:
        return isSamePlate(text, value.after);
    case ValueKind::Image:
        return isSameImage(text, value.after);
    case ValueKind::String:
    case ValueKind::Word:
        break;
    }
    return false;
}

bool meansOpposite(std::string_view text, const TracedValue& value) {
    const std::optional<double> number = numberOf(text);
    const std::optional<double> read = numberOf(value.after);
    return value.kind == ValueKind::Number && number && read && *number == -*read;
}

std::string misreadText(std::string_view text, const TracedValue& value) {
    const bool isName = value.kind == ValueKind::String || value.kind == ValueKind::Image;
    if (isName && !value.after.empty() && text.starts_with(value.after)) {
        return "is cut to " + std::to_string(value.after.size()) + " characters";
    }
    return value.after.empty() ? std::string("is read as nothing") : "is read as " + quoted(value.after);
}

} // namespace varrocade
