#pragma once
// Many files like those of the game, made from the sample's own.

#include "data/category.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varrocade::benchmarks {

struct CorpusFile {
    Category category;
    std::string content;
};

/// `count` units of all kinds, the sample's with other numbers; only such as an XML parser takes as well.
std::vector<CorpusFile> wellFormedUnits(std::size_t count);

/// `units` units and `weapons` weapons of all kinds, each grown to about `factor` times its size by more
/// weapons and ammunition.
std::vector<CorpusFile> gameFiles(std::size_t units, std::size_t weapons, std::size_t factor);

/// Files in a temporary game folder, gone with it.
class FilesOnDisk {
public:
    explicit FilesOnDisk(const std::vector<CorpusFile>& files);
    FilesOnDisk(const FilesOnDisk&) = delete;
    FilesOnDisk& operator=(const FilesOnDisk&) = delete;
    ~FilesOnDisk();

    struct File {
        Category category;
        std::string path;
    };
    [[nodiscard]] const std::vector<File>& files() const { return files_; }
    /// The game folder, with a backslash at its end.
    [[nodiscard]] std::string base() const { return folder_ + "\\"; }

private:
    std::string folder_;
    std::vector<File> files_;
};

} // namespace varrocade::benchmarks
