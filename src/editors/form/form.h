#pragma once
// The form engine: a dialog's table of rows fills the controls from a record, enables them, offers their
// choices, and reads them back. It speaks to the controls through a port, so that forms are tested without
// windows.

#include "editors/form/form_row.h"
#include "editors/form/image_choices.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

/// The form of a kind of record: its rows and what they cannot say.
template <typename Record>
struct FormShape {
    std::span<const FormRow<Record>> rows;
    /// What kind of record it is, for rows that go by that.
    Holder (*holder)(const Record& record) = nullptr;
    /// Refuses or mends what was read; `former` is the record before it.
    std::optional<FormError> (*check)(const Record& former, Record& read) = nullptr;
};

/// Joins the labels of what a file does not store: "(OffsetX and Mount are not stored in the file)".
std::string notStoredText(std::span<const std::string> labels);

/// Names a text that a drop-down list does not offer: `Unknown, kept as it is: Type "X"`.
void addUnknown(std::string& names, FormPort& port, int control, std::string_view label);

/// The choices that hold every word of a text, whatever the case of its letters.
std::vector<std::string> fittingChoices(std::span<const std::string> choices, std::string_view text);

namespace form_detail {

template <typename Record>
bool isOf(const Holders& holders, const FormShape<Record>& shape, const Record& record) {
    return shape.holder == nullptr || holders.has(shape.holder(record));
}

/// Whether the record's dialog has the row's control.
template <typename Record>
bool stands(const FormRow<Record>& row, const FormShape<Record>& shape, const Record& record) {
    return isOf(row.terms.kinds, shape, record);
}

/// Whether the row can be changed as the dialog is now, the check box of what may be left open aside.
template <typename Record>
bool isOpen(const FormRow<Record>& row, FormPort& port, const FormShape<Record>& shape,
            const Record& record) {
    return isOf(row.terms.changedBy, shape, record) &&
           (row.terms.enabledWhen == nullptr || row.terms.enabledWhen(port, record));
}

template <typename Record>
std::optional<FormError> readRow(const FormRow<Record>& row, FormPort& port, const FormShape<Record>& shape,
                                 Record& record) {
    if (!stands(row, shape, record) || !isOpen(row, port, shape, record)) {
        return std::nullopt;
    }
    if (auto error = row.read(port, record)) {
        return error;
    }
    return row.terms.check == nullptr ? std::nullopt : row.terms.check(record);
}

} // namespace form_detail

/// Enables the controls as the record's kind and the other controls have it.
template <typename Record>
void updateEnabling(FormPort& port, const FormShape<Record>& shape, const Record& record) {
    for (const FormRow<Record>& row : shape.rows) {
        if (!form_detail::stands(row, shape, record)) {
            continue;
        }
        const bool isOpen = form_detail::isOpen(row, port, shape, record);
        if (row.terms.givenBy != 0) {
            port.setEnabled(row.terms.givenBy, isOpen);
        }
        port.setEnabled(row.control, isOpen && (row.terms.givenBy == 0 || port.isChecked(row.terms.givenBy)));
    }
}

/// The control of a field in the form of a record; 0 where it has none.
template <typename Record>
int controlOf(const FormShape<Record>& shape, const Record& record, FieldId field) {
    for (const FormRow<Record>& row : shape.rows) {
        if (field != nullptr && row.field == field && form_detail::stands(row, shape, record)) {
            return row.control;
        }
    }
    return 0;
}

/// Shows a record in the controls of its form.
template <typename Record>
void fillForm(FormPort& port, const FormShape<Record>& shape, const Record& record) {
    for (const FormRow<Record>& row : shape.rows) {
        if (form_detail::stands(row, shape, record)) {
            row.fill(port, record);
            port.mark(row.control, {});
        }
    }
    updateEnabling(port, shape, record);
}

/// Reads the controls of a form into a record, in the order of the rows. The first refusal leaves the record
/// as it was. What the user has not changed stays as it is, whatever it is.
template <typename Record>
std::optional<FormError> readForm(FormPort& port, const FormShape<Record>& shape, Record& record) {
    Record copy = record;
    for (const FormRow<Record>& row : shape.rows) {
        if (auto error = form_detail::readRow(row, port, shape, copy)) {
            return error;
        }
    }
    if (shape.check != nullptr) {
        if (auto error = shape.check(record, copy)) {
            return error;
        }
    }
    record = std::move(copy);
    return std::nullopt;
}

/// Marks a control that was changed with what is wrong with it by itself; rules over the whole form are told
/// on OK.
template <typename Record>
void markControl(FormPort& port, const FormShape<Record>& shape, const Record& record, int control) {
    for (const FormRow<Record>& row : shape.rows) {
        const bool isMeant = row.control == control || row.terms.givenBy == control;
        if (isMeant && form_detail::stands(row, shape, record)) {
            Record copy = record;
            const auto error = form_detail::readRow(row, port, shape, copy);
            const bool isItsOwn = error && error->control == row.control;
            port.mark(row.control, isItsOwn ? std::string_view(error->message) : std::string_view());
        }
    }
}

/// Takes over what can be taken, row by row: for what is shown while the user types.
template <typename Record>
void readPossible(FormPort& port, const FormShape<Record>& shape, Record& record) {
    for (const FormRow<Record>& row : shape.rows) {
        Record copy = record;
        if (!form_detail::readRow(row, port, shape, copy)) {
            record = std::move(copy);
        }
    }
}

/// Gives the drop-down lists their entries: the words of enumerations, and the pictures below `imageBases`.
/// The word for an empty value comes first.
template <typename Record>
void offerChoices(FormPort& port, const FormShape<Record>& shape, const Record& record,
                  std::span<const std::string> imageBases) {
    for (const FormRow<Record>& row : shape.rows) {
        if (!form_detail::stands(row, shape, record)) {
            continue;
        }
        const bool hasImages = !row.images().empty();
        std::vector<std::string> choices = hasImages ? imageChoices(imageBases, row.images()) : row.words();
        if (hasImages && !row.terms.emptyAs.empty()) {
            choices.insert(choices.begin(), std::string(row.terms.emptyAs));
        }
        if (hasImages || !choices.empty()) {
            port.setChoices(row.control, choices);
        }
    }
}

/// Names what the fields hold that their lists do not offer, or empty: `Unknown, kept as it is: Type "X"`.
template <typename Record>
std::string unknownChoices(FormPort& port, const FormShape<Record>& shape, const Record& record) {
    std::string names;
    for (const FormRow<Record>& row : shape.rows) {
        const bool hasChoices = row.hasWords() || !row.images().empty();
        if (hasChoices && form_detail::stands(row, shape, record)) {
            addUnknown(names, port, row.control, row.label());
        }
    }
    return names;
}

/// Names the controls whose values a file does not store of what this holds, or empty.
template <typename Record>
std::string notStoredText(const FormShape<Record>& shape, Holder holder) {
    std::vector<std::string> labels;
    for (const FormRow<Record>& row : shape.rows) {
        if (row.terms.kinds.has(holder) && !row.field->isStoredBy(holder)) {
            labels.push_back(row.label());
        }
    }
    return notStoredText(labels);
}

/// Names the controls whose values the record's file does not store, or empty.
template <typename Record>
std::string notStoredText(const FormShape<Record>& shape, const Record& record) {
    std::vector<std::string> labels;
    for (const FormRow<Record>& row : shape.rows) {
        if (form_detail::stands(row, shape, record) &&
            !form_detail::isOf(row.field->traits.stored, shape, record)) {
            labels.push_back(row.label());
        }
    }
    return notStoredText(labels);
}

/// A form and its record, whatever that is: what a dialog does with it.
class FormModel {
public:
    FormModel() = default;
    FormModel(const FormModel&) = delete;
    FormModel& operator=(const FormModel&) = delete;
    virtual ~FormModel() = default;

    virtual void offer(FormPort& port, std::span<const std::string> imageBases) = 0;
    virtual void show(FormPort& port) = 0;
    virtual void update(FormPort& port) = 0;
    virtual void mark(FormPort& port, int control) = 0;
    virtual std::string unknown(FormPort& port) = 0;
    virtual std::string notStored() = 0;
    /// The control of a field; 0 where the form has none.
    virtual int controlOf(FieldId field) = 0;
    /// Takes the form over into the record.
    virtual std::optional<FormError> read(FormPort& port) = 0;
};

template <typename Record>
class RecordForm : public FormModel {
public:
    RecordForm(Record& record, const FormShape<Record>& shape) : record_(record), shape_(shape) {}

    void offer(FormPort& port, std::span<const std::string> imageBases) override {
        offerChoices(port, shape_, record_, imageBases);
    }
    void show(FormPort& port) override { fillForm(port, shape_, record_); }
    void update(FormPort& port) override { updateEnabling(port, shape_, record_); }
    void mark(FormPort& port, int control) override { markControl(port, shape_, record_, control); }
    std::string unknown(FormPort& port) override { return unknownChoices(port, shape_, record_); }
    std::string notStored() override { return notStoredText(shape_, record_); }
    int controlOf(FieldId field) override { return varrocade::controlOf(shape_, record_, field); }
    std::optional<FormError> read(FormPort& port) override { return readForm(port, shape_, record_); }

private:
    Record& record_;
    const FormShape<Record>& shape_;
};

} // namespace varrocade
