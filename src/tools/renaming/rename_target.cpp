#include "tools/renaming/rename_target.h"

#include "data/format/file_name.h"
#include "data/format/fixed_string.h"
#include "data/format/texts.h"
#include "data/unit/image_folders.h"
#include "data/unit/image_names.h"
#include "platform/backups.h"
#include "tools/references.h"
#include "tools/voices.h"
#include "tools/where_used.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varrocade {

namespace {

constexpr std::array<std::string_view, 4> KindWords = {"weapon", "picture", "sound", "unit"};

bool isDataFile(RenameKind kind) {
    return kind == RenameKind::Weapon || kind == RenameKind::Unit;
}

std::string_view endingOf(RenameKind kind) {
    return isDataFile(kind) ? DataFileEnding : kind == RenameKind::Picture ? ImageEnding : SoundEnding;
}

/// The folders below the base where files of a kind may be. `within` is the folder before the name, or empty.
std::vector<std::string> foldersOf(RenameKind kind, const std::string& within) {
    std::vector<std::string> folders;
    switch (kind) {
    case RenameKind::Weapon:
        folders.push_back(categoryFolder({}, Category::Weapons));
        break;
    case RenameKind::Unit:
        for (const Category category : AllCategories) {
            if (category != Category::Weapons) {
                folders.push_back(categoryFolder({}, category));
            }
        }
        break;
    case RenameKind::Picture:
        folders.assign(pictureFolders().begin(), pictureFolders().end());
        break;
    case RenameKind::Sound: {
        // Files name sounds with the folders below that of the sounds.
        const bool isWhole = equalsIgnoringCase(within.substr(0, SoundFolder.size()), SoundFolder);
        folders.push_back(isWhole ? within : std::string(SoundFolder) + within);
        return folders;
    }
    }
    std::erase_if(folders, [&](const std::string& folder) {
        const std::string tail = "\\" + folder;
        return !within.empty() &&
               !equalsIgnoringCase(tail.substr(tail.size() - std::min(tail.size(), within.size() + 1)),
                                   "\\" + within);
    });
    return folders;
}

class Search {
public:
    Search(const RenameRequest& request, AssetFiles& assets) : request_(request), assets_(assets) {}

    RenameTargets run() {
        split();
        if (auto refusal = refusalOfName(found_.to, isDataFile(request_.kind) ? FullStops::Refused
                                                                              : FullStops::Allowed)) {
            refuse(*refusal);
        }
        find();
        for (const RenameTarget& target : found_.files) {
            check(target);
        }
        checkGame();
        return std::move(found_);
    }

private:
    void refuse(std::string reason) { found_.refusals.push_back(std::move(reason)); }

    void split() {
        std::string from = request_.from;
        std::replace(from.begin(), from.end(), '/', '\\');
        const std::size_t name = from.rfind('\\') + 1;
        within_ = from.substr(0, name);
        found_.isOneOfSeveral = !within_.empty();
        found_.ending = endingOf(request_.kind);
        found_.from = withoutEnding(from.substr(name));
        found_.to = withoutEnding(request_.to);
    }

    [[nodiscard]] std::string withoutEnding(std::string name) const {
        const std::string& ending = found_.ending;
        if (name.size() > ending.size() &&
            equalsIgnoringCase(std::string_view(name).substr(name.size() - ending.size()), ending)) {
            name.resize(name.size() - ending.size());
        }
        return name;
    }

    void find() {
        const bool isMod = !request_.folders.mod.empty();
        bool isOfGame = false;
        for (const std::string& folder : foldersOf(request_.kind, within_)) {
            const AssetFile* file = assets_.find(folder, found_.from, found_.ending);
            if (file == nullptr) {
                continue;
            }
            if (file->isOfMod != isMod) {
                isOfGame = true;
                continue;
            }
            const std::string& base = isMod ? request_.folders.mod : request_.folders.program;
            found_.files.push_back({.folder = std::string(file->folder),
                                    .path = file->path(),
                                    .newPath = base + std::string(file->folder) + found_.to + found_.ending});
            if (found_.files.size() == 1) {
                found_.from = withoutEnding(file->name);
            }
        }
        const std::string what = "the " + std::string(renameWord(request_.kind)) + " " + request_.from;
        if (found_.files.empty()) {
            refuse(isOfGame ? "The mod has no file of " + what +
                                  ": it is the game's own. Copy it into the mod first"
                            : "There is no file of " + what);
        } else if (request_.kind == RenameKind::Unit && found_.files.size() > 1) {
            refuse("There are several units of that name: say which by its folder, as in Vehicles\\" +
                   found_.from);
        } else if (found_.from == found_.to) {
            refuse("It has that name already");
        }
    }

    void check(const RenameTarget& target) {
        const AssetFile* inTheWay = assets_.find(target.folder, found_.to, found_.ending);
        if (inTheWay != nullptr && !equalsIgnoringCase(found_.from, found_.to)) {
            refuse("That file already exists: " + inTheWay->path());
        }
        if (target.newPath.size() > MaxDataPathLength) {
            refuse("The path of the file would have " + std::to_string(target.newPath.size()) +
                   " characters. The game opens paths of at most " + std::to_string(MaxDataPathLength) + ".");
        }
        if (equalsIgnoringCase(target.folder, VoiceFolder)) {
            refuse("The game finds voices by their names: " + target.path + " must keep its own");
        }
    }

    /// What the game looks for by itself is named in no file that could follow.
    void checkGame() {
        forEachGameReference([&](const Reference& reference) {
            const AssetFile* file = assets_.find(reference);
            const auto isMeant = [&](const RenameTarget& target) {
                return file != nullptr && target.path == file->path();
            };
            const auto target = std::find_if(found_.files.begin(), found_.files.end(), isMeant);
            const std::string reason =
                target == found_.files.end() || equalsIgnoringCase(found_.from, found_.to)
                    ? std::string()
                    : "The game looks for this picture by its name: " + target->path;
            if (!reason.empty() &&
                std::find(found_.refusals.begin(), found_.refusals.end(), reason) == found_.refusals.end()) {
                refuse(reason);
            }
        });
    }

    const RenameRequest& request_;
    AssetFiles& assets_;
    RenameTargets found_;
    std::string within_;
};

} // namespace

std::string_view renameWord(RenameKind kind) {
    return KindWords.at(static_cast<std::size_t>(kind));
}

std::optional<RenameKind> renameKindOf(std::string_view word) {
    const auto found = std::find(KindWords.begin(), KindWords.end(), word);
    return found == KindWords.end() ? std::nullopt
                                    : std::optional(static_cast<RenameKind>(found - KindWords.begin()));
}

RenameTargets findRenameTargets(const RenameRequest& request, AssetFiles& assets) {
    return Search(request, assets).run();
}

} // namespace varrocade
