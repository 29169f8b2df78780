#pragma once

#include "editors/form/form_port_win32.h"
#include "editors/form/list_model.h"

#include <string_view>

namespace varrocade {

/// A dialog with a list, the buttons that change it, and a form for the chosen entry. The controls have the
/// same numbers in every such dialog (IDC_ENTRY_...).
struct ListDialog {
    ListModel& model;
    std::string_view caption;
    /// The refusal of an entry too many.
    std::string_view fullText = {};
    std::string_view fullCaption = {};
    /// Shows the present state elsewhere, after every change.
    void (*preview)(void* context) = nullptr;
    void* context = nullptr;
    /// The buttons of this dialog alone; false when the control is none of them.
    bool (*command)(HWND dialog, ListDialog& list, int control) = nullptr;
    /// Fills drop-down lists when the dialog opens.
    void (*prepare)(HWND dialog, ListDialog& list) = nullptr;
    /// Follows the form after it was filled or changed: choices and texts that depend on what it holds.
    void (*follow)(HWND dialog, ListDialog& list) = nullptr;

    std::size_t first = 0;  ///< the entry to begin with
    int shown = -1;         ///< the entry that the form shows
    bool isFilling = false; ///< the form is being filled: what its controls report is no change of the user's
};

/// What a list dialog's procedure does with a message.
INT_PTR handleListDialog(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer);

/// Takes the form over into the shown entry; false after telling what is wrong with it.
bool takeShownEntry(HWND dialog, ListDialog& list);

/// Whether another entry fits; false after telling that none does.
bool hasRoomForEntry(const ListDialog& list);

/// Shows the list's entries anew and chooses one of them.
void refreshEntries(HWND dialog, ListDialog& list, int chosen);

} // namespace varrocade
