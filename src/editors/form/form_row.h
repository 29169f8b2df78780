#pragma once
// The rows of a form's table: a control, the field that it shows, and what this dialog makes of it. A row
// serves both directions: what fills the control, enables it and offers its choices reads it back and refuses
// it.

#include "data/codec.h"
#include "editors/form/form_port.h"

#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// What a row says besides its control and its field; most need nothing of it.
template <typename Record>
struct RowTerms {
    /// Where the dialog calls the field otherwise than the field itself.
    std::string_view label = {};
    /// What the field is of, where a dialog has several alike: "Upper front" of a thickness.
    std::string_view of = {};
    /// The kinds of record in whose dialog the control stands.
    Holders kinds = AnyHolder;
    /// Those among them that may change it; the others show it disabled.
    Holders changedBy = AnyHolder;
    /// What it depends on in the dialog. A disabled control is not read: its value stays.
    bool (*enabledWhen)(FormPort& port, const Record& record) = nullptr;
    /// The check box that tells whether there is such a number at all; one below 0 is none.
    int givenBy = 0;
    /// The radio button that stands for "no" where the row's own stands for "yes".
    int otherwise = 0;
    /// The word that an empty value is shown as.
    std::string_view emptyAs = {};
    /// The pictures or words that are offered, where they are others than the field's.
    std::span<const ImageSource> images = {};
    Words words = nullptr;
    /// Of the boxes with its refusals, where it is another than the dialog's.
    std::string_view caption = {};
    /// Whether another rule holds once this row has been read: refusals come in the order of the rows.
    std::optional<FormError> (*check)(const Record& read) = nullptr;
};

/// The number of a record that is not there.
inline constexpr std::int32_t NotGiven = -1;

template <typename Record>
class FormRow {
public:
    /// A field of the record itself. `Converter` stands in for the codec of the value's type where the dialog
    /// shows another figure than the record holds.
    template <typename Value, typename Converter = Codec<Value>>
    constexpr FormRow(int rowControl, const Field<Record, Value>& rowField,
                      const RowTerms<Record>& rowTerms = {}, Converter = {})
        : FormRow(rowControl, Itself(), rowField, rowTerms, Converter()) {}

    /// A field of a part of the record, which `Reach::in` finds: `static auto& in(auto& record)`.
    template <typename Reach, typename Part, typename Value, typename Converter = Codec<Value>>
    constexpr FormRow(int rowControl, Reach, const Field<Part, Value>& rowField,
                      const RowTerms<Record>& rowTerms = {}, Converter = {})
        : control(rowControl), field(&rowField), terms(rowTerms),
          fill_(&fillControl<Reach, Part, Value, Converter>),
          read_(&readControl<Reach, Part, Value, Converter>), words_(&wordsOf<Value>) {}

    int control;
    const FieldInfo* field;
    RowTerms<Record> terms;

    void fill(FormPort& port, const Record& record) const { fill_(*this, port, record); }
    [[nodiscard]] std::optional<FormError> read(FormPort& port, Record& record) const {
        return read_(*this, port, record);
    }
    /// The words that its list offers, or none.
    [[nodiscard]] std::vector<std::string> words() const { return words_(*this); }
    [[nodiscard]] bool hasWords() const { return terms.words != nullptr || field->words != nullptr; }
    [[nodiscard]] std::span<const ImageSource> images() const {
        return terms.images.empty() ? field->images : terms.images;
    }
    [[nodiscard]] std::string label() const {
        return (terms.of.empty() ? std::string() : std::string(terms.of) + " ") +
               std::string(terms.label.empty() ? field->label : terms.label);
    }

private:
    struct Itself {
        static auto& in(auto& record) { return record; }
    };

    /// `label` lives as long as the terms.
    [[nodiscard]] CodecTerms codecTerms(std::string_view label) const {
        return {.label = label,
                .range = field->traits.range,
                .decimals = field->traits.decimals,
                .isImage = field->kind == FieldKind::Image || field->kind == FieldKind::Uniform,
                .losesEnding = field->kind == FieldKind::Image,
                .emptyAs = terms.emptyAs};
    }

    template <typename Reach, typename Part, typename Value, typename Converter>
    static void fillControl(const FormRow& row, FormPort& port, const Record& record) {
        const Value& value = static_cast<const Field<Part, Value>&>(*row.field).of(Reach::in(record));
        if constexpr (std::is_same_v<Value, bool>) {
            port.setChecked(row.control, value);
            if (row.terms.otherwise != 0) {
                port.setChecked(row.terms.otherwise, !value);
            }
        } else {
            const std::string label = row.label();
            const CodecTerms terms = row.codecTerms(label);
            if constexpr (requires { Converter::limit(terms); }) {
                if (const std::size_t limit = Converter::limit(terms); limit > 0) {
                    port.setLimit(row.control, limit);
                }
            }
            std::string text = Converter::textOf(value, terms);
            if constexpr (std::is_signed_v<Value>) {
                if (row.terms.givenBy != 0) {
                    port.setChecked(row.terms.givenBy, value >= 0);
                    text = value >= 0 ? text : std::string();
                }
            }
            port.setText(row.control, text);
        }
    }

    template <typename Reach, typename Part, typename Value, typename Converter>
    static std::optional<FormError> readControl(const FormRow& row, FormPort& port, Record& record) {
        Value& value = static_cast<const Field<Part, Value>&>(*row.field).of(Reach::in(record));
        if constexpr (std::is_same_v<Value, bool>) {
            value = port.isChecked(row.control);
        } else {
            if constexpr (std::is_signed_v<Value>) {
                if (row.terms.givenBy != 0 && !port.isChecked(row.terms.givenBy)) {
                    value = value < 0 ? value : static_cast<Value>(NotGiven);
                    return std::nullopt;
                }
            }
            const std::string label = row.label();
            CodecTerms terms = row.codecTerms(label);
            const std::string text = port.text(row.control);
            // The list offers names without their ending: "odd.png" is the picture "odd.png.png".
            terms.losesEnding = terms.losesEnding && !port.offers(row.control, text);
            // What is not changed is not changed: neither rounded nor refused.
            const bool isUntouched = text == onOneLine(Converter::textOf(value, terms));
            if (Refusal refusal = isUntouched ? std::nullopt : Converter::take(text, terms, value)) {
                return FormError{refusedInput(*row.field, std::move(*refusal), text), row.control,
                                 std::string(row.terms.caption)};
            }
        }
        return std::nullopt;
    }

    template <typename Value>
    static std::vector<std::string> wordsOf(const FormRow& row) {
        std::vector<std::string> words;
        if constexpr (std::is_enum_v<Value>) {
            for (const FormWord<Value>& word : FormWords<Value>::words()) {
                words.emplace_back(word.word);
            }
        } else if (row.hasWords()) {
            const auto names = (row.terms.words != nullptr ? row.terms.words : row.field->words)();
            words.assign(names.begin(), names.end());
        }
        return words;
    }

    void (*fill_)(const FormRow&, FormPort&, const Record&);
    std::optional<FormError> (*read_)(const FormRow&, FormPort&, Record&);
    std::vector<std::string> (*words_)(const FormRow&);
};

} // namespace varrocade
