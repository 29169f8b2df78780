#pragma once
// Which units carry a weapon.

#include "data/game_files.h"

#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

/// The weapons that the units of a game carry. They are looked for in small steps, between which the window
/// answers. Looking again reads the files that changed and no others.
class WeaponUsers {
public:
    /// Begins to look through the folders. What was found in the same ones before holds until the end of it.
    void start(GameFolders folders);

    /// Lists a folder, or reads a file; false when there is nothing left to do.
    bool step();

    /// The units that carry a weapon, sorted: "Vehicles: German Panzer VI Tiger Ausf E"; nothing before all
    /// have been looked at once. `names` are those that the weapon goes by, its own and that of its file.
    [[nodiscard]] std::optional<std::vector<std::string>>
    usersOf(std::span<const std::string_view> names) const;

    /// How many files have been read so far.
    [[nodiscard]] std::size_t filesRead() const { return filesRead_; }

private:
    struct Unit {
        GameFile file; ///< as it was when it was read
        std::vector<std::string> weapons;
    };

    void listCategory(Category category);
    void finish();

    GameFolders folders_;
    std::vector<Category> categoriesLeft_; ///< the next one last
    std::vector<GameFile> listed_;
    std::vector<GameFile> changed_; ///< those of them that have to be read
    GameFileWalk walk_;             ///< over the changed ones, once all categories are listed
    std::vector<Unit> read_;        ///< since the start
    bool isLooking_ = false;
    std::optional<std::vector<GameFile>> known_;
    std::map<std::string, Unit> units_; ///< by path
    std::size_t filesRead_ = 0;
};

} // namespace varrocade
