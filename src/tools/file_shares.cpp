#include "tools/file_shares.h"

#include <algorithm>

namespace varrocade {

std::vector<FileShare> shareFiles(const std::vector<GameFile>& files, std::size_t parts) {
    std::vector<FileShare> shares;
    for (auto begin = files.begin(); begin != files.end();) {
        const Category category = begin->category;
        const auto end = std::find_if(begin, files.end(),
                                      [category](const GameFile& file) { return file.category != category; });
        const auto count = static_cast<std::size_t>(end - begin);
        const auto at = [&](std::size_t part) {
            return begin + static_cast<std::ptrdiff_t>(count * part / parts);
        };
        for (std::size_t part = 0; part < parts; ++part) {
            shares.push_back({category, static_cast<std::size_t>(at(part) - files.begin()),
                              GameFileWalk(std::vector<GameFile>(at(part), at(part + 1)))});
        }
        begin = end;
    }
    return shares;
}

void appendFailures(std::vector<FileFailure>& failures, const std::vector<FileShare>& shares) {
    for (const FileShare& share : shares) {
        failures.insert(failures.end(), share.walk.failures().begin(), share.walk.failures().end());
    }
}

} // namespace varrocade
