#include "app/windows/window_listener.h"

#include "app/commands/commands.h"
#include "app/commands/vehicle_performance_commands.h"
#include "app/windows/application.h"
#include "app/windows/display/redraw.h"
#include "app/windows/display/unit_display.h"
#include "app/windows/drawing_window.h"
#include "app/windows/file_list.h"
#include "app/windows/main_window.h"
#include "app/windows/mod_band_win32.h"
#include "app/windows/problems/problem_search.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

class WindowListener : public WorkspaceListener {
public:
    void recordOpened() override {
        UnitDisplay& display = application().display;
        display.scroll = 0;
        display.ownFit.reset();
        display.turns.clear();
        display.selected = {};
        display.movedPart = {};
        display.drag.reset();
        displayChanged();
        updateButtons();
        showModBand();
        redrawNow();
        followPerformance();
        prefetchNeighbours();
        openProblemsOutdated();
    }

    void recordChanged() override {
        displayChanged();
        showModBand();
        redrawNow();
        redrawOpenEntry();
        followPerformance();
        openProblemsOutdated();
    }

    void recordSaved() override {
        showModBand();
        redrawOpenEntry();
        openProblemsOutdated();
    }

    void filesRewritten() override { searchProblemsAgain(); }

    void marksChanged() override { redrawEntries(); }

    void componentsRearranged(const FormerPlaces& places) override { carryComponents(places); }

    void listOutdated(Workspace&) override { SendMessageA(application().window, RefreshListMessage, 0, 0); }

    void namesChanged() override {
        showNames();
        updateButtons();
        showModBand();
        followFilesOfList();
    }

    void selectionChanged() override {
        showSelectedName();
        updateButtons();
    }

    void filterDropped() override { leaveFilter(); }

    void modeChanged() override {
        const Application& app = application();
        const Workspace& workspace = app.workspace;
        CheckMenuItem(app.menu, IDM_MOD_MODE, MF_BYCOMMAND | (workspace.modMode ? MF_CHECKED : MF_UNCHECKED));
        EnableMenuItem(app.menu, IDM_EDIT_MOD, MF_BYCOMMAND | (workspace.modMode ? MF_ENABLED : MF_GRAYED));
        const std::string title =
            "Varrocade Data Editor" + (workspace.modMode ? " - Mod Mode from: " + workspace.modFolder : "");
        SetWindowTextA(app.window, title.c_str());
        showModBand();
        SendMessageA(app.window, LayOutMessage, 0, 0);
    }
};

} // namespace

WorkspaceListener& windowListener() {
    static WindowListener listener;
    return listener;
}

} // namespace varrocade
