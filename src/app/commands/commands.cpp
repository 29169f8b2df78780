#include "app/commands/commands.h"

#include "app/commands/changed_files.h"
#include "app/commands/edit_record.h"
#include "app/commands/edit_weapon.h"
#include "app/commands/file_commands.h"
#include "app/commands/game_folder.h"
#include "app/commands/mod/edit_mod.h"
#include "app/commands/mod/mod_commands.h"
#include "app/commands/names/rename_commands.h"
#include "app/commands/names/where_used_window.h"
#include "app/commands/reports/picture_commands.h"
#include "app/commands/reports/report_commands.h"
#include "app/commands/reports/sheet_commands.h"
#include "app/commands/vehicle_performance_commands.h"
#include "app/commands/weapon_problems.h"
#include "app/windows/application.h"
#include "app/windows/display/redraw.h"
#include "app/windows/drawing_window.h"
#include "app/windows/file_list.h"
#include "app/windows/part_selection.h"
#include "app/windows/problems/problems_window.h"
#include "app/workspace/category_list.h"
#include "app/workspace/edits.h"
#include "app/workspace/file_actions.h"
#include "app/workspace/file_steps.h"
#include "app/workspace/mod/mod_memory.h"
#include "app/workspace/mod/mod_work.h"
#include "app/workspace/mod_mode.h"
#include "app/workspace/names/list_notice.h"
#include "app/workspace/record/unsaved_records.h"
#include "app/workspace/record_files.h"
#include "app/workspace/visits/travel.h"
#include "editors/form/form_port_win32.h"
#include "editors/penetration/penetration_dialog.h"
#include "editors/penetration/penetration_form.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>
#include <string>

namespace varrocade {

namespace {

struct Command {
    int id;
    void (*run)();
    bool (*isEnabled)();
};

bool always() {
    return true;
}

bool inModMode() {
    return theWorkspace().modMode;
}

bool isVehicleOpen() {
    return theWorkspace().category == Category::Vehicles && openUnit(theWorkspace()) != nullptr;
}

bool canDuplicate() {
    return isRecordOpen(theWorkspace()) && !theWorkspace().list.all.empty();
}

/// The open record's file is the one that is selected in the list.
bool isSelectionOpen() {
    const std::string& selected = theWorkspace().list.selected;
    return !selected.empty() && selected == listedOpenName(theWorkspace()) &&
           !isOfGame(theWorkspace().list, selected);
}

bool canUndoStep() {
    return canUndoLast(theWorkspace());
}

bool canRedo() {
    return theWorkspace().open.history.canRedo();
}

bool hasWeaponProblems() {
    return !theWorkspace().catalogue.problems().empty();
}

bool canSave() {
    return theWorkspace().open.isUnsaved();
}

void saveOne() {
    saveOpenRecord(theWorkspace());
}

bool canSaveSome() {
    return canSaveAll(theWorkspace());
}

void saveEach() {
    saveAll(theWorkspace());
}

void discard() {
    discardChanges(theWorkspace());
}

bool hasChangedFiles() {
    return !unsavedRecords(theWorkspace()).empty();
}

void exitProgram() {
    SendMessageA(application().window, WM_CLOSE, 0, 0);
}

void toggleDestroyed() {
    Application& app = application();
    app.showDestroyed = !app.showDestroyed;
    CheckMenuItem(app.menu, IDM_SHOW_DESTROYED,
                  MF_BYCOMMAND | (app.showDestroyed ? MF_CHECKED : MF_UNCHECKED));
    displayChanged();
    redrawNow();
}

void toggleMarks() {
    Application& app = application();
    app.showMarks = !app.showMarks;
    displayChanged();
    redrawNow();
}

/// What is selected in drawing and sheet, or else all of it.
void editPartOrRecord() {
    if (canEditSelectedPart()) {
        editSelectedPart();
    } else {
        editOpenRecord();
    }
}

void putBack() {
    putPartBack();
}

bool hasDrawing() {
    return application().display.hasDrawing;
}

void findInList() {
    HWND filter = GetDlgItem(application().window, IDC_FILTER);
    SetFocus(filter);
    SendMessageA(filter, EM_SETSEL, 0, -1);
}

void refreshFiles() {
    application().pictures.clear();
    refreshAll(theWorkspace());
}

void mendEmptyList() {
    switch (listNotice(theWorkspace()).remedy) {
    case ListRemedy::None:
        break;
    case ListRemedy::ShowAll:
        leaveFilter();
        break;
    case ListRemedy::ChooseFolder:
        chooseProgramFolder();
        break;
    case ListRemedy::ShowGameUnits:
        showGameUnits(theWorkspace(), true);
        break;
    }
}

INT_PTR CALLBACK aboutProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM) {
    if (message == WM_COMMAND && (LOWORD(parameter) == IDOK || LOWORD(parameter) == IDCANCEL)) {
        EndDialog(dialog, 0);
        return TRUE;
    }
    return message == WM_INITDIALOG ? TRUE : FALSE;
}

/// The name of the weapon that is open, or else selected in the open unit, or empty.
std::string chosenWeapon() {
    if (const WeaponRecord* weapon = openWeapon(theWorkspace())) {
        return weapon->fileName;
    }
    const SquadRecord* unit = openUnit(theWorkspace());
    return unit != nullptr ? weaponOf(*unit, application().display.selected) : std::string();
}

PenetrationTools penetrationTools() {
    const Workspace& workspace = theWorkspace();
    return {.catalogue = workspace.catalogue,
            .drawing = application().drawing,
            .folders = gameFolders(workspace),
            .openUnit = isVehicleOpen() ? openUnit(workspace) : nullptr,
            .weapon = chosenWeapon()};
}

/// Figures that were tuned in another program count at once.
void penetrationCalculations() {
    loadCatalogue(theWorkspace());
    calculatePenetration(application().window, penetrationTools());
}

void canItPenetrate() {
    loadCatalogue(theWorkspace());
    const PenetrationTools tools = penetrationTools();
    askWhatPenetrates(application().window, tools,
                      {.weapon = firstPenetrationWeapon(tools.catalogue, tools.weapon)});
}

void showAbout() {
    runDialog(application().window, IDD_ABOUT, aboutProcedure, nullptr);
}

template <Category Chosen>
void choose() {
    chooseCategory(theWorkspace(), Chosen);
}

void undo() {
    const std::size_t fileSteps = theWorkspace().fileSteps.size();
    undoLast(theWorkspace());
    if (theWorkspace().fileSteps.size() != fileSteps) {
        // Pictures may have their former names again.
        application().pictures.clear();
        displayChanged();
        redrawNow();
    }
}

void redo() {
    redoChange(theWorkspace());
}

void back() {
    goBack(theWorkspace());
}

bool hasBack() {
    return canGoBack(theWorkspace());
}

void forward() {
    goForward(theWorkspace());
}

bool hasForward() {
    return canGoForward(theWorkspace());
}

void deleteSelectedFile() {
    if (mayTakeWeaponAway("Deleting")) {
        deleteFile(theWorkspace());
    }
}

void modMode() {
    if (switchModMode(theWorkspace())) {
        editModSettings();
    }
}

template <std::size_t Place>
void openRecent() {
    openRecentMod(Place);
}

template <std::size_t Place>
bool isRecentMod() {
    return Place < theWorkspace().otherMods.size();
}

template <std::size_t Place>
constexpr Command recentModRow() {
    static_assert(Place < MostOtherMods);
    return {IDM_MOD_RECENT + static_cast<int>(Place), openRecent<Place>, isRecentMod<Place>};
}

constexpr auto Commands = std::to_array<Command>({
    {IDC_VEHICLES, choose<Category::Vehicles>, always},
    {IDC_AT_GUNS, choose<Category::AtGuns>, always},
    {IDC_INFANTRY, choose<Category::Infantry>, always},
    {IDC_AIRCRAFT, choose<Category::Aircraft>, always},
    {IDC_WEAPONS, choose<Category::Weapons>, always},
    {IDC_NEW, newFile, always},
    {IDC_DUPLICATE, duplicateOpenFile, canDuplicate},
    {IDC_RENAME, renameOpenFile, isSelectionOpen},
    {IDC_DELETE, deleteSelectedFile, isSelectionOpen},
    {IDC_EDIT_DETAILS, editOpenRecord, canEditOpenRecord},
    {IDC_LIST_REMEDY, mendEmptyList, always},
    {IDM_EXIT, exitProgram, always},
    {IDM_MOD_MODE, modMode, always},
    {IDM_EDIT_MOD, editModSettings, inModMode},
    {IDM_MOD_GAME_UNITS, toggleGameUnits, inModMode},
    {IDC_MOD_GAME_UNITS, toggleGameUnits, inModMode},
    {IDM_MOD_COPY, copyFilesIntoMod, inModMode},
    {IDM_MOD_REMOVE, removeFilesFromMod, inModMode},
    {IDM_MOD_OPEN, browseForMod, always},
    {IDM_MOD_CHANGES, showModChanges, inModMode},
    recentModRow<0>(),
    recentModRow<1>(),
    recentModRow<2>(),
    recentModRow<3>(),
    recentModRow<4>(),
    recentModRow<5>(),
    recentModRow<6>(),
    recentModRow<7>(),
    recentModRow<8>(),
    {IDM_PENETRATION, penetrationCalculations, always},
    {IDM_CAN_PENETRATE, canItPenetrate, always},
    {IDM_WEAPON_PROBLEMS, showWeaponProblems, hasWeaponProblems},
    {IDM_WHERE_USED, showWhereUsed, canShowWhereUsed},
    {IDM_RENAME_EVERYWHERE, renameChosenEverywhere, canRenameChosen},
    {IDM_BACK, back, hasBack},
    {IDM_FORWARD, forward, hasForward},
    {IDM_PROBLEMS, openProblemsWindow, always},
    {IDM_NEXT_PROBLEM, goToNextProblem, always},
    {IDM_PREVIOUS_PROBLEM, goToPreviousProblem, always},
    {IDM_PERFORMANCE, showOpenPerformance, canShowPerformance},
    {IDM_COMPARE_VEHICLES, compareAllVehicles, always},
    {IDM_REDUCE_IMAGES, reduceOpenVehicle, isVehicleOpen},
    {IDM_REDUCE_ALL, reduceAllPictures, always},
    {IDM_GENERATE_THUMBNAILS, generateThumbnails, always},
    {IDM_PNG_USAGE, generatePngUsage, always},
    {IDM_SPREADSHEETS, generateSpreadsheets, always},
    {IDM_IMPORT_SHEET, importSpreadsheet, always},
    {IDM_CHECK_DUPLICATES, checkDuplicateFiles, inModMode},
    {IDM_CHECK_UNUSED, checkUnusedFiles, inModMode},
    {IDM_CHECK_VOICES, checkVoiceFiles, inModMode},
    {IDM_SHOW_DESTROYED, toggleDestroyed, always},
    {IDM_ABOUT, showAbout, always},
    {IDM_FIND, findInList, always},
    {IDM_REFRESH, refreshFiles, always},
    {IDM_RENAME, renameOpenFile, isSelectionOpen},
    {IDM_DELETE, deleteSelectedFile, isSelectionOpen},
    {IDM_SAVE, saveOne, canSave},
    {IDM_SAVE_ALL, saveEach, canSaveSome},
    {IDM_DISCARD, discard, canSave},
    {IDM_CHANGED_FILES, showChangedFiles, hasChangedFiles},
    {IDM_UNDO, undo, canUndoStep},
    {IDM_REDO, redo, canRedo},
    {IDM_EDIT_PART, editPartOrRecord, canEditOpenRecord},
    {IDM_PUT_BACK, putBack, always},
    {IDM_WHOLE_UNIT, resetView, hasDrawing},
    {IDM_SHOW_MARKS, toggleMarks, always},
    {IDM_GAME_FOLDER, browseForGameFolder, always},
});

const Command* commandOf(int id) {
    const auto found =
        std::find_if(Commands.begin(), Commands.end(), [id](const Command& row) { return row.id == id; });
    return found == Commands.end() ? nullptr : &*found;
}

} // namespace

bool runCommand(int id) {
    const Command* command = commandOf(id);
    if (command == nullptr || !command->isEnabled()) {
        return false;
    }
    command->run();
    return true;
}

bool isCommandEnabled(int id) {
    const Command* command = commandOf(id);
    return command != nullptr && command->isEnabled();
}

void updateMenu(HMENU menu) {
    const UndoHistory& history = theWorkspace().open.history;
    const std::string undo = "&Undo " + lastStepName(theWorkspace()) + "\tCtrl+Z";
    const std::string redo = "&Redo " + std::string(history.redoName()) + "\tCtrl+Y";
    ModifyMenuA(menu, IDM_UNDO, MF_BYCOMMAND | MF_STRING, IDM_UNDO, undo.c_str());
    ModifyMenuA(menu, IDM_REDO, MF_BYCOMMAND | MF_STRING, IDM_REDO, redo.c_str());
    CheckMenuRadioItem(menu, IDC_VEHICLES, IDC_WEAPONS,
                       static_cast<UINT>(IDC_VEHICLES + static_cast<int>(theWorkspace().category)),
                       MF_BYCOMMAND);
    CheckMenuItem(menu, IDM_MOD_GAME_UNITS,
                  MF_BYCOMMAND | (theWorkspace().showsGameUnits ? MF_CHECKED : MF_UNCHECKED));
    listRecentMods(menu);
    CheckMenuItem(menu, IDM_SHOW_MARKS, MF_BYCOMMAND | (application().showMarks ? MF_CHECKED : MF_UNCHECKED));
    for (const Command& command : Commands) {
        EnableMenuItem(menu, static_cast<UINT>(command.id),
                       MF_BYCOMMAND | (command.isEnabled() ? MF_ENABLED : MF_GRAYED));
    }
}

void updateButtons() {
    // Each question for a window goes to the system: so the few children are asked for their commands.
    const auto update = [](HWND child, LPARAM) -> BOOL {
        const int id = GetDlgCtrlID(child);
        if (const Command* command = commandOf(id)) {
            EnableWindow(child, command->isEnabled() ? TRUE : FALSE);
        }
        if (id >= IDC_VEHICLES && id <= IDC_WEAPONS) {
            const bool isChosen = id - IDC_VEHICLES == static_cast<int>(theWorkspace().category);
            SendMessageA(child, BM_SETCHECK, isChosen ? BST_CHECKED : BST_UNCHECKED, 0);
        }
        if (id == IDC_MOD_GAME_UNITS) {
            SendMessageA(child, BM_SETCHECK, theWorkspace().showsGameUnits ? BST_CHECKED : BST_UNCHECKED, 0);
            ShowWindow(child, theWorkspace().modMode ? SW_SHOWNA : SW_HIDE);
        }
        if (id == IDC_EDIT_DETAILS) {
            ShowWindow(child, canEditOpenRecord() ? SW_SHOWNA : SW_HIDE);
        }
        return TRUE;
    };
    EnumChildWindows(application().window, update, 0);
}

} // namespace varrocade
