#include "data/unit/enumerations.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr auto UnitTypes = std::to_array<std::string_view>({
    "TYPE_ARMOURED_CAR",
    "TYPE_ASSAULT_GUN",
    "TYPE_ATGUN",
    "TYPE_AT_RIFLE",
    "TYPE_BAZOOKA",
    "TYPE_FLAMETHROWER",
    "TYPE_GRENADE_LAUNCHER",
    "TYPE_HALFTRACK",
    "TYPE_HELICOPTER",
    "TYPE_HMG",
    "TYPE_HOWITZER",
    "TYPE_INFANTRY_FIGHTING_VEHICLE",
    "TYPE_INFANTRY_SECTION",
    "TYPE_LORRY",
    "TYPE_MORTAR",
    "TYPE_PLANE",
    "TYPE_RECOILLESS_RIFLE",
    "TYPE_TANK",
});

constexpr auto Qualities = std::to_array<std::string_view>({
    "QUALITY_ELITE",
    "QUALITY_SUPERIOR",
    QualityRegular,
    "QUALITY_POOR",
    QualityUntrained,
    QualityRaw,
});

constexpr auto Reliabilities = std::to_array<std::string_view>({
    "RELIABILITY_TERRIBLE",
    "RELIABILITY_VERY_POOR",
    "RELIABILITY_POOR",
    "RELIABILITY_AVERAGE",
    "RELIABILITY_GOOD",
    "RELIABILITY_VERY_GOOD",
    "RELIABILITY_EXCELLENT",
});

constexpr auto SteeringSystems = std::to_array<std::string_view>({
    "STEERING_CLUTCH_AND_BRAKE",
    "STEERING_CONTROLLED_DIFFERENTIAL",
    "STEERING_DOUBLE_DIFFERENTIAL",
    "STEERING_DOUBLE_DIFFERENTIAL_MAYBACH",
    "STEERING_FRONT_WHEELS",
    "STEERING_HALFTRACK",
    "STEERING_TRIPLE_DIFFERENTIAL",
    "STEERING_TWIN_TRANSMISSION",
    "STEERING_TWIN_TRANSMISSION_WITH_REVERSE",
});

constexpr auto Jobs = std::to_array<std::string_view>({
    "JOB_COMMANDER",
    "JOB_DRIVER",
    "JOB_GUNNER",
    "JOB_LOADER",
    "JOB_MACHINE_GUNNER",
    "JOB_NONE",
    "JOB_RADIO",
    "JOB_SQUAD_LEADER",
    "JOB_SQUAD_ASSISTANT_LEADER",
    "JOB_SQUAD_MG_ASSISTANT",
});
constexpr std::size_t SquadJobCount = 3; ///< at the end of the list

constexpr auto Nationalities = std::to_array<std::string_view>({
    "NATIONALITY_AMERICAN",    "NATIONALITY_ARMENIA",      "NATIONALITY_ARMENIAN",
    "NATIONALITY_AUSTRALIAN",  "NATIONALITY_AUSTRIAN",     "NATIONALITY_AZERBAIJAN",
    "NATIONALITY_AZERBAIJANI", "NATIONALITY_BELGIAN",      "NATIONALITY_BRITISH",
    "NATIONALITY_CANADIAN",    "NATIONALITY_CHINESE",      "NATIONALITY_DUTCH",
    "NATIONALITY_EGYPTIAN",    "NATIONALITY_FINLAND",      "NATIONALITY_FINNISH",
    "NATIONALITY_FRENCH",      "NATIONALITY_GEORGIAN",     "NATIONALITY_GERMAN",
    "NATIONALITY_HUNGARIAN",   "NATIONALITY_INDIAN",       "NATIONALITY_IRANIAN",
    "NATIONALITY_IRAQI",       "NATIONALITY_ISRAELI",      "NATIONALITY_ITALIAN",
    "NATIONALITY_JAPANESE",    "NATIONALITY_JORDANIAN",    "NATIONALITY_KUWAITI",
    "NATIONALITY_KUWATI",      "NATIONALITY_NORTH_KOREAN", "NATIONALITY_NORTH_VIETNAMESE",
    "NATIONALITY_PAKISTANI",   "NATIONALITY_POLISH",       "NATIONALITY_ROMANIAN",
    "NATIONALITY_RUSSIAN",     "NATIONALITY_SOUTH_KOREAN", "NATIONALITY_SOUTH_VIETNAMESE",
    "NATIONALITY_SYRIAN",      "NATIONALITY_TURKISH",      "NATIONALITY_UKRAINIAN",
});

constexpr auto Mounts = std::to_array<std::string_view>({MountFront, MountMiddle, MountRear});

// Some game images have "game" in their name and some have not, in the game's own files too.
constexpr auto NationalUniforms = std::to_array<NationalUniform>({
    {"NATIONALITY_AMERICAN", "uniform_american_vehicle_crew", "uniform_game_american_tank_crew",
     "uniform_ranks_american"},
    {"NATIONALITY_BRITISH", "uniform_british_vehicle_crew", "uniform_game_british_tank_crew",
     "uniform_ranks_british"},
    {"NATIONALITY_CHINESE", "uniform_chinese_vehicle_crew", "uniform_chinese_tank_crew",
     "uniform_ranks_chinese"},
    {"NATIONALITY_FINNISH", "uniform_finnish_vehicle_crew", "uniform_finnish_tank_crew",
     "uniform_ranks_finnish"},
    {"NATIONALITY_FRENCH", "uniform_french_vehicle_crew", "uniform_game_french_tank_crew",
     "uniform_ranks_french"},
    {"NATIONALITY_GERMAN", "uniform_german_vehicle_crew", "uniform_game_german_tank_crew",
     "uniform_ranks_german"},
    {"NATIONALITY_HUNGARIAN", "uniform_hungarian_vehicle_crew", "uniform_hungarian_tank_crew",
     "uniform_ranks_hungarian"},
    {"NATIONALITY_ITALIAN", "uniform_italian_vehicle_crew", "uniform_game_italian_tank_crew",
     "uniform_ranks_italian"},
    {"NATIONALITY_JAPANESE", "uniform_japanese_vehicle_crew", "uniform_game_japanese_tank_crew",
     "uniform_ranks_japanese"},
    {"NATIONALITY_POLISH", "uniform_polish_vehicle_crew", "uniform_game_polish_tank_crew",
     "uniform_ranks_polish"},
    {"NATIONALITY_ROMANIAN", "uniform_romanian_vehicle_crew", "uniform_romanian_tank_crew",
     "uniform_ranks_romanian"},
    {"NATIONALITY_RUSSIAN", "uniform_russian_vehicle_crew", "uniform_game_russian_tank_crew",
     "uniform_ranks_russian"},
    {"NATIONALITY_UKRAINIAN", "uniform_ukrainian_vehicle_crew", "uniform_game_ukrainian_tank_crew",
     "uniform_ranks_ukrainian"},
});

struct DefaultFlavour {
    std::string_view weaponPrefix;
    std::string_view flavour;
    std::string_view otherFlavour = {};
};

// The first prefix that fits decides, so a smoke grenade counts as a grenade: the game's own order.
constexpr auto DefaultFlavours = std::to_array<DefaultFlavour>({
    {"WEAPON_PISTOL_", "FLAVOUR_BALL"},
    {"WEAPON_CARBINE_", "FLAVOUR_BALL"},
    {"WEAPON_RIFLE_", "FLAVOUR_BALL"},
    {"WEAPON_SMG_", "FLAVOUR_BALL"},
    {"WEAPON_LMG_", "FLAVOUR_BALL"},
    {"WEAPON_HMG_", "FLAVOUR_BALL"},
    {"WEAPON_AT_RIFLE_", "FLAVOUR_BALL_AT_RIFLE", "FLAVOUR_AT_RIFLE_AP"},
    {"WEAPON_FLAMETHROWER_", "FLAVOUR_FLAME"},
    {"WEAPON_GRENADE_", "FLAVOUR_GRENADE_HE"},
    {"WEAPON_GRENADE_SMOKE", "FLAVOUR_GRENADE_SMOKE"},
    {"WEAPON_RPG_", "FLAVOUR_RPG_HEAT"},
    {BombPrefix, FlavourBombHe},
});

/// Words of names that are said letter by letter.
constexpr auto Abbreviations = std::to_array<std::string_view>({"AT", "HMG", "MG"});

} // namespace

std::span<const std::string_view> unitTypeNames() {
    return UnitTypes;
}

std::span<const std::string_view> qualityNames() {
    return Qualities;
}

std::span<const std::string_view> reliabilityNames() {
    return Reliabilities;
}

std::span<const std::string_view> steeringNames() {
    return SteeringSystems;
}

std::span<const std::string_view> jobNames() {
    return Jobs;
}

std::span<const std::string_view> squadJobNames() {
    return std::span<const std::string_view>(Jobs).last<SquadJobCount>();
}

std::span<const std::string_view> nationalityNames() {
    return Nationalities;
}

std::span<const std::string_view> mountNames() {
    return Mounts;
}

const NationalUniform* findNationalUniform(std::string_view nationality) {
    const auto row =
        std::find_if(NationalUniforms.begin(), NationalUniforms.end(),
                     [&](const NationalUniform& uniform) { return uniform.nationality == nationality; });
    return row == NationalUniforms.end() ? nullptr : &*row;
}

bool isDefaultFlavour(std::string_view weaponType, std::string_view flavour) {
    if (flavour.empty()) {
        return true;
    }
    for (const DefaultFlavour& row : DefaultFlavours) {
        if (weaponType.starts_with(row.weaponPrefix)) {
            return flavour == row.flavour || flavour == row.otherFlavour;
        }
    }
    return false;
}

std::string displayName(std::string_view name, std::string_view prefix) {
    if (name.starts_with(prefix)) {
        name.remove_prefix(prefix.size());
    }
    std::string words;
    while (!name.empty()) {
        const std::string_view word = name.substr(0, name.find('_'));
        const bool isSpelt =
            std::find(Abbreviations.begin(), Abbreviations.end(), word) != Abbreviations.end();
        for (std::size_t i = 0; i < word.size(); ++i) {
            const bool isLower = i > 0 && !isSpelt && word[i] >= 'A' && word[i] <= 'Z';
            words += isLower ? static_cast<char>(word[i] - 'A' + 'a') : word[i];
        }
        name.remove_prefix(word.size());
        if (!name.empty()) {
            words += ' ';
            name.remove_prefix(1);
        }
    }
    return words;
}

std::string squadJobWord(std::string_view job) {
    return job == NewManJob ? "Soldier" : shownWord(job, JobPrefix, jobNames());
}

std::string shownWord(std::string_view name, std::string_view prefix,
                      std::span<const std::string_view> names) {
    const bool isKnown = std::find(names.begin(), names.end(), name) != names.end();
    return isKnown || name.empty() ? displayName(name, prefix) : std::string(name) + " (unknown)";
}

std::string weaponWord(std::string_view weaponType) {
    if (weaponType.starts_with(WeaponPrefix)) {
        weaponType.remove_prefix(WeaponPrefix.size());
    }
    // The kind of weapon reads as a word where it is one and no abbreviation (SMG, MLRS), its designation
    // stays in capitals.
    constexpr std::size_t shortestWord = 4;
    const std::string_view kind = weaponType.substr(0, weaponType.find('_'));
    const bool isWord = kind.size() >= shortestWord && kind.find_first_of("AEIOU") != std::string_view::npos;
    std::string words;
    bool isKind = true;
    for (const char c : weaponType) {
        if (c == '_') {
            isKind = false;
            words += ' ';
        } else {
            const bool lower = isWord && isKind && !words.empty() && c >= 'A' && c <= 'Z';
            words += lower ? static_cast<char>(c - 'A' + 'a') : c;
        }
    }
    return words;
}

} // namespace varrocade
