#pragma once
// The settings of a mod in memory.

#include <cstdint>
#include <string>
#include <vector>

namespace varrocade {

/// A colour of the game's interface.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Rgb&) const = default;
};

/// The colours of the game's interface; those of a new record are the built-in theme.
struct ModColours {
    Rgb background = {239, 226, 191};
    Rgb panel = {255, 255, 255};
    Rgb text = {0, 0, 0};
    Rgb heading = {0, 140, 0};
    Rgb button = {0, 160, 0};
    Rgb buttonText = {255, 255, 255};
    Rgb selection = {169, 236, 121};
    Rgb friendly = {128, 128, 255};
    Rgb enemy = {255, 0, 0};
    Rgb neutral = {255, 255, 0};
    bool operator==(const ModColours&) const = default;
};

/// The time in which something of a nationality counts, its first and its last month with it. A year of 0 is
/// open: from the beginning, or to the end, of the war that the mod covers.
struct ModPeriod {
    std::int32_t firstYear = 0;
    std::int32_t firstMonth = 1;
    std::int32_t lastYear = 0;
    std::int32_t lastMonth = 12;
    bool operator==(const ModPeriod&) const = default;
};

/// On which side a nationality stands in a period. Outside of all its periods it is neutral.
struct ModAllegiance {
    std::string side = "SIDE_NEUTRAL";
    ModPeriod period = {};
    bool operator==(const ModAllegiance&) const = default;
};

struct ModSurname {
    std::string name;
    std::int32_t commonness = 1; ///< how often beside the others
    bool operator==(const ModSurname&) const = default;
};

/// Images are named without ".png", here as everywhere.
struct ModUniform {
    std::string profileImage;
    std::string gameImage;
    std::string ranksImage;
    ModPeriod period = {};
    bool operator==(const ModUniform&) const = default;
};

struct ModRank {
    std::string name;
    std::string image;
    bool operator==(const ModRank&) const = default;
};

/// A unit that a force can field.
struct ModListedUnit {
    std::string fileName;              ///< without folder and ".txt"
    std::string category = "vehicles"; ///< as the command line calls it
    std::int32_t share = 1;            ///< how often beside the others of its list
    std::int32_t cost = 0;             ///< in points; 0 where none is given
    bool operator==(const ModListedUnit&) const = default;
};

/// What a force of a nationality can field in a period.
struct ModEquipment {
    std::string name;
    ModPeriod period = {};
    std::vector<ModListedUnit> units;
    bool operator==(const ModEquipment&) const = default;
};

struct ModNationality {
    std::string id = "NATIONALITY_AMERICAN";
    std::string name;      ///< as shown; empty: as the game names it
    std::string adjective; ///< likewise
    std::string flag;
    std::string animatedFlag;
    std::vector<ModAllegiance> allegiances;
    std::vector<ModSurname> surnames;
    std::vector<ModUniform> uniforms;
    std::vector<ModRank> ranks; ///< from private to general
    std::vector<ModEquipment> equipment;
    bool operator==(const ModNationality&) const = default;
};

/// What a mod is called, the war that it covers, and who takes part in it. A new record holds the years of
/// the Second World War and leaves all else to the game.
struct ModSettings {
    std::string name = "New Mod";
    std::string author;
    std::string version;
    std::string comment; ///< what the mod is about
    std::int32_t firstYear = 1939;
    std::int32_t firstMonth = 1;
    std::int32_t lastYear = 1945;
    std::int32_t lastMonth = 12;
    std::vector<std::string> credits; ///< lines that the game shows, in order
    ModColours colours;
    std::vector<ModNationality> nationalities; ///< those that take part, in the order of the game's lists
    bool operator==(const ModSettings&) const = default;
};

} // namespace varrocade
