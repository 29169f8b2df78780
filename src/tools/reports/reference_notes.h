#pragma once
// Who names what, noted while files are read: by one thread, or by several that take notes of their own.

#include "data/game_files.h"
#include "tools/references.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace varrocade {

/// Something that is looked for in certain folders, and who names it. A file may be named in several ways.
struct NamedFile {
    ReferenceKind kind = ReferenceKind::Picture;
    std::string name;
    std::span<const ImageSource> folders;
    std::string_view ending;
    std::vector<std::size_t> users; ///< their numbers, ascending
};

/// The name that a weapon's file has in it.
struct NamedWeapon {
    std::string name;
    std::string fileName;
    std::size_t user; ///< the number of the weapon itself
};

/// Thousands of units name the same few hundred files: each of these is kept once, with its users. Users come
/// in the order of their numbers.
class ReferenceNotes {
public:
    ReferenceNotes() = default;
    ReferenceNotes(const ReferenceNotes&) = delete;
    ReferenceNotes& operator=(const ReferenceNotes&) = delete;
    ~ReferenceNotes() = default;

    void note(const Reference& reference, std::size_t user);
    /// Notes what a unit or weapon names.
    void read(const GameFile& file, std::string_view content, std::size_t user);

    /// In the order in which they were named first.
    [[nodiscard]] std::deque<NamedFile>& files() { return files_; }
    [[nodiscard]] const std::vector<NamedWeapon>& weapons() const { return weapons_; }

private:
    std::deque<NamedFile> files_;
    std::vector<NamedWeapon> weapons_;
    /// Those of `files_` by the folders that they are looked for in, and by their names.
    std::map<const ImageSource*, std::unordered_map<std::string_view, NamedFile*>> byName_;
};

} // namespace varrocade
