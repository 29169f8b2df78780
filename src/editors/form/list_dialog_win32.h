#pragma once

#include "editors/form/dialog_frame_win32.h"
#include "editors/form/list_model.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// What a list's dialog is.
struct ListDialogTerms {
    int dialogTemplate = 0;
    std::string_view caption = {}; ///< of the boxes with refusals
    /// The refusal of an entry too many.
    std::string_view fullText = {};
    std::string_view fullCaption = {};
    std::size_t first = 0;                        ///< the entry to begin with
    std::span<const std::string> imageBases = {}; ///< the folders that pictures are offered from
    std::string title = {};                       ///< of the window, where it is not the template's
    FieldId focus = nullptr;                      ///< the field of that entry that has the keyboard first
};

/// A dialog with a list, the buttons that change it, and a form for the chosen entry. The controls have the
/// same numbers in every such dialog (IDC_ENTRY_...). IDC_UNKNOWN, where there is one, names what the entry's
/// drop-down lists do not offer.
class ListDialog : public DialogFrame {
public:
    /// `model` lives as long as the dialog.
    ListDialog(const ListDialogTerms& terms, ListModel& model);

protected:
    /// Fills what rows know nothing of, before an entry is shown.
    virtual void prepare() {}
    /// Follows the form after it was filled or changed: choices and texts that depend on what it holds.
    virtual void follow() {}
    /// Shows the present state elsewhere, after every change.
    virtual void preview() {}
    /// What the shown entry holds that no list offers, in words.
    virtual std::string unknownText() { return model_.unknown(shownIndex(), port()); }

    int firstFocus() override { return isShown() ? model_.controlOf(shownIndex(), terms_.focus) : 0; }
    bool accept() override { return takeShown(); }

    [[nodiscard]] bool isShown() const { return shown_ >= 0; }
    /// The place of the entry that the form shows, which there must be.
    [[nodiscard]] std::size_t shownIndex() const { return static_cast<std::size_t>(shown_); }
    /// Takes the form over into the shown entry; false after telling what is wrong with it.
    bool takeShown();
    /// Makes a step that can be undone of what was changed since the last one. Where the template has
    /// IDC_ENTRY_UNDO, the buttons of the list do so themselves, and going to another entry.
    void settle();
    /// Whether another entry fits; false after telling that none does.
    bool hasRoom();
    /// Shows the list's entries anew and chooses one of them; -1 for none.
    void refresh(int chosen);
    void refreshShown() { refresh(shown_); }
    /// Shows other lines for the same entries, while the form stays as it is.
    void showLines();

    bool notice(int control, int notification) override;

private:
    void init() override;

    [[nodiscard]] int lastIndex() const { return static_cast<int>(model_.count()) - 1; }
    void showEntry(int index);
    void followForm();
    void fillList(int chosen, LRESULT top);
    void updateButtons();
    void updateUndo();
    void goBack(std::optional<std::size_t> (ListModel::*step)());
    void followTyping(int control);
    bool addEntry(void (ListModel::*how)(std::size_t));
    void focusFirstField();
    void deleteEntry();
    void moveEntry(int step);
    void chooseEntry();

    ListDialogTerms terms_;
    ListModel& model_;
    int shown_ = -1; ///< the entry that the form shows
    bool isFilling_ =
        false; ///< the form is being filled: what its controls report is no change of the user's
};

} // namespace varrocade
