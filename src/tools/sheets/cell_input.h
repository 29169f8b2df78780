#pragma once
// Cells of a sheet as values: whether a cell still says what the record has, and what a changed one sets.
// What is no such value is refused in the words of the forms, never guessed at.

#include "data/codec.h"
#include "tools/sheets/sheet_cells.h"
#include "tools/sheets/sheet_table.h"
#include "weapons/weapon_names.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// A cell as it stands in the sheet.
struct CellText {
    std::string_view raw;
    bool isUtf8 = false;
};

/// The text that a cell holds, in the game's characters; nothing where they cannot hold it.
std::optional<std::string> textOf(const CellText& text);

/// Whether a text cell stands for this value, in whatever way the sheet's program may have spelt it.
bool saysText(const CellText& text, std::string_view value);
/// The same for a number as the sheet was given it.
bool saysNumber(std::string_view cell, std::string_view plain);

/// Why a text is none of a field's words, or what it refers to; brings letter case to that of the word.
Refusal wordRefusal(const FieldInfo& field, std::string_view label, std::string& text);
/// A refused number, with what the mistake may be.
std::string withNumberHint(const std::string& refusal, std::string_view cell);

/// Sets an enumeration's value by the word that sheets have for it.
bool setWord(EngineMount& value, std::string_view word);
bool setWord(WeaponType& value, std::string_view word);
bool setWord(AmmoFlavour& value, std::string_view word);
bool setWord(HeatEra& value, std::string_view word);
bool setWord(GuidanceMode& value, std::string_view word);
bool setWord(ReloadMode& value, std::string_view word);

template <typename Value>
bool saysTheSame(const CellPlace& cell, const Value& value, const CellText& text) {
    if constexpr (IsText<Value>) {
        return saysText(text, std::string_view(value));
    } else if constexpr (std::is_arithmetic_v<Value> && !std::same_as<Value, bool>) {
        return saysNumber(text.raw, plainText(cell, value));
    } else {
        return equalsIgnoringCase(trimmed(text.raw), plainText(cell, value));
    }
}

/// Sets a value to what a changed cell says, or tells why not. `heading` is what refusals call it.
template <typename Value>
Refusal takeCell(const CellPlace& cell, Value& value, const CellText& text, std::string_view heading) {
    CodecTerms terms{
        .label = heading, .range = cell.field.traits.range, .decimals = cell.field.traits.decimals};
    // In a form "unknown" may stand for a weight of 0; in a sheet it is more likely another's decimal comma.
    terms.range.zeroForOtherTexts = false;
    if constexpr (std::same_as<Value, bool>) {
        const std::string_view word = trimmed(text.raw);
        const bool isYes = equalsIgnoringCase(word, valueText(true));
        if (!isYes && !equalsIgnoringCase(word, valueText(false))) {
            return "\"" + std::string(heading) + "\" must be \"yes\" or \"no\"";
        }
        value = isYes;
        return std::nullopt;
    } else if constexpr (std::is_arithmetic_v<Value>) {
        if constexpr (std::same_as<Value, std::int32_t>) {
            if (text.raw.empty() && mayBeNegativeForNone(cell.field)) {
                value = ArmourNotGiven;
                return std::nullopt;
            }
        }
        Refusal refusal = Codec<Value>::take(text.raw, terms, value);
        return refusal ? Refusal(withNumberHint(*refusal, text.raw)) : std::nullopt;
    } else if constexpr (std::is_enum_v<Value>) {
        return setWord(value, trimmed(text.raw))
                   ? Refusal()
                   : Refusal("\"" + std::string(heading) + "\" must be one of the game's words");
    } else {
        std::optional<std::string> given = textOf(text);
        if (!given) {
            return "\"" + std::string(heading) + "\" has a character that the game's files cannot hold";
        }
        if (auto refusal = wordRefusal(cell.field, heading, *given)) {
            return refusal;
        }
        const std::size_t limit = Codec<Value>::limit(terms);
        if (limit > 0 && given->size() > limit) {
            return "\"" + std::string(heading) + "\" must have at most " + std::to_string(limit) +
                   " characters";
        }
        terms.isImage = cell.field.kind == FieldKind::Image;
        terms.losesEnding = terms.isImage;
        return Codec<Value>::take(*given, terms, value);
    }
}

} // namespace varrocade
