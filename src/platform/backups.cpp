#include "platform/backups.h"

#include "platform/safe_save.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

namespace varrocade {

namespace {

/// The largest number that a backup can have behind its time.
constexpr int MostNumber = 9999;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The parts of a backup's path around its time stamp.
struct BackupName {
    std::string folder; ///< with its backslash
    std::string stem;   ///< with the blank before the stamp
    std::string ending;
};

BackupName backupNameOf(const std::string& base, std::string_view path) {
    const std::string_view below = path.starts_with(base) ? path.substr(base.size()) : path;
    const std::size_t name = below.rfind('\\') + 1;
    const std::size_t dot = below.find('.', name);
    return {base + std::string(BackupFolder) + std::string(below.substr(0, name)),
            std::string(below.substr(name, dot - name)) + " ",
            std::string(dot == std::string_view::npos ? std::string_view() : below.substr(dot))};
}

/// A backup in the order of their making: the time, and a number where a second saw several.
struct DatedName {
    std::string stamp;
    int number = 1;
    std::string name;
    bool operator<(const DatedName& other) const {
        return std::tie(stamp, number, name) < std::tie(other.stamp, other.number, other.name);
    }
};

/// Takes "<stem>2026-11-21 090533 2<ending>" apart; nothing for other files.
std::optional<DatedName> datedName(const BackupName& wanted, const std::string& name) {
    constexpr std::string_view pattern = "dddd-dd-dd dddddd";
    std::string_view rest = name;
    if (!rest.starts_with(wanted.stem) || !rest.ends_with(wanted.ending) ||
        rest.size() < wanted.stem.size() + pattern.size() + wanted.ending.size()) {
        return std::nullopt;
    }
    rest.remove_prefix(wanted.stem.size());
    rest.remove_suffix(wanted.ending.size());
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == 'd' ? !isDigit(rest[i]) : rest[i] != pattern[i]) {
            return std::nullopt;
        }
    }
    DatedName dated{.stamp = std::string(rest.substr(0, pattern.size())), .name = name};
    rest.remove_prefix(pattern.size());
    if (rest.empty()) {
        return dated;
    }
    constexpr std::size_t longestNumber = 4;
    const std::string number(rest.substr(1));
    if (rest[0] != ' ' || number.empty() || number.size() > longestNumber ||
        !std::all_of(number.begin(), number.end(), isDigit)) {
        return std::nullopt;
    }
    dated.number = std::stoi(number);
    return dated;
}

/// The backups of one file, the oldest first.
std::vector<DatedName> backupsOf(const BackupName& wanted) {
    std::vector<std::string> names;
    listFiles(wanted.folder, wanted.ending, names);
    std::vector<DatedName> found;
    for (const std::string& name : names) {
        if (auto dated = datedName(wanted, name)) {
            found.push_back(std::move(*dated));
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

/// A name that comes after all of these.
DatedName nextName(const BackupName& wanted, const std::vector<DatedName>& former) {
    DatedName next{.stamp = timeStamp(), .name = {}};
    // A clock that was put back must not make the new copy look like an old one.
    if (!former.empty() && former.back().stamp >= next.stamp) {
        next.stamp = former.back().stamp;
        next.number = std::min(former.back().number + 1, MostNumber);
    }
    next.name =
        wanted.stem + next.stamp + (next.number > 1 ? " " + std::to_string(next.number) : "") + wanted.ending;
    return next;
}

/// Removes all but the oldest and the newest. One that cannot be removed stays without harm.
void thinOut(FileOperations& files, const BackupName& wanted, const std::vector<DatedName>& found) {
    for (std::size_t i = 1; i + BackupKeeper::MostNewest < found.size(); ++i) {
        files.remove(wanted.folder + found[i].name);
    }
}

} // namespace

std::optional<FileFailure> BackupKeeper::keep(FileOperations& files, const std::string& base,
                                              const std::string& path) {
    if (!files.exists(path)) {
        return std::nullopt;
    }
    std::string content;
    if (!files.read(path, content)) {
        return FileFailure{path, files.lastError()};
    }
    return keepContent(files, base, path, content);
}

std::optional<FileFailure> BackupKeeper::keepContent(FileOperations& files, const std::string& base,
                                                     const std::string& path, const std::string& content) {
    const auto last = newest_.find(path);
    if (last != newest_.end() && last->second.content == content && files.exists(last->second.path)) {
        return std::nullopt;
    }
    const BackupName wanted = backupNameOf(base, path);
    std::vector<DatedName> found = backupsOf(wanted);
    std::string newest;
    if (!found.empty() && files.read(wanted.folder + found.back().name, newest) && newest == content) {
        return std::nullopt;
    }
    if (auto failure = createFolders(files, wanted.folder)) {
        return failure;
    }
    found.push_back(nextName(wanted, found));
    const std::string backup = wanted.folder + found.back().name;
    if (auto failure = saveFile(files, backup, content)) {
        return failure;
    }
    newest_[path] = {backup, content};
    thinOut(files, wanted, found);
    return std::nullopt;
}

std::optional<FileFailure> replaceDataFile(FileOperations& files, BackupKeeper& backups,
                                           const std::string& base, const std::string& path,
                                           std::string_view content) {
    if (path.size() > MaxDataPathLength) {
        return FileFailure{path, "the path is longer than the game can open"};
    }
    if (auto failure = createFolders(files, path.substr(0, path.rfind('\\') + 1))) {
        return FileFailure{path, failure->reason};
    }
    if (auto failure = backups.keep(files, base, path)) {
        return FileFailure{path, "the former content could not be kept as " + failure->path + ": " +
                                     failure->reason};
    }
    return saveFile(files, path, content);
}

} // namespace varrocade
