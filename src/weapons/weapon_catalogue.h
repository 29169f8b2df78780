#pragma once
// All weapons of the game and of the mod in use: what the drop-down lists of the editors offer, and where the
// figures behind a weapon's name are looked up.

#include "data/finding.h"
#include "data/format/tag_tree.h"
#include "data/game_files.h"
#include "weapons/weapon_record.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

struct CatalogueEntry {
    std::string path; ///< the file that the record was read from
    WeaponRecord weapon = {};
    bool holdsWeapon = true; ///< false: nothing in the file could be read, the record has only its name
};

/// A file of a catalogue as it was read.
struct CatalogueReading {
    CatalogueEntry entry;
    std::vector<Finding> problems = {}; ///< by its path
};

/// Reads the content of a weapon file, by way of `tree`, which holds it from then on.
CatalogueReading readForCatalogue(const GameFile& file, std::string_view content, TagTree& tree);
/// What stands for a file that cannot be read.
CatalogueReading unreadForCatalogue(const FileFailure& failure);

/// Which weapons a list offers. An empty member lets all of them through.
struct WeaponFilter {
    std::span<const WeaponType> types = {};
    /// As units name it, such as "NATIONALITY_NORTH_KOREAN", or as weapons do, "North Korean". A weapon is
    /// let through when its `countries`, separated by commas, name the nationality, or name none at all.
    std::string_view nationality = {};
    /// Such as "Cold War"; compared with the words of `period` in the same way.
    std::string_view period = {};
};

/// The weapon files of up to two folders. Where both hold a file of the same name (letter case ignored), the
/// mod's counts, unless it cannot be read. Entries and records stay where they are until the next call that
/// is not const.
class WeaponCatalogue {
public:
    /// Drops what was loaded and reads all weapon files below `programFolder` and, unless it is empty,
    /// `modFolder`; both end in a backslash. A mod without weapons of its own is no problem.
    void load(std::string_view programFolder, std::string_view modFolder = {});

    /// The same from files that others have read: one reading for each that counts, as `listGameFiles` tells,
    /// in its order. The hidden ones are read where they are needed.
    void take(GameFolders folders, std::vector<CatalogueReading> readings, std::vector<GameFile> hidden);

    /// Brings one weapon up to date after its file was saved, created or deleted in either folder. `fileName`
    /// is without folder and ".txt". When the mod's file is gone, the program's file of that name shows
    /// again.
    void refresh(std::string_view fileName);

    /// A weapon each file name, sorted by calibre, then barrel length, then name. After them the files that
    /// hold no weapon, by name.
    [[nodiscard]] const std::vector<CatalogueEntry>& entries() const { return entries_; }

    /// The weapons that a filter lets through, in the same order.
    [[nodiscard]] std::vector<const WeaponRecord*> select(const WeaponFilter& filter) const;

    /// The weapon whose file has this name, otherwise the first one that calls itself so; letter case does
    /// not count. Null when there is none.
    [[nodiscard]] const WeaponRecord* find(std::string_view name) const;

    /// The files that could not be read or hold no weapon, and those with data that a record cannot take,
    /// by their paths.
    [[nodiscard]] const std::vector<Finding>& problems() const { return problems_; }

    /// Those that concern one file.
    [[nodiscard]] std::vector<Finding> problemsOf(std::string_view path) const;

private:
    void addFiles(GameFileList list);
    CatalogueEntry* entryToReplace(const GameFile& file);
    void add(CatalogueReading reading);
    void addHidden(std::vector<GameFile> hidden);
    void sortEntries();

    GameFolders folders_;
    std::vector<CatalogueEntry> entries_;
    std::vector<Finding> problems_;
};

} // namespace varrocade
