// Whether the text of an element can be read as what its field is.

#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "data/unit/older_words.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/nearest_name.h"
#include "tools/checks/rules/element_rules.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

namespace varrocade {

namespace {

namespace ck = check_key;

class ValueTextCheck {
public:
    ValueTextCheck(const TagNode& node, const FieldInfo& field, FileFindings& out)
        : node_(node), field_(field), out_(out), text_(node.text) {}

    void run() {
        switch (field_.kind) {
        case FieldKind::Number:
            checkNumber(text_, field_);
            break;
        case FieldKind::Real:
            checkReal();
            break;
        case FieldKind::Plate:
            checkPlate();
            break;
        case FieldKind::Flag:
            checkFlag();
            break;
        case FieldKind::Word:
        case FieldKind::Nationality:
        case FieldKind::Choice:
            checkWord(field_.words());
            break;
        case FieldKind::Flavour:
            checkWord(flavourNames());
            break;
        case FieldKind::Weapon:
            checkGiven();
            break;
        default:
            break;
        }
        checkLength();
    }

private:
    void tell(std::string_view key, std::string message, std::string expected, std::string hint = {},
              std::string replacement = {}) {
        out_.atText(node_, {.key = key,
                            .message = std::move(message),
                            .expected = std::move(expected),
                            .hint = std::move(hint),
                            .replacement = std::move(replacement)});
    }

    [[nodiscard]] std::string label() const { return std::string(partOfField_) + std::string(field_.label); }

    bool checkGiven() {
        if (text_.empty()) {
            tell(ck::EmptyValue, tagText(node_.name) + " is empty", label());
        }
        return !text_.empty();
    }

    static std::string rangeText(const NumberRange& range) {
        if (range.greatest == INT32_MAX) {
            return "at least " + std::to_string(range.least);
        }
        return std::to_string(range.least) + " to " + std::to_string(range.greatest);
    }

    /// "7,5" and the like: what a number was meant to be.
    [[nodiscard]] std::string numberHint(std::string_view text) const {
        std::string digits(text);
        for (auto& c : digits) {
            c = c == ',' ? '.' : c == 'O' || c == 'o' ? '0' : c == 'l' || c == 'I' ? '1' : c;
        }
        const auto number = entireReal(digits);
        return number && digits != text ? "did you mean " + quoted(digits) + "?" : std::string();
    }

    void checkNumber(std::string_view text, const FieldInfo& field) {
        if (text.empty()) {
            checkGiven();
            return;
        }
        const auto number = entireInteger(text);
        if (!number) {
            const bool isPart = toReal(text) != 0;
            tell(isPart ? ck::NumberCut : ck::NotANumber,
                 label() + " " + quoted(text) +
                     (isPart ? " is read as " + std::to_string(toInteger(text))
                             : std::string(" is no number")),
                 "a whole number", numberHint(text));
            return;
        }
        const bool isHeld = *number >= field.held.least && *number <= field.held.greatest;
        const NumberRange& range = field.traits.range;
        if (*number < range.least || *number > range.greatest) {
            tell(ck::OutOfRange, label() + " " + std::string(trimmed(text)) + " cannot be", rangeText(range));
        } else if (!isHeld) {
            tell(ck::NumberCut,
                 label() + " " + std::string(trimmed(text)) + " is more than the game can hold",
                 rangeText(field.held));
        }
    }

    void checkReal() {
        if (!checkGiven()) {
            return;
        }
        const auto number = entireReal(text_);
        if (!number) {
            const bool isPart = toReal(text_) != 0;
            std::string read;
            appendShortest(read, toReal(text_));
            tell(isPart ? ck::NumberCut : ck::NotANumber,
                 label() + " " + quoted(text_) +
                     (isPart ? " is read as " + read : std::string(" is no number")),
                 "a number", numberHint(text_));
        } else if (*number < field_.traits.range.least || *number > field_.traits.range.greatest) {
            tell(ck::OutOfRange, label() + " " + std::string(text_) + " cannot be",
                 rangeText(field_.traits.range));
        }
    }

    void checkPlate() {
        if (!checkGiven()) {
            return;
        }
        const std::size_t at = text_.find('@');
        checkNumber(text_.substr(0, at), field::PlateThickness);
        if (at != std::string_view::npos) {
            partOfField_ = "the angle of ";
            checkNumber(text_.substr(at + 1), field::PlateAngle);
        }
    }

    void checkFlag() {
        if (text_ == "yes" || text_ == "no") {
            return;
        }
        if (text_.empty()) {
            checkGiven();
            return;
        }
        const NearestName nearest =
            NearestName(text_).offerAll(std::to_array<std::string_view>({"yes", "no"}));
        tell(ck::BadFlag, label() + " " + quoted(text_) + " is neither yes nor no", "yes", nearest.hint(),
             nearest.onlyName());
    }

    void checkWord(std::span<const std::string_view> words) {
        if (!checkGiven()) {
            return;
        }
        if (const std::string today(todaysWord(text_)); today != text_) {
            tell(ck::OlderSpelling, quoted(text_) + " is an older form", today,
                 "write " + quoted(today) + " today", today);
            return;
        }
        if (std::find(words.begin(), words.end(), text_) != words.end()) {
            return;
        }
        if (words.data() == flavourNames().data() && flavourOf(text_) != AmmoFlavour::None) {
            const std::string today(nameOf(flavourOf(text_)));
            tell(ck::OlderSpelling, quoted(text_) + " is an older form", today,
                 "write " + quoted(today) + " today", today);
            return;
        }
        const NearestName nearest = NearestName(text_).offerAll(words);
        tell(finding_key::UnknownWord, label() + " " + quoted(text_) + " is not known",
             "one of " + std::to_string(words.size()) + " words", nearest.hint(), nearest.onlyName());
    }

    void checkLength() {
        if (field_.capacity > 0 && text_.size() > field_.capacity) {
            tell(ck::TextCut,
                 label() + " has " + std::to_string(text_.size()) + " characters and is cut to " +
                     std::to_string(field_.capacity),
                 "at most " + std::to_string(field_.capacity) + " characters");
        }
    }

    const TagNode& node_;
    const FieldInfo& field_;
    FileFindings& out_;
    std::string_view text_;
    std::string_view partOfField_ = {}; ///< what stands before the label: "the angle of "
};

} // namespace

void checkValueText(const TagNode& node, const FieldInfo& field, FileFindings& out) {
    ValueTextCheck(node, field, out).run();
}

} // namespace varrocade
