#include "editors/vehicle/drive_dialog.h"

#include "data/unit/engine_table.h"
#include "data/unit/enumerations.h"
#include "editors/form/form_port_win32.h"
#include "editors/unit/list_dialogs.h"
#include "editors/vehicle/drive_form.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

std::vector<std::string> engineNames() {
    std::vector<std::string> names;
    for (const EngineRow& row : engineTable()) {
        names.emplace_back(row.name);
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

std::vector<std::string> strings(std::span<const std::string_view> names) {
    return {names.begin(), names.end()};
}

constexpr auto KnownChoices =
    std::to_array<ChoiceField>({{IDC_RELIABILITY, "Reliability"}, {IDC_STEERING, "Steering"}});

void fillDialog(HWND dialog, const EditContext& edit) {
    DialogPort port(dialog);
    port.setChoices(IDC_ENGINE, engineNames());
    port.setChoices(IDC_RELIABILITY, strings(reliabilityNames()));
    port.setChoices(IDC_ENGINE_MOUNT, strings(EngineMountNames));
    port.setChoices(IDC_STEERING, strings(steeringNames()));
    fillDriveForm(port, *edit.record.vehicle);
    showUnknownChoices(dialog, KnownChoices);
}

void takeDialog(HWND dialog, EditContext& edit) {
    DialogPort port(dialog);
    if (const auto error = readDriveForm(port, *edit.record.vehicle)) {
        showMessage({.text = error->message, .caption = "Drive", .icon = MessageIcon::Information});
        port.focus(error->control);
        return;
    }
    edit.changed("Drive");
    EndDialog(dialog, 1);
}

/// An engine picked from the list brings its horsepower with it.
void pickEngine(HWND dialog) {
    completeChoice(dialog, IDC_ENGINE);
    DialogPort port(dialog);
    takeEngine(port, port.text(IDC_ENGINE));
}

INT_PTR CALLBACK driveProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* edit = dialogContext<EditContext>(dialog, message, pointer);
    if (message == WM_INITDIALOG) {
        placeBesideDrawing(dialog);
        fillDialog(dialog, *edit);
        return TRUE;
    }
    if (message != WM_COMMAND) {
        return FALSE;
    }
    switch (LOWORD(parameter)) {
    case IDOK:
        takeDialog(dialog, *edit);
        return TRUE;
    case IDCANCEL:
        EndDialog(dialog, 0);
        return TRUE;
    case IDC_ENGINE:
        if (HIWORD(parameter) == CBN_SELCHANGE) {
            pickEngine(dialog);
        }
        return TRUE;
    case IDC_EXHAUSTS_BUTTON:
        if (editExhaustPipes(dialog, *edit)) {
            edit->changed("Exhaust pipes");
        }
        return TRUE;
    default:
        return followChoices(dialog, KnownChoices, LOWORD(parameter), HIWORD(parameter)) ? TRUE : FALSE;
    }
}

} // namespace

bool editDrive(HWND owner, EditContext& edit) {
    return runDialog(owner, IDD_DRIVE, driveProcedure, &edit) != 0;
}

} // namespace varrocade
