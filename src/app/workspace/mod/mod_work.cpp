#include "app/workspace/mod/mod_work.h"

#include "app/workspace/mod/mod_memory.h"
#include "app/workspace/mod_mode.h"
#include "app/workspace/positions.h"
#include "app/workspace/record_files.h"
#include "data/format/texts.h"
#include "mod/changes/revert.h"
#include "tools/references.h"

#include <algorithm>
#include <set>
#include <utility>

namespace varrocade {

namespace {

/// Copies files of the game, each once, and what they need behind them.
class IntoMod {
public:
    explicit IntoMod(Workspace& workspace) : workspace_(workspace) {}

    void copy(Category category, const std::string& name, CopyNeeds needs) {
        const std::string below = dataFilePath({}, category, name);
        std::string content;
        if (!copyBelow(below, content) || needs == CopyNeeds::No) {
            return;
        }
        const Record record = readRecord(category, content, name);
        const auto visit = [&](const Reference& reference) { copyReference(reference); };
        if (const auto* weapon = std::get_if<WeaponRecord>(&record)) {
            forEachReference(*weapon, visit);
        } else if (const auto* unit = std::get_if<SquadRecord>(&record)) {
            forEachReference(*unit, visit);
        }
    }

    [[nodiscard]] ModWork take() { return std::move(work_); }

private:
    /// `content` becomes the game's. False where there is nothing to copy from, or the path was copied.
    bool copyBelow(const std::string& below, std::string& content) {
        if (!copied_.insert(loweredText(below)).second) {
            return false;
        }
        FileOperations& files = *workspace_.files;
        const std::string from = workspace_.programFolder + below;
        const std::string to = workspace_.modFolder + below;
        if (!files.read(from, content)) {
            work_.failures.push_back({from, files.lastError()});
            return false;
        }
        if (files.exists(to)) {
            work_.left.push_back(below);
        } else if (auto failure =
                       replaceDataFile(files, workspace_.backups, workspace_.modFolder, to, content)) {
            work_.failures.push_back(std::move(*failure));
        } else {
            work_.done.push_back(below);
        }
        return true;
    }

    /// What the game does not have is not needed of it.
    void copyReference(const Reference& reference) {
        const std::string file = std::string(reference.name) + std::string(reference.ending);
        for (const ImageSource& source : reference.folders) {
            const std::string below = std::string(source.folder) + file;
            if (!workspace_.files->exists(workspace_.programFolder + below)) {
                continue;
            }
            if (reference.kind == ReferenceKind::Weapon) {
                copy(Category::Weapons, std::string(reference.name), CopyNeeds::Yes);
            } else {
                std::string content;
                copyBelow(below, content);
            }
            if (reference.kind != ReferenceKind::Flag) {
                return;
            }
        }
    }

    Workspace& workspace_;
    ModWork work_;
    std::set<std::string> copied_;
};

void dropFolder(std::vector<std::string>& folders, const std::string& folder) {
    std::erase_if(folders, [&](const std::string& other) { return equalsIgnoringCase(other, folder); });
}

/// The files of the mod are others than before.
void afterModWork(Workspace& workspace) {
    loadCatalogue(workspace);
    workspace.listener->listOutdated(workspace);
}

} // namespace

void showGameUnits(Workspace& workspace, bool isShown) {
    if (std::exchange(workspace.showsGameUnits, isShown) != isShown) {
        keepModMemory(workspace);
        workspace.listener->listOutdated(workspace);
    }
}

std::vector<std::string> namesToCopy(const Workspace& workspace, Category category) {
    return namesOfGameAlone(workspace, category);
}

std::vector<std::string> namesToRemove(const Workspace& workspace, Category category) {
    return namesOfFiles(categoryFolder(workspace.modFolder, category));
}

ModWork copyIntoMod(Workspace& workspace, Category category, std::span<const std::string> names,
                    CopyNeeds needs) {
    if (!workspace.modMode) {
        return {};
    }
    IntoMod copies(workspace);
    for (const std::string& name : names) {
        copies.copy(category, name, needs);
    }
    OpenRecord& open = workspace.open;
    const std::string openName = openFileName(workspace);
    if (open.category == category && open.base == workspace.programFolder &&
        std::find(names.begin(), names.end(), openName) != names.end()) {
        // It is the mod's from now on, with what is unsaved of it.
        open.base = workspace.modFolder;
    }
    afterModWork(workspace);
    return copies.take();
}

ModWork removeFromMod(Workspace& workspace, Category category, std::span<const std::string> names) {
    ModWork work;
    if (!workspace.modMode) {
        return work;
    }
    const bool isOpenGone = workspace.open.category == category &&
                            workspace.open.base == workspace.modFolder &&
                            std::find(names.begin(), names.end(), openFileName(workspace)) != names.end();
    for (const std::string& name : names) {
        const std::string below = dataFilePath({}, category, name);
        if (!workspace.files->exists(workspace.modFolder + below)) {
            work.left.push_back(below);
        } else if (auto failure =
                       revertFile(*workspace.files, workspace.backups, workspace.modFolder, category, name)) {
            work.failures.push_back(std::move(*failure));
        } else {
            work.done.push_back(below);
        }
    }
    if (isOpenGone &&
        !workspace.files->exists(dataFilePath(workspace.modFolder, category, openFileName(workspace)))) {
        closeRecord(workspace);
        workspace.list.selected.clear();
        workspace.listener->recordOpened();
    }
    afterModWork(workspace);
    return work;
}

bool openOtherMod(Workspace& workspace, const std::string& folder) {
    if (!hasModFile(folder) || !mayLeavePositions(workspace)) {
        return false;
    }
    closeRecord(workspace);
    // The one that is left may be the usual mod, to which nothing else leads back from here.
    const std::string left = workspace.modMode ? workspace.modFolder : std::string();
    enterMod(workspace, folder);
    workspace.listener->recordOpened();
    workspace.rememberedSelections.fill({});
    for (const std::string& latest : {left, folder}) {
        dropFolder(workspace.otherMods, latest);
        workspace.otherMods.insert(workspace.otherMods.begin(), latest);
    }
    dropFolder(workspace.otherMods, {});
    workspace.otherMods.resize(std::min(workspace.otherMods.size(), MostOtherMods));
    keepModMemory(workspace);
    return true;
}

void forgetMod(Workspace& workspace, const std::string& folder) {
    dropFolder(workspace.otherMods, folder);
    keepModMemory(workspace);
}

} // namespace varrocade
