#pragma once
// Codecs, one a type of value: both ways between a record's value and the text of a control. What a person
// types is taken strictly: what is no such value is refused, not guessed at.

#include "data/field.h"
#include "data/format/fixed_string.h"
#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/unit/image_names.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace varrocade {

/// What a codec goes by besides the value's type.
struct CodecTerms {
    std::string_view label = {}; ///< in refusals
    NumberRange range = {};
    int decimals = -1;             ///< of a real number; below 0 the shortest form
    bool isImage = false;          ///< the name of a picture, which may be the default one
    bool losesEnding = false;      ///< a name that records hold without ".png"
    std::string_view emptyAs = {}; ///< the word that stands for an empty value
};

/// Why a text is not taken, or nothing.
using Refusal = std::optional<std::string>;

// ---- what the codecs are made of

/// The whole numbers that a row takes, within what its type holds.
struct IntegerRange {
    std::int64_t least;
    std::int64_t greatest;
};

/// A range brought within what a member's type holds. Beyond 32 bits only the type limits a range without
/// bounds.
template <std::integral Value>
constexpr IntegerRange within(const NumberRange& range) {
    static_assert(!std::is_same_v<Value, std::uint64_t>, "numbers are read as signed ones of 64 bits");
    using Limits = std::numeric_limits<Value>;
    // What is too long for 64 bits is read as their bounds.
    constexpr bool isWidest = sizeof(Value) == sizeof(std::int64_t);
    constexpr std::int64_t least = std::int64_t{Limits::min()} + (isWidest ? 2 : 0);
    constexpr std::int64_t greatest = std::int64_t{Limits::max()} - (isWidest ? 1 : 0);
    IntegerRange result{.least = range.least, .greatest = range.greatest};
    if (range.least == INT32_MIN || result.least < least) {
        result.least = least;
    }
    if (range.greatest == INT32_MAX || result.greatest > greatest) {
        result.greatest = greatest;
    }
    return result;
}

/// `"Width" must be a whole number from 0 to 90`. The bounds of 32 bits are named to who went beyond them
/// only.
std::string integerRefusal(std::string_view label, const IntegerRange& range, std::string_view text);
std::string realRefusal(std::string_view label, const NumberRange& range);
/// Refuses a text that a file could not give back.
Refusal textRefusal(std::string_view label, std::string_view text);

/// The number of a text, or nothing when it is none or out of range.
std::optional<double> realWithin(std::string_view text, const NumberRange& range);
std::string realText(double value, int decimals);

/// A value of an enumeration and what a form calls it.
template <typename Enum>
struct FormWord {
    Enum value;
    std::string_view word;
};

/// The words of an enumeration in forms; specialised for each one that a form edits, with a function
/// `static constexpr std::span<const FormWord<Enum>> words()`.
template <typename Enum>
struct FormWords;

// ---- the codecs

template <typename Value>
struct Codec;

/// Flags stand in check boxes, which have no text.
template <>
struct Codec<bool> {};

template <std::integral Value>
struct Codec<Value> {
    static std::string textOf(Value value, const CodecTerms&) { return std::to_string(value); }
    static Refusal take(std::string_view text, const CodecTerms& terms, Value& value) {
        const IntegerRange range = within<Value>(terms.range);
        const std::optional<std::int64_t> number = entireInteger(text);
        const bool inRange = number && *number >= range.least && *number <= range.greatest;
        if (inRange || (!number && terms.range.zeroForOtherTexts)) {
            value = static_cast<Value>(number.value_or(0));
        } else if (number != std::int64_t{value}) {
            // What an old file holds stays until the user changes it.
            return integerRefusal(terms.label, range, text);
        }
        return std::nullopt;
    }
};

template <std::floating_point Value>
struct Codec<Value> {
    static std::string textOf(Value value, const CodecTerms& terms) {
        return realText(double{value}, terms.decimals);
    }
    static Refusal take(std::string_view text, const CodecTerms& terms, Value& value) {
        const std::optional<double> number = realWithin(text, terms.range);
        if (!number || !(*number >= double{std::numeric_limits<Value>::lowest()} &&
                         *number <= double{std::numeric_limits<Value>::max()})) {
            return realRefusal(terms.label, terms.range);
        }
        value = static_cast<Value>(*number);
        return std::nullopt;
    }
};

/// The strings of records.
template <typename Value>
concept TextValue = std::is_same_v<Value, std::string> || requires {
    Value::MaxLength;
};

template <TextValue Value>
struct Codec<Value> {
    static std::string textOf(const Value& value, const CodecTerms& terms) {
        return std::string(value.empty() ? terms.emptyAs : std::string_view(value));
    }
    static Refusal take(std::string_view text, const CodecTerms& terms, Value& value) {
        if (auto refusal = textRefusal(terms.label, text)) {
            return refusal;
        }
        const std::string_view name = nameIn(text, terms);
        value = !terms.emptyAs.empty() && name == terms.emptyAs ? std::string_view() : name;
        return std::nullopt;
    }
    /// How much an edit takes; 0 where there is no limit.
    static std::size_t limit(const CodecTerms& terms) {
        if constexpr (requires { Value::MaxLength; }) {
            return std::max(Value::MaxLength, terms.emptyAs.size());
        } else {
            return 0;
        }
    }

private:
    static std::string_view nameIn(std::string_view text, const CodecTerms& terms) {
        if (!terms.isImage) {
            return text;
        }
        if (isDefaultImage(text) && !terms.emptyAs.empty()) {
            return terms.emptyAs;
        }
        return terms.losesEnding ? imageNameOf(text) : text;
    }
};

template <typename Value>
requires std::is_enum_v<Value>
struct Codec<Value> {
    static std::string textOf(Value value, const CodecTerms&) {
        for (const FormWord<Value>& row : FormWords<Value>::words()) {
            if (row.value == value) {
                return std::string(row.word);
            }
        }
        return {};
    }
    static Refusal take(std::string_view text, const CodecTerms& terms, Value& value) {
        for (const FormWord<Value>& row : FormWords<Value>::words()) {
            if (equalsIgnoringCase(trimmed(text), row.word)) {
                value = row.value;
                return std::nullopt;
            }
        }
        return "\"" + std::string(terms.label) + "\" must be one of the words of its list";
    }
};

/// A value that may be left open: an empty text is none.
template <typename Value>
struct Codec<std::optional<Value>> {
    static std::string textOf(const std::optional<Value>& value, const CodecTerms& terms) {
        return value ? Codec<Value>::textOf(*value, terms) : std::string(terms.emptyAs);
    }
    static Refusal take(std::string_view text, const CodecTerms& terms, std::optional<Value>& value) {
        if (trimmed(text).empty() || text == terms.emptyAs) {
            value.reset();
            return std::nullopt;
        }
        Value given = value.value_or(Value());
        if (auto refusal = Codec<Value>::take(text, terms, given)) {
            return refusal;
        }
        value = std::move(given);
        return std::nullopt;
    }
};

} // namespace varrocade
