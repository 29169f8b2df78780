#pragma once
// A list of entries of which the chosen one is shown in a form: crew, exhaust pipes, ammunition and their
// like.

#include "editors/form/edit_history.h"
#include "editors/form/form.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

/// What a list dialog does with its entries, whatever they are.
class ListModel {
public:
    ListModel() = default;
    ListModel(const ListModel&) = delete;
    ListModel& operator=(const ListModel&) = delete;
    virtual ~ListModel() = default;

    [[nodiscard]] virtual std::size_t count() const = 0;
    [[nodiscard]] virtual std::string line(std::size_t index) const = 0;
    /// Whether another entry fits.
    [[nodiscard]] virtual bool hasRoom() const = 0;
    [[nodiscard]] virtual bool canMirror() const = 0;
    virtual void show(std::size_t index, FormPort& port) = 0;
    virtual std::optional<FormError> read(std::size_t index, FormPort& port) = 0;
    virtual void add() = 0;
    virtual void copy(std::size_t index) = 0;
    virtual void mirror(std::size_t index) = 0;
    /// Where the entry stands that was made last.
    [[nodiscard]] virtual std::size_t newest() const { return count() - 1; }
    /// The control of a field in the form of an entry; 0 where it has none.
    [[nodiscard]] virtual int controlOf(std::size_t index, FieldId field) const = 0;
    /// The form's first control, or 0.
    [[nodiscard]] virtual int firstControl() const { return 0; }
    virtual void erase(std::size_t index) = 0;
    virtual void swap(std::size_t index, std::size_t other) = 0;
    /// Disables the form as a whole, while there is no entry to show.
    virtual void disable(FormPort& port) = 0;
    /// Enables the form's controls as the shown entry and the other controls have it.
    virtual void update(std::size_t index, FormPort& port) = 0;
    /// Marks a control that was changed with what is wrong with it.
    virtual void mark(std::size_t index, FormPort& port, int control) = 0;
    /// Fills the drop-down lists that the form itself knows.
    virtual void offer(FormPort& port, std::span<const std::string> imageBases) = 0;
    /// Names what the shown entry holds that the lists do not offer.
    virtual std::string unknown(std::size_t index, FormPort& port) = 0;

    /// Makes a step of what was changed since the last one; the first call begins the history.
    virtual void note() = 0;
    [[nodiscard]] virtual bool canUndo() const = 0;
    [[nodiscard]] virtual bool canRedo() const = 0;
    /// Goes back one step or forth again, and gives the first entry that is another then; nothing where there
    /// is no step.
    virtual std::optional<std::size_t> undo() = 0;
    virtual std::optional<std::size_t> redo() = 0;
};

/// How entries of one kind are shown.
template <typename Entry>
struct ListShape {
    FormShape<Entry> form;
    std::string (*line)(std::size_t place, const Entry& entry); ///< `place` counts from 1
    std::size_t most = SIZE_MAX;
    void (*mirror)(Entry& entry) = nullptr; ///< to the other side of the vehicle
    /// What a new entry holds.
    Entry blank = {};
    /// Refuses an entry that says nothing yet. Only what is made so is refused: what a file holds stays.
    std::optional<FormError> (*incomplete)(const Entry& entry) = nullptr;
};

/// What a list's entries depend on besides themselves.
template <typename Entry>
struct ListSurroundings {
    std::function<Entry()> next; ///< a new entry, where it is not the shape's blank
    std::function<std::string(const Entry& entry)> warn = {};  ///< what is wrong with an entry, or empty
    std::function<std::size_t(const Entry& entry)> place = {}; ///< of a new entry, where it is not the end
};

/// The entries of a vector.
template <typename Entry>
class VectorListModel : public ListModel {
public:
    VectorListModel(std::vector<Entry>& entries, const ListShape<Entry>& shape,
                    ListSurroundings<Entry> surroundings = {})
        : entries_(entries), shape_(shape), surroundings_(std::move(surroundings)),
          isNew_(entries.size(), 0) {}

    [[nodiscard]] std::size_t count() const override { return entries_.size(); }
    [[nodiscard]] std::string line(std::size_t index) const override {
        const std::string warning =
            surroundings_.warn != nullptr ? surroundings_.warn(entries_[index]) : std::string();
        return shape_.line(index + 1, entries_[index]) + (warning.empty() ? "" : "  (!)");
    }
    [[nodiscard]] bool hasRoom() const override { return entries_.size() < shape_.most; }
    [[nodiscard]] bool canMirror() const override { return shape_.mirror != nullptr; }

    void show(std::size_t index, FormPort& port) override { fillForm(port, shape_.form, entries_[index]); }
    std::optional<FormError> read(std::size_t index, FormPort& port) override {
        Entry read = entries_[index];
        if (auto error = readForm(port, shape_.form, read)) {
            return error;
        }
        const auto incomplete = [this](const Entry& entry) {
            return shape_.incomplete != nullptr ? shape_.incomplete(entry) : std::nullopt;
        };
        if (auto error = incomplete(read); error && (isNew_[index] != 0 || !incomplete(entries_[index]))) {
            return error;
        }
        entries_[index] = std::move(read);
        return std::nullopt;
    }
    void add() override { insert(surroundings_.next != nullptr ? surroundings_.next() : shape_.blank); }
    void copy(std::size_t index) override { insert(entries_[index]); }
    void mirror(std::size_t index) override {
        Entry twin = entries_[index];
        shape_.mirror(twin);
        insert(std::move(twin));
    }
    [[nodiscard]] std::size_t newest() const override { return newest_; }
    [[nodiscard]] int controlOf(std::size_t index, FieldId field) const override {
        return varrocade::controlOf(shape_.form, entries_[index], field);
    }
    [[nodiscard]] int firstControl() const override {
        return shape_.form.rows.empty() ? 0 : shape_.form.rows.front().control;
    }
    void erase(std::size_t index) override {
        const auto place = static_cast<std::ptrdiff_t>(index);
        entries_.erase(entries_.begin() + place);
        isNew_.erase(isNew_.begin() + place);
    }
    void swap(std::size_t index, std::size_t other) override {
        std::swap(entries_[index], entries_[other]);
        std::swap(isNew_[index], isNew_[other]);
    }
    void disable(FormPort& port) override {
        for (const FormRow<Entry>& row : shape_.form.rows) {
            port.setEnabled(row.control, false);
            port.mark(row.control, {});
        }
    }
    void update(std::size_t index, FormPort& port) override {
        updateEnabling(port, shape_.form, entries_[index]);
    }
    void mark(std::size_t index, FormPort& port, int control) override {
        markControl(port, shape_.form, entries_[index], control);
    }
    void offer(FormPort& port, std::span<const std::string> imageBases) override {
        offerChoices(port, shape_.form, shape_.blank, imageBases);
    }
    std::string unknown(std::size_t index, FormPort& port) override {
        return unknownChoices(port, shape_.form, entries_[index]);
    }

    void note() override {
        if (history_) {
            history_->note(state());
        } else {
            history_.emplace(state());
        }
    }
    [[nodiscard]] bool canUndo() const override { return history_ && history_->canUndo(state()); }
    [[nodiscard]] bool canRedo() const override { return history_ && history_->canRedo(state()); }
    std::optional<std::size_t> undo() override {
        return history_ ? goTo(history_->undo(state())) : std::nullopt;
    }
    std::optional<std::size_t> redo() override {
        return history_ ? goTo(history_->redo(state())) : std::nullopt;
    }

    /// Tells that entries were taken out or put in behind the model's back, none of them new.
    void resized() { isNew_.assign(entries_.size(), 0); }

    /// Puts in a new entry where it belongs.
    void insert(Entry entry) {
        newest_ = surroundings_.place != nullptr ? surroundings_.place(entry) : entries_.size();
        const auto place = static_cast<std::ptrdiff_t>(newest_);
        entries_.insert(entries_.begin() + place, std::move(entry));
        isNew_.insert(isNew_.begin() + place, 1);
    }

private:
    /// The entries, and which of them are new.
    using State = std::pair<std::vector<Entry>, std::vector<char>>;

    [[nodiscard]] State state() const { return {entries_, isNew_}; }
    std::optional<std::size_t> goTo(const State* state) {
        if (state == nullptr) {
            return std::nullopt;
        }
        const auto differs =
            std::mismatch(entries_.begin(), entries_.end(), state->first.begin(), state->first.end());
        const auto place = static_cast<std::size_t>(differs.first - entries_.begin());
        entries_ = state->first;
        isNew_ = state->second;
        return place;
    }

    std::vector<Entry>& entries_;
    const ListShape<Entry>& shape_;
    ListSurroundings<Entry> surroundings_;
    std::optional<EditHistory<State>> history_; ///< of dialogs that have one
    std::vector<char> isNew_;                   ///< whether the dialog made the entry
    std::size_t newest_ = 0;
};

} // namespace varrocade
