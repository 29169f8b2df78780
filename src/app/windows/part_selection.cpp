#include "app/windows/part_selection.h"

#include "app/commands/commands.h"
#include "app/commands/open_record.h"
#include "app/windows/application.h"
#include "app/windows/drawing_window.h"
#include "app/windows/file_list.h"
#include "app/windows/main_window.h"
#include "app/windows/sheet_window.h"
#include "editors/vehicle/part_editor_win32.h"
#include "resources/resource.h"
#include "view/drawing/part_positions.h"

namespace varrocade {

namespace {

std::string moveName(const UnitPart& part) {
    return part.kind == PartKind::Exhaust ? "Move exhaust pipe" : "Move weapon";
}

/// Whether the last step of the history is a move of the selected part.
bool isMoveLast() {
    const Application& app = application();
    const UnitDisplay& display = app.display;
    return display.movedPart == display.selected && display.selected &&
           app.history.undoName() == moveName(display.selected);
}

/// Owner of a menu for the length of a scope.
class PopupMenu {
public:
    PopupMenu() : menu_(CreatePopupMenu()) {}
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;
    ~PopupMenu() { DestroyMenu(menu_); }
    [[nodiscard]] HMENU get() const { return menu_; }

    void add(int command, const std::string& text, bool isEnabled) const {
        AppendMenuA(menu_, isEnabled ? MF_STRING : MF_STRING | MF_GRAYED, static_cast<UINT_PTR>(command),
                    text.c_str());
    }
    void addSeparator() const { AppendMenuA(menu_, MF_SEPARATOR, 0, nullptr); }

private:
    HMENU menu_;
};

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
    const Application& app = application();
    return app.openUnit && hasEditor(*app.openUnit, app.display.selected);
}

void editSelectedPart() {
    if (canEditSelectedPart()) {
        const UnitPart part = application().display.selected;
        withEditContext([part](EditContext& edit) {
            return editPart(application().window, edit, application().drawing, part);
        });
    }
}

void markMoved(const UnitPart& part) {
    Application& app = application();
    (part.kind == PartKind::Exhaust ? app.exhaustPosChanged : app.weaponPosChanged) = true;
}

bool nudgeSelectedPart(int right, int up) {
    Application& app = application();
    UnitDisplay& display = app.display;
    if (!app.openUnit || !isMovable(*app.openUnit, display.selected)) {
        return false;
    }
    const bool continues = isMoveLast();
    if (nudgePart(*app.openUnit, display.selected, right, up, display.turns)) {
        markMoved(display.selected);
        display.movedPart = display.selected;
        if (continues) {
            app.history.amend(*app.openUnit);
        }
        unitChanged(moveName(display.selected));
    }
    return true;
}

void partMoved(const SquadRecord& before) {
    Application& app = application();
    if (*app.openUnit == before) {
        return;
    }
    app.display.movedPart = app.display.selected;
    unitChanged(moveName(app.display.selected));
}

bool putPartBack() {
    UnitDisplay& display = application().display;
    if (!isMoveLast()) {
        return false;
    }
    undoChange();
    display.movedPart = {};
    return true;
}

void showPartMenu(POINT screenPixel) {
    const Application& app = application();
    if (!app.openUnit) {
        return;
    }
    const std::string name = partName(*app.openUnit, app.display.selected);
    const PopupMenu menu;
    menu.add(IDM_EDIT_PART, name.empty() ? "&Edit..." : "&Edit " + name + "...\tEnter",
             canEditSelectedPart());
    menu.add(IDM_PUT_BACK, "&Put the position back\tEsc", isMoveLast());
    menu.addSeparator();
    menu.add(IDM_WHOLE_UNIT, "&Whole unit in view\tCtrl+0", app.display.hasDrawing);
    menu.add(IDC_EDIT_DETAILS, "&Details...", canEditOpenRecord());
    const int command = TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, screenPixel.x,
                                       screenPixel.y, 0, app.window, nullptr);
    if (command != 0) {
        runCommand(command);
    }
}

} // namespace varrocade
