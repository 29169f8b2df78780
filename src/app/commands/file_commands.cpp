#include "app/commands/file_commands.h"

#include "app/commands/edit_weapon.h"
#include "app/commands/names/name_dialogs.h"
#include "app/commands/names/new_squad_dialog.h"
#include "app/windows/application.h"
#include "app/workspace/file_actions.h"
#include "app/workspace/positions.h"

namespace varrocade {

namespace {

NameCheck takeNewWeapon(const NewFileChoice& choice) {
    return createWeapon(theWorkspace(), choice.name, choice.weaponType);
}

NameCheck takeDuplicate(const NewFileChoice& choice) {
    return duplicateRecord(theWorkspace(), choice.name);
}

} // namespace

void newFile() {
    Workspace& workspace = theWorkspace();
    if (!mayLeavePositions(workspace)) {
        return;
    }
    if (workspace.category != Category::Weapons) {
        if (const std::string name = askForNewSquad(); !name.empty()) {
            openNewFile(workspace, name);
        }
        return;
    }
    NameDialog dialog{
        .owner = application().window, .kind = NameDialogKind::NewWeapon, .take = takeNewWeapon};
    if (askForName(dialog)) {
        openNewFile(workspace, dialog.choice.name);
        editOpenWeapon();
    }
}

void duplicateOpenFile() {
    Workspace& workspace = theWorkspace();
    if (!isRecordOpen(workspace) || !mayLeavePositions(workspace)) {
        return;
    }
    NameDialog dialog{
        .owner = application().window, .kind = NameDialogKind::Duplicate, .take = takeDuplicate};
    dialog.choice.name = openFileName(workspace) + " (copy)";
    if (askForName(dialog)) {
        openNewFile(workspace, dialog.choice.name);
    }
}

} // namespace varrocade
