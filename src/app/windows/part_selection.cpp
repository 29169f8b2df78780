#include "app/windows/part_selection.h"

#include "app/commands/edit_record.h"
#include "app/commands/edit_weapon.h"
#include "app/commands/names/rename_commands.h"
#include "app/commands/vehicle_performance_commands.h"
#include "app/windows/application.h"
#include "app/windows/display/redraw.h"
#include "app/windows/display/unit_display.h"
#include "app/windows/menus/popup_menu.h"
#include "app/workspace/edits.h"
#include "app/workspace/positions.h"
#include "editors/squad/squad_parts_win32.h"
#include "editors/vehicle/part_editor_win32.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

/// Whether the last step of the history is a move of the selected part.
bool isSelectedMoveLast() {
    const UnitDisplay& display = application().display;
    return display.movedPart == display.selected && isMoveLast(theWorkspace(), display.selected);
}

} // namespace

void selectPart(const UnitPart& part) {
    UnitDisplay& display = application().display;
    if (display.selected == part) {
        return;
    }
    display.selected = part;
    display.movedPart = {};
    showSelectedRow();
    redrawDrawing();
}

bool canEditSelectedPart() {
    if (isWeaponOpen()) {
        return true;
    }
    const SquadRecord* unit = openUnit(theWorkspace());
    const UnitPart& part = application().display.selected;
    return unit != nullptr &&
           (hasEditor(*unit, part) || (canEditOpenRecord() && hasSquadEditor(*unit, part)));
}

void editSelectedPart() {
    if (isWeaponOpen()) {
        editOpenWeapon();
    } else if (canEditSelectedPart()) {
        editPartAt({.part = application().display.selected});
    }
}

void editPartAt(const FieldTarget& target) {
    withEditContext([&target](EditContext& edit) {
        edit.focus = target.focus;
        const UnitPart part = hasPart(edit.record, target.part) ? target.part : UnitPart{PartKind::Details};
        return edit.record.vehicle ? editPart(application().window, edit, application().drawing, part)
                                   : editSquadPart(application().window, edit, part);
    });
}

bool nudgeSelectedPart(int right, int up) {
    UnitDisplay& display = application().display;
    Workspace& workspace = theWorkspace();
    const SquadRecord* unit = openUnit(workspace);
    if (unit == nullptr || !isMovable(*unit, display.selected)) {
        return false;
    }
    if (nudgeOpenPart(workspace, display.selected, right, up, display.turns, isSelectedMoveLast())) {
        display.movedPart = display.selected;
    }
    return true;
}

void finishPartMove(const RecordState& before) {
    UnitDisplay& display = application().display;
    if (finishMove(theWorkspace(), display.selected, before)) {
        display.movedPart = display.selected;
    }
}

bool putPartBack() {
    if (!isSelectedMoveLast()) {
        return false;
    }
    undoChange(theWorkspace());
    application().display.movedPart = {};
    return true;
}

void showPartMenu(POINT screenPixel) {
    const Application& app = application();
    const SquadRecord* unit = openUnit(app.workspace);
    if (!isRecordOpen(app.workspace)) {
        return;
    }
    const std::string name = unit != nullptr ? partName(*unit, app.display.selected) : std::string();
    const PopupMenu menu;
    menu.add(IDM_EDIT_PART, name.empty() ? "&Edit..." : "&Edit " + name + "...\tEnter",
             canEditSelectedPart());
    menu.add(IDM_PUT_BACK, "&Put the position back\tEsc", isSelectedMoveLast());
    menu.addSeparator();
    menu.add(IDM_WHOLE_UNIT, "&Whole unit in view\tCtrl+0", app.display.hasDrawing);
    menu.add(IDC_EDIT_DETAILS, "&Details...", canEditOpenRecord());
    menu.add(IDM_PERFORMANCE, "Weight and &top speed...", canShowPerformance());
    menu.addSeparator();
    const UsedName used = chosenName();
    menu.add(IDM_WHERE_USED, "Where " + menuText(used.name) + " is &used...\tCtrl+U", true);
    menu.add(IDM_RENAME_EVERYWHERE, "&Rename " + menuText(used.name) + " everywhere...\tShift+F2",
             canRenameChosen());
    menu.run(app.window, screenPixel);
}

} // namespace varrocade
