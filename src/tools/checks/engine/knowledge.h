#pragma once
// What rules know about the game around a file: weapons, pictures, sounds, the mod's years, what is usual.

#include "analysis/performance/weapon_mass.h"
#include "analysis/performance/weight_calibration.h"
#include "data/game_files.h"
#include "mod/mod_record.h"
#include "platform/png_size.h"
#include "tools/checks/engine/usual_values.h"
#include "weapons/weapon_catalogue.h"

#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace varrocade {

/// The files of some folders, found by their names with and without regard to letter case.
class FileIndex {
public:
    /// Lists a folder of the game and of the mod, which counts first. False when there is neither.
    bool add(const GameFolders& folders, std::string_view folder, std::string_view ending);

    struct Entry {
        std::string name; ///< as the disk has it, without the ending
        std::string path;
    };
    /// The file of a name, letter case aside; null when there is none.
    [[nodiscard]] const Entry* find(std::string_view folder, std::string_view name) const;
    /// The names in a folder.
    [[nodiscard]] std::vector<std::string_view> namesIn(std::string_view folder) const;
    [[nodiscard]] bool knows(std::string_view folder) const { return folders_.contains(folder); }

private:
    using Folder = std::unordered_map<std::string, Entry>; ///< by the name in small letters
    std::map<std::string, Folder, std::less<>> folders_;
};

/// What units carry for a weapon, as a rule: a flavour that more than half of them have, and how many rounds.
struct UsualLoad {
    std::string flavour; ///< empty where files name none
    std::int32_t rounds = 0;
    bool operator==(const UsualLoad&) const = default;
};

/// A unit as far as others are compared with it.
struct KnownUnit {
    Category category;
    std::string file;
    std::string longName;
    std::string nationality;
};

/// Filled once; rules only read it, from any number of threads.
struct CheckKnowledge {
    GameFolders folders = {};
    const WeaponCatalogue* catalogue = nullptr; ///< of whoever keeps it
    WeaponCatalogue ownCatalogue = {};          ///< where nobody else keeps one
    /// By name in small letters: those of files, and behind them those that weapons give themselves.
    std::unordered_map<std::string, const WeaponRecord*> weapons = {};
    bool knowsWeapons = false; ///< without any, no weapon is missed
    FileIndex pictures = {};
    FileIndex sounds = {};
    /// Paths of pictures that somebody looked for in vain, where the folders are not listed.
    std::span<const std::string> missingPictures = {};
    /// Where the files of single values are looked for instead, one by one; empty: in the lists.
    std::span<const std::string> bases = {};
    std::optional<ModSettings> mod = {}; ///< of a mod in use that has settings
    UsualValues usual = {};
    std::optional<WeightCalibration> weights = {};
    std::optional<WeaponMasses> masses = {};
    std::unordered_map<std::string, std::vector<KnownUnit>> unitsByName = {}; ///< by long name, small letters

    /// By weapon, as units write its name.
    std::unordered_map<std::string, std::vector<UsualLoad>> usualLoads = {};

    [[nodiscard]] const WeaponRecord* findWeapon(std::string_view name) const;
    /// The size of a picture, read once; nothing when the file is no picture.
    [[nodiscard]] std::optional<PictureSize> sizeOf(const std::string& path) const;

private:
    mutable std::mutex sizesGuard_;
    mutable std::unordered_map<std::string, std::optional<PictureSize>> sizes_;
};

/// Loads weapons, lists pictures and sounds, reads the mod's settings.
void learnFolders(CheckKnowledge& knowledge, const GameFolders& folders);

/// Takes the weapons of a catalogue for those of the game; it must live as long as the knowledge.
void learnWeapons(CheckKnowledge& knowledge, const WeaponCatalogue& catalogue);

/// What is usual among the units of a game, and which names they have. `learnUnit` with each, then once
/// `finish`.
class UnitSurvey {
public:
    explicit UnitSurvey(const CheckKnowledge& knowledge) : knowledge_(knowledge) {}
    void add(Category category, std::string_view file, const SquadRecord& unit);
    /// Puts the findings of another survey behind those of this.
    void join(UnitSurvey other);
    void finish(CheckKnowledge& knowledge);

private:
    /// The loads for a weapon in all lists of ammunition.
    struct Loads {
        std::size_t carriers = 0;
        std::map<std::string, std::vector<std::int32_t>, std::less<>> rounds = {}; ///< by flavour
    };

    void addLoads(const SquadRecord& unit);

    const CheckKnowledge& knowledge_;
    ValueSamples samples_;
    std::vector<VehicleFigures> vehicles_;
    std::vector<KnownUnit> units_;
    std::map<std::string, Loads, std::less<>> loads_;
};

} // namespace varrocade
