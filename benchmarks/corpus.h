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
    std::string name = {}; ///< of the file, without ".txt"; a number where it is empty
};

/// `count` units of all kinds, the sample's with other numbers; only such as an XML parser takes as well.
std::vector<CorpusFile> wellFormedUnits(std::size_t count);

/// `units` units and `weapons` weapons of all kinds, each grown to about `factor` times its size by more
/// weapons and ammunition.
std::vector<CorpusFile> gameFiles(std::size_t units, std::size_t weapons, std::size_t factor);

/// A picture that a unit of a corpus names, as a file below the game folder, and the sample's that it shows.
struct CorpusPicture {
    std::string file;
    std::string model;
};

/// The sample's files again and again, whole and sound, each unit with a name of its own. With `pictures`,
/// each names pictures of its own too, which are put there.
std::vector<CorpusFile> namedCopies(std::size_t units, std::size_t weapons,
                                    std::vector<CorpusPicture>* pictures = nullptr);

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

    /// Puts the sample's pictures and sounds beside the files, so that what they name is there.
    void addAssets() const;
    void addPictures(const std::vector<CorpusPicture>& pictures) const;

private:
    std::string folder_;
    std::vector<File> files_;
};

} // namespace varrocade::benchmarks
