#include "editors/mod/mod_dialog.h"

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
          form_(edit.settings, modShape()) {
        onButton(IDC_MOD_COLOURS, [this] { editColours(handle(), edit_.settings.colours); });
        onButton(IDC_MOD_NATIONALITIES, [this] {
            editNationalities(handle(), edit_);
            summarize();
        });
        onButton(IDC_MOD_START_FROM, [this] { startAnew(); });
    }

private:
    void prepare() override {
        for (const std::string_view name : startingPointNames()) {
            SendDlgItemMessageA(handle(), IDC_MOD_START, CB_ADDSTRING, 0,
                                reinterpret_cast<LPARAM>(std::string(name).c_str()));
        }
        SendDlgItemMessageA(handle(), IDC_MOD_START, CB_SETCURSEL, 0, 0);
        port().setText(IDC_MOD_CREDITS, creditsText(edit_.settings.credits));
        summarize();
    }

    void summarize() {
        std::string names;
        for (const ModNationality& nation : edit_.settings.nationalities) {
            names += (names.empty() ? "" : ", ") + (nation.name.empty() ? nation.id : nation.name);
        }
        port().setText(IDC_MOD_SUMMARY, names.empty() ? "Nationalities: all, as the game has them"
                                                      : "Nationalities: " + names);
    }

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
        ModSettings& settings = edit_.settings;
        readPossible(port(), modShape(), settings);
        settings.firstYear = start.firstYear;
        settings.firstMonth = start.firstMonth;
        settings.lastYear = start.lastYear;
        settings.lastMonth = start.lastMonth;
        settings.nationalities = std::move(start.nationalities);
        show();
        summarize();
    }

    bool accept() override {
        std::vector<std::string> credits = creditLines(port().text(IDC_MOD_CREDITS));
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
};

} // namespace

bool editMod(HWND owner, ModEdit& edit) {
    return ModDialog(edit).run(owner);
}

} // namespace varrocade
