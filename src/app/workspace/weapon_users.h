#pragma once
// Which units carry a weapon.

#include "data/category.h"
#include "platform/file_operations.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The weapons that the units of some folders carry. They are looked for in small steps, between which the
/// window answers. Looking again reads the files that changed and no others.
class WeaponUsers {
public:
    /// Begins to look through base folders. What was found in the same ones before holds until the end of it.
    void start(std::vector<std::string> bases);

    /// Lists a folder, or reads a file; false when there is nothing left to do.
    bool step();

    /// The units that carry a weapon, sorted: "Vehicles: German Panzer VI Tiger Ausf E"; nothing before all
    /// have been looked at once. `names` are those that the weapon goes by, its own and that of its file. Of
    /// a unit that is in several base folders the first one counts.
    [[nodiscard]] std::optional<std::vector<std::string>>
    usersOf(std::span<const std::string_view> names) const;

    /// How many files have been read so far.
    [[nodiscard]] std::size_t filesRead() const { return filesRead_; }

private:
    struct Folder {
        std::string path;
        Category category;
    };
    struct Unit {
        StampedFile file;
        std::vector<std::string> weapons;
    };
    /// A unit's file and how it is called.
    struct Entry {
        std::string path;
        std::string shown;
        StampedFile file;
    };

    void listFolder(const Folder& folder);
    void read(const Entry& entry);

    std::vector<std::string> bases_;
    std::vector<Folder> foldersLeft_; ///< the next one last
    std::set<std::string> seen_;      ///< the names that are listed
    std::vector<Entry> listed_;
    std::size_t looked_ = 0; ///< how many of them have been looked at
    bool isLooking_ = false;
    std::optional<std::vector<Entry>> known_;
    std::map<std::string, Unit> units_; ///< by path
    std::size_t filesRead_ = 0;
};

} // namespace varrocade
