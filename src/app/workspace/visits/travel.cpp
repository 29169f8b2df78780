#include "app/workspace/visits/travel.h"

#include "app/workspace/category_list.h"

namespace varrocade {

namespace {

/// Whether there is something to go to: another record than the open one, which the list of its category has.
auto canBeShown(const Workspace& workspace) {
    return [&workspace](const Visit& visit) {
        const bool isOfList = visit.base == baseFolder(workspace) ||
                              (workspace.showsGameUnits && visit.base == workspace.programFolder);
        return isOfList && visit != openVisit(workspace) &&
               workspace.files->exists(dataFilePath(visit.base, visit.category, visit.name));
    };
}

void show(Workspace& workspace, const Visit* visit) {
    if (visit == nullptr) {
        return;
    }
    const Visit wanted = *visit;
    const Visits former = workspace.visits;
    workspace.visits.goTo(*visit);
    const Visits arrived = workspace.visits;
    showFile(workspace, wanted.category, wanted.name);
    // Going there was no visit of its own, and staying none at all.
    const bool isThere = workspace.open.category == wanted.category && openFileName(workspace) == wanted.name;
    workspace.visits = isThere ? arrived : former;
}

} // namespace

void goBack(Workspace& workspace) {
    show(workspace, workspace.visits.before(canBeShown(workspace)));
}

void goForward(Workspace& workspace) {
    show(workspace, workspace.visits.behind(canBeShown(workspace)));
}

bool canGoBack(const Workspace& workspace) {
    return workspace.visits.before(canBeShown(workspace)) != nullptr;
}

bool canGoForward(const Workspace& workspace) {
    return workspace.visits.behind(canBeShown(workspace)) != nullptr;
}

} // namespace varrocade
