#include "tools/renaming/rename_file.h"

#include "data/format/texts.h"

#include <algorithm>
#include <vector>

namespace varrocade {

namespace {

/// Whether a folder lists a file in just this letter case.
bool isListedSo(const std::string& path) {
    const std::size_t name = path.rfind('\\') + 1;
    std::vector<std::string> names;
    listFiles(path.substr(0, name), "", names);
    return std::find(names.begin(), names.end(), path.substr(name)) != names.end();
}

} // namespace

std::string renameFileOnDisk(FileOperations& files, const std::string& from, const std::string& to) {
    if (!equalsIgnoringCase(from, to)) {
        return files.rename(from, to) ? std::string() : files.lastError();
    }
    const std::string between = from + std::string(RenamingEnding);
    if (!files.rename(from, between)) {
        return files.lastError();
    }
    if (files.rename(between, to) && isListedSo(to)) {
        return {};
    }
    std::string reason = files.lastError();
    files.rename(files.exists(between) ? between : to, from);
    return reason.empty() ? "The system does not change the case of its letters." : reason;
}

} // namespace varrocade
