#pragma once

#include "editors/form/form_port.h"

#include <windows.h>

#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// The controls of a real dialog.
class DialogPort : public FormPort {
public:
    explicit DialogPort(HWND dialog) : dialog_(dialog) {}

    std::string text(int control) override;
    void setText(int control, std::string_view text) override;
    bool isChecked(int control) override;
    void setChecked(int control, bool checked) override;
    void setEnabled(int control, bool enabled) override;
    void setChoices(int control, std::span<const std::string> choices) override;
    bool offers(int control, std::string_view text) override;
    void setLimit(int control, std::size_t characters) override;
    void focus(int control) override;
    /// Marked controls have another background (`refusedColour`), and tell why while the mouse rests on them.
    void mark(int control, std::string_view refusal) override;

    /// The place of a drop-down list's text among all its choices, letter case aside.
    [[nodiscard]] std::optional<std::size_t> chosen(int control);
    /// Puts one of its choices into a drop-down list.
    void choose(int control, std::size_t choice);

    /// Shows only those entries of a drop-down list that fit what was typed into it.
    void filterChoices(int control);
    /// Shows all of them again.
    void showAllChoices(int control);
    /// Whether a list is being filled: what its control reports is no change of the user's.
    [[nodiscard]] bool isFilling() const { return isFilling_; }

    /// Takes all marks off, before the dialog goes.
    void unmarkAll();

private:
    void showChoices(HWND window, std::span<const std::string> choices);

    HWND dialog_;
    bool isFilling_ = false;
    std::map<int, std::vector<std::string>> choices_; ///< of the lists that are typed into
    std::set<int> filtered_;
};

/// Shows a text in IDC_UNKNOWN, which is there only while there is something to say. It can be as long as it
/// likes: the control is scrolled.
void showUnknown(HWND dialog, std::string_view text);

/// The background of marked controls.
inline constexpr COLORREF RefusedColour = RGB(255, 214, 214);
/// The window property that marked controls have.
inline constexpr const char* RefusedProperty = "Varrocade.Refused";

/// Whether an edit, or the drop-down list that it is the edit part of, is marked.
bool isMarked(HWND edit);

/// Whether a notification tells that the user changed what a control holds.
bool isUserChange(int notification);

/// Puts what was chosen from a drop-down list into its edit part, which it reaches only after the
/// notification.
void completeChoice(HWND dialog, int control);

/// Moves a dialog that is opening to the right edge of the main window, over the data sheet: the drawing,
/// which follows what is edited, stays in sight as far as there is room.
void placeBesideDrawing(HWND dialog);

/// Runs a modal dialog whose procedure finds `context` as its user data from WM_INITDIALOG on.
/// Returns what the dialog ended with, 0 when it could not be shown.
INT_PTR runDialog(HWND owner, int dialogTemplate, DLGPROC procedure, void* context);

/// The context that a dialog was opened with; null before WM_INITDIALOG. The procedure passes its parameters.
template <typename Context>
Context* dialogContext(HWND dialog, UINT message, LPARAM parameter) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(dialog, DWLP_USER, parameter);
    }
    // The system keeps an integer for the dialog.
    return reinterpret_cast<Context*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

} // namespace varrocade
