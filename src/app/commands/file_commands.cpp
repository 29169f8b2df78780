#include "app/commands/file_commands.h"

#include "app/commands/commands.h"
#include "app/commands/name_dialogs.h"
#include "app/commands/open_record.h"
#include "app/windows/application.h"
#include "app/windows/file_list.h"
#include "app/windows/main_window.h"
#include "app/workspace/file_names.h"
#include "app/workspace/positions.h"
#include "data/unit/enumerations.h"
#include "platform/messages.h"
#include "weapons/weapon_files.h"

#include <shellapi.h>

#include <algorithm>

namespace varrocade {

namespace {

std::string pathOf(const std::string& name) {
    return dataFilePath(baseFolder(), application().category, name);
}

/// The refusal of a name for another file of the open record. A name whose former one did not begin with the
/// nationality either need not do so.
std::optional<std::string> refusalOfOtherName(const std::string& name) {
    const Application& app = application();
    if (auto refusal = refusalOfName(name)) {
        return refusal;
    }
    if (app.openUnit && !refusalOfNationality(app.openUnit->fileName, app.openUnit->nationality)) {
        return refusalOfNationality(name, app.openUnit->nationality);
    }
    return std::nullopt;
}

/// Selects an entry, and drops the filter when that hides it.
void selectUnfiltered(const std::string& name) {
    if (!selectEntry(name)) {
        leaveFilter();
        selectEntry(name);
    }
}

/// Refills the list, selects an entry and remembers it.
void refillAndSelect(const std::string& name) {
    Application& app = application();
    if (app.category == Category::Weapons) {
        loadCatalogue();
    }
    SendMessageA(app.window, RefreshListMessage, 0, 0);
    selectUnfiltered(name);
    app.rememberedSelections[static_cast<std::size_t>(app.category)] = name;
    updateButtons();
}

bool saveUnder(const std::string& name) {
    Application& app = application();
    if (app.openWeapon) {
        WeaponRecord copy = *app.openWeapon;
        copy.fileName = name;
        return saveWeapon(systemFiles(), app.backups, baseFolder(), name, copy) == SaveResult::Saved;
    }
    SquadRecord copy = *app.openUnit;
    copy.fileName = name;
    return saveUnit(systemFiles(), app.backups, baseFolder(), app.category, copy) == SaveResult::Saved;
}

/// Moves a file to the recycle bin.
bool recycle(const std::string& path) {
    // The shell takes a list of paths that ends with an empty one.
    std::string paths = path;
    paths += '\0';
    paths += '\0';
    SHFILEOPSTRUCTA operation{};
    operation.hwnd = application().window;
    operation.wFunc = FO_DELETE;
    operation.pFrom = paths.c_str();
    operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    return SHFileOperationA(&operation) == 0 && operation.fAnyOperationsAborted == FALSE;
}

NameCheck takeNewSquad(const NewFileChoice& choice) {
    Application& app = application();
    if (auto refusal = refusalOfName(choice.name)) {
        return refusal;
    }
    if (auto refusal = refusalOfNationality(choice.name, choice.nationality)) {
        return refusal;
    }
    if (systemFiles().exists(pathOf(choice.name))) {
        return "Squad name already exists";
    }
    SquadRecord record = newUnit(app.category, choice.name, choice.nationality);
    if (saveUnit(systemFiles(), app.backups, baseFolder(), app.category, record) != SaveResult::Saved) {
        return "";
    }
    return std::nullopt;
}

NameCheck takeNewWeapon(const NewFileChoice& choice) {
    Application& app = application();
    if (auto refusal = refusalOfName(choice.name)) {
        return refusal;
    }
    if (systemFiles().exists(pathOf(choice.name))) {
        return "Weapon name already exists";
    }
    const WeaponRecord weapon = newWeapon(choice.name);
    if (saveWeapon(systemFiles(), app.backups, baseFolder(), choice.name, weapon) != SaveResult::Saved) {
        return "";
    }
    return std::nullopt;
}

NameCheck takeDuplicate(const NewFileChoice& choice) {
    if (auto refusal = refusalOfOtherName(choice.name)) {
        return refusal;
    }
    if (systemFiles().exists(pathOf(choice.name))) {
        return "File already exists";
    }
    return saveUnder(choice.name) ? NameCheck() : NameCheck("");
}

NameCheck takeRename(const NewFileChoice& choice) {
    const std::string former = openFileName();
    if (auto refusal = refusalOfOtherName(choice.name)) {
        return refusal;
    }
    // Another case of the same letters is the same file to the system, and a fair new name.
    const bool isOnlyCase = lstrcmpiA(former.c_str(), choice.name.c_str()) == 0 && former != choice.name;
    if (!isOnlyCase && systemFiles().exists(pathOf(choice.name))) {
        return "That file already exists";
    }
    if (MoveFileA(pathOf(former).c_str(), pathOf(choice.name).c_str()) == 0) {
        showMessage({.text = pathOf(former) + "\n\n" + systemFiles().lastError(),
                     .caption = "Couldn't rename file",
                     .icon = MessageIcon::Warning});
        return "";
    }
    return std::nullopt;
}

} // namespace

void newFile() {
    Application& app = application();
    if (!mayLeavePositions()) {
        return;
    }
    const bool isWeapon = app.category == Category::Weapons;
    NameDialog dialog{.owner = app.window,
                      .kind = isWeapon ? NameDialogKind::NewWeapon : NameDialogKind::NewSquad,
                      .take = isWeapon ? takeNewWeapon : takeNewSquad};
    if (!askForName(dialog)) {
        return;
    }
    refillAndSelect(dialog.choice.name);
    openFile(dialog.choice.name);
}

void duplicateFile() {
    Application& app = application();
    if (!isRecordOpen() || !mayLeavePositions()) {
        return;
    }
    NameDialog dialog{.owner = app.window, .kind = NameDialogKind::Duplicate, .take = takeDuplicate};
    dialog.choice.name = openFileName() + " (copy)";
    if (askForName(dialog)) {
        refillAndSelect(dialog.choice.name);
        openFile(dialog.choice.name);
    }
}

void renameFile() {
    Application& app = application();
    if (!isRecordOpen() || !mayLeavePositions()) {
        return;
    }
    NameDialog dialog{.owner = app.window, .kind = NameDialogKind::Rename, .take = takeRename};
    dialog.choice.name = openFileName();
    if (!askForName(dialog)) {
        return;
    }
    if (app.openWeapon) {
        app.openWeapon->fileName = dialog.choice.name;
    } else if (app.openUnit) {
        app.openUnit->fileName = dialog.choice.name;
        app.savedUnit->fileName = dialog.choice.name;
        app.history.rename(dialog.choice.name);
    }
    refillAndSelect(dialog.choice.name);
    displayChanged();
    redrawNow();
}

void deleteFile() {
    Application& app = application();
    const std::string name = selectedEntry();
    if (name.empty() || !isRecordOpen() || !mayLeavePositions()) {
        return;
    }
    const Answer answer = showMessage({.text = app.category == Category::Weapons
                                                   ? "Are you sure you want to delete this weapon?"
                                                   : "Are you sure you want to delete this squad?",
                                       .caption = "Delete",
                                       .buttons = MessageButtons::YesNo,
                                       .icon = MessageIcon::Question});
    if (answer != Answer::Yes) {
        return;
    }
    const std::string path = pathOf(name);
    if (app.backups.keep(systemFiles(), baseFolder(), path) || !recycle(path)) {
        showMessage({.text = path, .caption = "Couldn't delete file", .icon = MessageIcon::Warning});
        return;
    }
    const std::vector<std::string> entries = listedEntries();
    const auto place = std::find(entries.begin(), entries.end(), name);
    std::string neighbour;
    if (place != entries.end() && place + 1 != entries.end()) {
        neighbour = *(place + 1);
    } else if (place != entries.end() && place != entries.begin()) {
        neighbour = *(place - 1);
    }
    closeRecord();
    refillAndSelect(neighbour);
    if (!neighbour.empty()) {
        openFile(neighbour);
    } else {
        showOpenRecord();
    }
}

void chooseCategory(Category category) {
    Application& app = application();
    if (category == app.category) {
        SendMessageA(app.window, RefreshListMessage, 0, 0);
        return;
    }
    if (!mayLeavePositions()) {
        return;
    }
    app.category = category;
    closeRecord();
    SendMessageA(app.window, RefreshListMessage, 0, 0);
    const std::string& remembered = app.rememberedSelections[static_cast<std::size_t>(category)];
    if (selectEntry(remembered)) {
        openFile(remembered);
    } else {
        showOpenRecord();
    }
}

void showFile(Category category, const std::string& name) {
    Application& app = application();
    if (category != app.category) {
        chooseCategory(category);
    }
    if (category == app.category) {
        selectUnfiltered(name);
        openSelectedEntry();
    }
}

void openSelectedEntry() {
    Application& app = application();
    const std::string name = selectedEntry();
    if (name.empty()) {
        return;
    }
    if (isRecordOpen() && name == openFileName()) {
        reopenIfChanged();
        return;
    }
    if (!mayLeavePositions()) {
        selectEntry(openFileName());
        return;
    }
    app.rememberedSelections[static_cast<std::size_t>(app.category)] = name;
    openFile(name);
}

} // namespace varrocade
