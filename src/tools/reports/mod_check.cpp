#include "tools/reports/mod_check.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

bool isWithin(std::string_view folder, std::string_view path) {
    return !folder.empty() && path.starts_with(folder) && path.size() > folder.size() &&
           path.find("..") == std::string_view::npos;
}

/// Whether a folder on the way from the mod's folder to a file stands for another one, which may be the
/// game's.
bool goesThroughLink(std::string_view folder, const std::string& path) {
    for (std::size_t end = path.find('\\', folder.size()); end != std::string::npos;
         end = path.find('\\', end + 1)) {
        if (statusOf(path.substr(0, end)).kind != PathKind::Folder) {
            return true;
        }
    }
    return false;
}

/// Why a file must stay where it is; empty where it may go.
std::string reasonToKeep(const std::string& modFolder, const std::string& path) {
    return !isWithin(modFolder, path)              ? "it is not in the mod's folder"
           : goesThroughLink(modFolder, path)      ? "a folder of its path is a link to another place"
           : statusOf(path).kind != PathKind::File ? "it is no plain file"
                                                   : "";
}

} // namespace

ReferenceUser userOfFile(Category category, const AssetFile& file) {
    GameFile data{.category = category, .isOfMod = file.isOfMod, .name = file.name, .path = file.path()};
    data.name.resize(data.name.size() - DataFileEnding.size());
    std::string name = std::string(categoryName(category)) + ": " + data.name;
    return {std::move(name), std::move(data)};
}

std::string modCheckSummary(std::size_t found, std::size_t moved) {
    std::string text;
    if (moved > 0) {
        text = moved == 1 ? "One file was moved to the recycle bin. "
                          : std::to_string(moved) + " files were moved to the recycle bin. ";
    }
    const std::string_view left = moved > 0 ? " is left:" : ":";
    return text + (found > 1    ? std::to_string(found) + " files" + (moved > 0 ? " are left:" : ":")
                   : found == 1 ? "One file" + std::string(left)
                   : moved > 0  ? "None is left."
                                : "Nothing was found.");
}

std::string recycleQuestion(const std::vector<ModCheckRow>& rows) {
    constexpr std::size_t most = 15;
    std::string text = rows.size() == 1 ? "This file would be moved to the recycle bin:\n"
                                        : "These " + std::to_string(rows.size()) +
                                              " files would be moved to the recycle bin:\n";
    for (std::size_t i = 0; i < std::min(most, rows.size()); ++i) {
        text += "\n    " + rows[i].below;
    }
    if (rows.size() > most) {
        text += "\n    and " + std::to_string(rows.size() - most) + " more";
    }
    return text + (rows.size() == 1 ? "\n\nMove it?" : "\n\nMove them?");
}

bool RecycleJob::step() {
    if (done_ < paths_.size()) {
        const std::string& path = paths_[done_++];
        std::string reason = reasonToKeep(modFolder_, path);
        if (reason.empty() && !files_.recycle(path)) {
            reason = files_.lastError();
        }
        if (reason.empty()) {
            moved_.insert(path);
        } else {
            failures_.push_back({path, std::move(reason)});
        }
    }
    return done_ < paths_.size();
}

JobProgress RecycleJob::progress() const {
    return {done_, paths_.size(),
            done_ < paths_.size() ? paths_[done_].substr(std::min(modFolder_.size(), paths_[done_].size()))
                                  : ""};
}

} // namespace varrocade
