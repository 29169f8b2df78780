#pragma once
// What rules know about the game around a file: weapons, pictures, sounds, the mod's years, what is usual.

#include "analysis/performance/weapon_mass.h"
#include "analysis/performance/weight_calibration.h"
#include "data/format/caseless.h"
#include "data/game_files.h"
#include "mod/mod_record.h"
#include "platform/png_size.h"
#include "tools/asset_files.h"
#include "tools/checks/engine/usual_values.h"
#include "tools/pictures/silhouette.h"
#include "weapons/weapon_catalogue.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <shared_mutex>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace varrocade {

/// What units carry for a weapon, as a rule: a flavour that more than half of them have, and how many rounds.
struct UsualLoad {
    std::string flavour; ///< empty where files name none
    std::int32_t rounds = 0;
    bool operator==(const UsualLoad&) const = default;
};

/// A unit as far as others are compared with it.
struct KnownUnit {
    std::uint32_t number; ///< of the survey's caller
    Category category;
    std::string file;
    std::string longName;
    std::string nationality;
};

/// Filled once; rules only read it, from any number of threads.
struct CheckKnowledge {
    AssetFiles files = {};                      ///< pictures and sounds; without folders none is missed
    const WeaponCatalogue* catalogue = nullptr; ///< of whoever keeps it
    WeaponCatalogue ownCatalogue = {};          ///< where nobody else keeps one
    /// By the names of files, and behind them those that weapons give themselves.
    std::unordered_map<std::string_view, const WeaponRecord*, CaselessHash, CaselessEqual> weapons = {};
    bool knowsWeapons = false; ///< without any, no weapon is missed
    /// Paths of pictures that somebody looked for in vain, where the folders are not listed.
    std::span<const std::string> missingPictures = {};
    /// Where the files of single values are looked for instead, one by one; empty: in the lists.
    std::span<const std::string> bases = {};
    std::optional<ModSettings> mod = {}; ///< of a mod in use that has settings
    UsualValues usual = {};
    std::optional<WeightCalibration> weights = {};
    std::optional<WeaponMasses> masses = {};
    /// By long name.
    std::unordered_map<std::string, std::vector<KnownUnit>, CaselessHash, CaselessEqual> unitsByName = {};

    /// By weapon, as units write its name.
    std::unordered_map<std::string, std::vector<UsualLoad>> usualLoads = {};

    [[nodiscard]] const WeaponRecord* findWeapon(std::string_view name) const;
    /// The size of a picture, read once; nothing when the file is no picture.
    [[nodiscard]] std::optional<PictureSize> sizeOf(const AssetFile& picture) const;
    /// How far a picture of a part would have to move to lie within that of the whole, found once; nothing
    /// where one of them cannot be read.
    [[nodiscard]] PictureShift shiftOf(const AssetFile& whole, const AssetFile& part) const;

private:
    mutable std::shared_mutex guard_; ///< of what is read when it is asked for
    mutable std::unordered_map<const AssetFile*, std::optional<PictureSize>> sizes_;
    mutable std::map<std::pair<const AssetFile*, const AssetFile*>, PictureShift> shifts_;
};

/// Where pictures and sounds are, and the mod's settings.
void learnFolders(CheckKnowledge& knowledge, const GameFolders& folders);

/// Takes the weapons of the knowledge's own catalogue for those of the game, and learns what they weigh and
/// what is usual among them. Gives back those that stand out.
std::vector<const CatalogueEntry*> learnOwnWeapons(CheckKnowledge& knowledge);

/// Takes the weapons of a catalogue for those of the game; it must live as long as the knowledge.
void learnWeapons(CheckKnowledge& knowledge, const WeaponCatalogue& catalogue);

/// What is usual among the units of a game, and which names they have. Units go by numbers of the caller's.
class UnitSurvey {
public:
    explicit UnitSurvey(const CheckKnowledge& knowledge) : knowledge_(knowledge) {}
    void add(std::uint32_t number, Category category, std::string_view file, const SquadRecord& unit);
    /// Adds the findings of another survey.
    void join(UnitSurvey other);
    /// Tells the knowledge, once all are added. What comes of it is the same whoever surveyed which unit.
    /// Gives back the units that stand out, some more than once: only about these do rules find anything with
    /// it that they don't find without.
    std::vector<std::uint32_t> finish(CheckKnowledge& knowledge);

private:
    /// The loads for a weapon in all lists of ammunition.
    struct Loads {
        std::size_t carriers = 0;
        std::map<std::string, std::vector<std::int32_t>, std::less<>> rounds = {}; ///< by flavour
    };
    struct SurveyedVehicle {
        std::uint32_t number;
        VehicleFigures figures;
    };

    void addLoads(const SquadRecord& unit);
    void finishLoads(CheckKnowledge& knowledge) const;
    void finishWeights(CheckKnowledge& knowledge, std::vector<std::uint32_t>& outstanding);
    void finishNames(CheckKnowledge& knowledge, std::vector<std::uint32_t>& outstanding);

    const CheckKnowledge& knowledge_;
    ValueSamples samples_;
    std::vector<SurveyedVehicle> vehicles_;
    std::vector<KnownUnit> units_;
    std::map<std::string, Loads, std::less<>> loads_;
};

} // namespace varrocade
