#include "app/workspace/workspace.h"

#include "data/format/texts.h"

#include <algorithm>
#include <set>

namespace varrocade {

void WorkspaceListener::listOutdated(Workspace& workspace) {
    refillNames(workspace);
}

WorkspaceListener& deafListener() {
    static WorkspaceListener listener;
    return listener;
}

const std::string& baseFolder(const Workspace& workspace) {
    return workspace.modMode ? workspace.modFolder : workspace.programFolder;
}

const std::string& baseOfEntry(const Workspace& workspace, const std::string& name) {
    return isOfGame(workspace.list, name) ? workspace.programFolder : baseFolder(workspace);
}

GameFolders gameFolders(const Workspace& workspace) {
    return {.program = workspace.programFolder,
            .mod = workspace.modMode ? workspace.modFolder : std::string()};
}

std::vector<std::string> imageBases(const Workspace& workspace) {
    if (workspace.modMode) {
        return {workspace.modFolder, workspace.programFolder};
    }
    return {workspace.programFolder};
}

std::string pathOf(const Workspace& workspace, const std::string& name) {
    return dataFilePath(baseFolder(workspace), workspace.category, name);
}

std::string& rememberedSelection(Workspace& workspace) {
    return workspace.rememberedSelections[static_cast<std::size_t>(workspace.category)];
}

void loadCatalogue(Workspace& workspace) {
    workspace.catalogue.load(workspace.programFolder, workspace.modMode ? workspace.modFolder : "");
}

std::vector<std::string> namesOfFiles(const std::string& folder) {
    std::vector<std::string> names;
    listRegularFiles(folder, DataFileEnding, names);
    for (std::string& name : names) {
        name.resize(name.size() - DataFileEnding.size());
    }
    return names;
}

std::vector<std::string> namesOfGameAlone(const Workspace& workspace, Category category) {
    std::set<std::string> ofMod;
    for (const std::string& name : namesOfFiles(categoryFolder(workspace.modFolder, category))) {
        ofMod.insert(loweredText(name));
    }
    std::vector<std::string> names = namesOfFiles(categoryFolder(workspace.programFolder, category));
    std::erase_if(names, [&](const std::string& name) { return ofMod.contains(loweredText(name)); });
    return names;
}

std::vector<std::string> namesToList(const Workspace& workspace, std::vector<std::string>& ofGame) {
    std::vector<std::string> names = namesOfFiles(categoryFolder(baseFolder(workspace), workspace.category));
    ofGame.clear();
    if (workspace.modMode && workspace.showsGameUnits) {
        ofGame = namesOfGameAlone(workspace, workspace.category);
        names.insert(names.end(), ofGame.begin(), ofGame.end());
        std::sort(ofGame.begin(), ofGame.end());
    }
    return names;
}

void refillNames(Workspace& workspace) {
    NameList& list = workspace.list;
    list.all = namesToList(workspace, list.ofGame);
    filterNames(list, listedOpenName(workspace));
    workspace.listener->namesChanged();
}

bool isRecordOpen(const Workspace& workspace) {
    return workspace.open.isOpen();
}

SquadRecord* openUnit(Workspace& workspace) {
    return std::get_if<SquadRecord>(&workspace.open.present.record);
}

const SquadRecord* openUnit(const Workspace& workspace) {
    return std::get_if<SquadRecord>(&workspace.open.present.record);
}

const WeaponRecord* openWeapon(const Workspace& workspace) {
    return std::get_if<WeaponRecord>(&workspace.open.present.record);
}

std::string openFileName(const Workspace& workspace) {
    return fileNameOf(workspace.open.present.record);
}

Visit openVisit(const Workspace& workspace) {
    return {workspace.open.base, workspace.open.category, openFileName(workspace)};
}

void noteVisit(Workspace& workspace) {
    if (isRecordOpen(workspace)) {
        workspace.visits.note(openVisit(workspace));
    }
}

std::string listedOpenName(const Workspace& workspace) {
    const OpenRecord& open = workspace.open;
    std::string name = openFileName(workspace);
    const bool isListed = open.category == workspace.category && open.base == baseOfEntry(workspace, name);
    return isListed ? name : std::string();
}

} // namespace varrocade
