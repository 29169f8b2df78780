#include "editors/mod/mod_dialog.h"

#include "editors/form/edit_history.h"
#include "editors/form/form_dialog_win32.h"
#include "editors/mod/mod_forms.h"
#include "editors/mod/mod_list_dialogs.h"
#include "mod/equipment_lists.h"
#include "mod/starting_points.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <utility>

namespace varrocade {

namespace {

class ModDialog final : public FormDialog {
public:
    explicit ModDialog(ModEdit& edit)
        : FormDialog({.dialogTemplate = IDD_EDIT_MOD, .caption = "Edit Mod"}, form_), edit_(edit),
          form_(edit.settings, modShape()), history_(edit.settings) {
        onButton(IDC_MOD_COLOURS, [this] {
            settle();
            editColours(handle(), edit_.settings.colours);
            settle();
        });
        onButton(IDC_MOD_NATIONALITIES, [this] {
            settle();
            editNationalities(handle(), edit_);
            settle();
            summarize();
        });
        onButton(IDC_MOD_START_FROM, [this] { startAnew(); });
        onButton(IDC_ENTRY_UNDO, [this] { goTo(history_.undo(typed())); });
        onButton(IDC_ENTRY_REDO, [this] { goTo(history_.redo(typed())); });
    }

private:
    void prepare() override {
        for (const std::string_view name : startingPointNames()) {
            SendDlgItemMessageA(handle(), IDC_MOD_START, CB_ADDSTRING, 0,
                                reinterpret_cast<LPARAM>(std::string(name).c_str()));
        }
        SendDlgItemMessageA(handle(), IDC_MOD_START, CB_SETCURSEL, 0, 0);
        showCredits();
        summarize();
    }

    void showCredits() {
        port().mark(IDC_MOD_CREDITS, {});
        // The port shows texts on one line.
        SetDlgItemTextA(handle(), IDC_MOD_CREDITS, creditsText(edit_.settings.credits).c_str());
    }

    [[nodiscard]] std::vector<std::string> typedCredits() {
        HWND edit = GetDlgItem(handle(), IDC_MOD_CREDITS);
        std::string text(static_cast<std::size_t>(GetWindowTextLengthA(edit)) + 1, '\0');
        text.resize(
            static_cast<std::size_t>(GetWindowTextA(edit, text.data(), static_cast<int>(text.size()))));
        // Empty lines at the end, which the file may have, are no change of the user's.
        return text == creditsText(edit_.settings.credits) ? edit_.settings.credits : creditLines(text);
    }

    /// The settings as far as what is typed can be taken.
    [[nodiscard]] ModSettings typed() {
        ModSettings settings = edit_.settings;
        readPossible(port(), modShape(), settings);
        settings.credits = typedCredits();
        return settings;
    }

    /// Makes a step of what was typed, or done in another dialog, since the last one.
    void settle() {
        edit_.settings = typed();
        history_.note(edit_.settings);
        followHistory();
    }

    void followHistory() {
        const ModSettings present = typed();
        port().setEnabled(IDC_ENTRY_UNDO, history_.canUndo(present));
        port().setEnabled(IDC_ENTRY_REDO, history_.canRedo(present));
    }

    void goTo(const ModSettings* state) {
        if (state != nullptr) {
            edit_.settings = *state;
            showCredits();
            show();
            summarize();
        }
    }

    void follow() override { followHistory(); }

    /// What was typed is a step once the keyboard goes elsewhere.
    bool notice(int control, int notification) override {
        if (notification == EN_KILLFOCUS) {
            settle();
            return false;
        }
        if (control == IDC_MOD_CREDITS && notification == EN_CHANGE) {
            const auto error = refusalOfCredits(typedCredits());
            port().mark(control, error ? std::string_view(error->message) : std::string_view());
        }
        return FormDialog::notice(control, notification);
    }

    void summarize() { port().setText(IDC_MOD_SUMMARY, nationalitySummary(edit_.settings.nationalities)); }

    /// Years, nationalities and equipment of another war. What the mod is called stays.
    void startAnew() {
        const LRESULT chosen = SendDlgItemMessageA(handle(), IDC_MOD_START, CB_GETCURSEL, 0, 0);
        if (chosen < 0) {
            return;
        }
        const Answer answer =
            showMessage({.text = "This gives the mod other years, nationalities, surnames, ranks, "
                                 "uniforms and equipment lists. Nothing is saved before OK.",
                         .caption = "Edit Mod",
                         .buttons = MessageButtons::OkCancel,
                         .icon = MessageIcon::Question});
        if (answer != Answer::Ok) {
            return;
        }
        ModSettings start = startingSettings(static_cast<StartingPoint>(chosen));
        listEquipment(start, readEquipmentSources(edit_.folders));
        settle();
        varrocade::startAnew(edit_.settings, std::move(start));
        history_.note(edit_.settings);
        show();
        summarize();
    }

    bool accept() override {
        std::vector<std::string> credits = typedCredits();
        if (const auto error = refusalOfCredits(credits)) {
            refuse(*error);
            return false;
        }
        if (!FormDialog::accept()) {
            return false;
        }
        edit_.settings.credits = std::move(credits);
        return edit_.save(edit_.settings);
    }

    ModEdit& edit_;
    RecordForm<ModSettings> form_;
    EditHistory<ModSettings> history_;
};

} // namespace

bool editMod(HWND owner, ModEdit& edit) {
    return ModDialog(edit).run(owner);
}

} // namespace varrocade
