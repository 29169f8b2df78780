#include "app/commands/names/name_dialogs.h"

#include "app/workspace/names/file_names.h"
#include "data/unit/enumerations.h"
#include "editors/form/form_port_win32.h"
#include "editors/weapon/weapon_words.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "weapons/weapon_kinds.h"

#include <vector>

namespace varrocade {

namespace {

int templateOf(NameDialogKind kind) {
    switch (kind) {
    case NameDialogKind::NewWeapon:
        return IDD_NEW_WEAPON;
    case NameDialogKind::Duplicate:
        return IDD_DUPLICATE;
    case NameDialogKind::Rename:
        break;
    }
    return IDD_RENAME;
}

void fillWeaponTypes(HWND window, WeaponType type) {
    std::vector<std::string> words;
    for (const FormWord<WeaponType>& word : FormWords<WeaponType>::words()) {
        words.emplace_back(word.word);
    }
    DialogPort port(window);
    port.setChoices(IDC_NEW_WEAPON_TYPE, words);
    port.setText(IDC_NEW_WEAPON_TYPE, Codec<WeaponType>::textOf(type, {}));
}

WeaponType chosenWeaponType(HWND window) {
    WeaponType type = WeaponType::Rifle;
    Codec<WeaponType>::take(DialogPort(window).text(IDC_NEW_WEAPON_TYPE), {}, type);
    return type;
}

/// The rest of the name is enough. A name that begins as weapons do is whole, and so is one that is refused
/// anyway.
std::string wholeWeaponName(const std::string& name, WeaponType type) {
    const bool isWhole = name.starts_with(WeaponPrefix) || refusalOfName(name);
    return isWhole ? name : nameForType(name, type);
}

/// A name with a type's prefix chooses the type; the file's name is told in either case.
void followWeaponName(HWND window) {
    DialogPort port(window);
    const std::string name = port.text(IDC_NEW_NAME);
    if (const WeaponType type = typeOfWeaponName(name); type != WeaponType::None) {
        port.setText(IDC_NEW_WEAPON_TYPE, Codec<WeaponType>::textOf(type, {}));
    }
    port.setText(IDC_NEW_WEAPON_PREFIX,
                 "File: " + wholeWeaponName(name.empty() ? "..." : name, chosenWeaponType(window)));
}

/// A type that is chosen takes its prefix to a name that has another one.
void followWeaponType(HWND window) {
    DialogPort port(window);
    const std::string name = port.text(IDC_NEW_NAME);
    if (typeOfWeaponName(name) != WeaponType::None) {
        port.setText(IDC_NEW_NAME, nameForType(name, chosenWeaponType(window)));
    }
    followWeaponName(window);
}

void readChoice(HWND window, NameDialog& dialog) {
    dialog.choice.name = DialogPort(window).text(IDC_NEW_NAME);
    if (dialog.kind == NameDialogKind::NewWeapon) {
        dialog.choice.weaponType = chosenWeaponType(window);
        dialog.choice.name = wholeWeaponName(dialog.choice.name, dialog.choice.weaponType);
    }
}

void takeChoice(HWND window, NameDialog& dialog) {
    readChoice(window, dialog);
    const NameCheck refusal = dialog.take(dialog.choice);
    if (!refusal) {
        EndDialog(window, 1);
        return;
    }
    if (!refusal->empty()) {
        showMessage({.text = *refusal, .caption = "Error", .icon = MessageIcon::Information});
    }
    DialogPort(window).focus(IDC_NEW_NAME);
}

INT_PTR CALLBACK nameProcedure(HWND window, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* dialog = dialogContext<NameDialog>(window, message, pointer);
    if (message == WM_INITDIALOG) {
        DialogPort port(window);
        if (!dialog->title.empty()) {
            SetWindowTextA(window, dialog->title.c_str());
        }
        if (dialog->kind == NameDialogKind::NewWeapon) {
            fillWeaponTypes(window, dialog->choice.weaponType);
            followWeaponName(window);
        }
        port.setLimit(IDC_NEW_NAME, 255);
        port.setText(IDC_NEW_NAME, dialog->choice.name);
        port.focus(IDC_NEW_NAME);
        return FALSE;
    }
    if (message == WM_COMMAND && LOWORD(parameter) == IDOK) {
        takeChoice(window, *dialog);
        return TRUE;
    }
    if (message == WM_COMMAND && HIWORD(parameter) == EN_CHANGE && LOWORD(parameter) == IDC_NEW_NAME) {
        followWeaponName(window);
        return TRUE;
    }
    if (message == WM_COMMAND && HIWORD(parameter) == CBN_SELCHANGE &&
        LOWORD(parameter) == IDC_NEW_WEAPON_TYPE) {
        followWeaponType(window);
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(parameter) == IDCANCEL) {
        EndDialog(window, 0);
        return TRUE;
    }
    return FALSE;
}

} // namespace

bool askForName(NameDialog& dialog) {
    return runDialog(dialog.owner, templateOf(dialog.kind), nameProcedure, &dialog) != 0;
}

} // namespace varrocade
