#include "tools/sheets/cell_input.h"

#include "data/unit/enumerations.h"

#include <array>

namespace varrocade {

namespace {

/// One of a list of words, letter case aside.
std::optional<std::string_view> wordOf(std::span<const std::string_view> words, std::string_view text) {
    const auto word = std::find_if(words.begin(), words.end(), [&](std::string_view candidate) {
        return equalsIgnoringCase(candidate, text);
    });
    return word == words.end() ? std::nullopt : std::optional(*word);
}

} // namespace

std::optional<std::string> textOf(const CellText& text) {
    std::optional<std::string> given =
        text.isUtf8 ? gameText(text.raw) : std::optional(std::string(text.raw));
    if (given) {
        *given = std::string(withoutMark(*given));
    }
    return given;
}

bool saysText(const CellText& text, std::string_view value) {
    const auto says = [&](std::string_view cell) { return cell == value || withoutMark(cell) == value; };
    const std::optional<std::string> given = text.isUtf8 ? gameText(text.raw) : std::nullopt;
    return says(text.raw) || (given && says(*given));
}

bool saysNumber(std::string_view cell, std::string_view plain) {
    if (trimmed(cell) == plain) {
        return true;
    }
    const std::optional<double> number = entireReal(cell);
    return number && !plain.empty() && *number == toReal(plain);
}

Refusal wordRefusal(const FieldInfo& field, std::string_view label, std::string& text) {
    std::span<const std::string_view> words;
    if (field.words != nullptr) {
        words = field.words();
    } else if (field.kind == FieldKind::Flavour && !text.empty()) {
        words = flavourNames();
    }
    if (!words.empty()) {
        const std::optional<std::string_view> word = wordOf(words, trimmed(text));
        if (!word) {
            return "\"" + std::string(label) + "\" must be one of the game's words, such as " +
                   std::string(words.front());
        }
        text = std::string(*word);
    }
    return std::nullopt;
}

std::string withNumberHint(const std::string& refusal, std::string_view cell) {
    const bool hasComma = cell.find(',') != std::string_view::npos;
    return refusal + (hasComma ? ", with a point and without separators of thousands" : "");
}

bool setWord(EngineMount& value, std::string_view word) {
    for (const EngineMount mount : {EngineMount::Rear, EngineMount::Middle, EngineMount::Front}) {
        if (equalsIgnoringCase(word, valueText(mount))) {
            value = mount;
            return true;
        }
    }
    return false;
}

bool setWord(WeaponType& value, std::string_view word) {
    const std::optional<std::string_view> name = wordOf(weaponTypeNames(), word);
    value = name ? weaponTypeOf(*name) : value;
    return name.has_value();
}

bool setWord(AmmoFlavour& value, std::string_view word) {
    const std::optional<std::string_view> name = wordOf(flavourNames(), word);
    value = name ? flavourOf(*name) : value;
    return name.has_value();
}

bool setWord(HeatEra& value, std::string_view word) {
    const auto name = wordOf(heatEraNames(), word);
    value = name ? heatEraOf(*name).value_or(value) : value;
    return name.has_value();
}

bool setWord(GuidanceMode& value, std::string_view word) {
    const auto name = wordOf(guidanceModeNames(), word);
    value = name ? guidanceModeOf(*name).value_or(value) : word.empty() ? GuidanceMode::Unguided : value;
    return name || word.empty();
}

bool setWord(ReloadMode& value, std::string_view word) {
    const auto name = wordOf(reloadModeNames(), word);
    value = name ? reloadModeOf(*name).value_or(value) : word.empty() ? ReloadMode::None : value;
    return name || word.empty();
}

} // namespace varrocade
