#include "data/game_files.h"

#include "data/format/texts.h"

#include <algorithm>

namespace varrocade {

namespace {

void addFile(std::vector<GameFile>& files, const std::string& folder, std::string diskName, GameFile file) {
    file.path = folder + diskName;
    diskName.resize(diskName.size() - DataFileEnding.size());
    file.name = std::move(diskName);
    files.push_back(std::move(file));
}

/// Appends the files of one folder; false when it cannot be listed.
bool addFolder(std::vector<GameFile>& files, const std::string& folder, const GameFile& model,
               FileStamps stamps) {
    if (stamps == FileStamps::With) {
        std::vector<StampedFile> stamped;
        const bool isListed = listStampedFiles(folder, DataFileEnding, stamped);
        files.reserve(files.size() + stamped.size());
        for (StampedFile& entry : stamped) {
            GameFile file = model;
            file.size = entry.size;
            file.changed = entry.changed;
            addFile(files, folder, std::move(entry.name), std::move(file));
        }
        return isListed;
    }
    std::vector<std::string> diskNames;
    const bool isListed = listRegularFiles(folder, DataFileEnding, diskNames);
    files.reserve(files.size() + diskNames.size());
    for (std::string& diskName : diskNames) {
        addFile(files, folder, std::move(diskName), model);
    }
    return isListed;
}

/// One a name before the other, the mod's before the game's. A folder of a system that minds letter case may
/// hold two files of one name, which stay in one order whatever the system lists first.
bool standsBefore(const GameFile& a, const GameFile& b) {
    if (const int order = compareIgnoringCase(a.name, b.name); order != 0) {
        return order < 0;
    }
    return a.isOfMod != b.isOfMod ? a.isOfMod : a.path < b.path;
}

} // namespace

GameFileList listGameFiles(const GameFolders& folders, Category category, FileStamps stamps) {
    GameFileList list;
    const auto add = [&](const std::string& base, bool isOfMod) {
        const std::string folder = categoryFolder(base, category);
        if (!addFolder(list.files, folder, {.category = category, .isOfMod = isOfMod}, stamps)) {
            std::string reason = systemFiles().lastError();
            if (!isOfMod || isFolder(folder)) {
                list.failures.push_back({folder, std::move(reason)});
            }
        }
    };
    if (!folders.mod.empty()) {
        add(folders.mod, true);
    }
    add(folders.program, false);
    std::sort(list.files.begin(), list.files.end(), standsBefore);
    std::size_t counting = 0;
    for (GameFile& file : list.files) {
        if (counting > 0 && equalsIgnoringCase(list.files[counting - 1].name, file.name)) {
            list.hidden.push_back(std::move(file));
        } else if (GameFile& place = list.files[counting++]; &place != &file) {
            place = std::move(file);
        }
    }
    list.files.resize(counting);
    return list;
}

bool GameFileWalk::read(const GameFile& file) {
    if (readWholeFile(file.path, content_)) {
        return true;
    }
    failures_.push_back({file.path, systemFiles().lastError()});
    return false;
}

WalkProgress GameFileWalk::progress() const {
    return {.done = done_,
            .total = files_.size(),
            .name = isOver() ? std::string_view() : std::string_view(files_[done_].name)};
}

} // namespace varrocade
