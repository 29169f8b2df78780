#pragma once
// The names that the files use for symbolic values. Records keep these values as their names.

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace varrocade {

std::span<const std::string_view> unitTypeNames();
/// Best first; the last one is only read, and stored as "QUALITY_UNTRAINED".
std::span<const std::string_view> qualityNames();
/// Worst first.
std::span<const std::string_view> reliabilityNames();
std::span<const std::string_view> steeringNames();
std::span<const std::string_view> jobNames();
/// The jobs that the files of squads on foot have; any other man of theirs is an ordinary one without a job.
std::span<const std::string_view> squadJobNames();
std::span<const std::string_view> mountNames();
/// With the duplicate and misspelt ones that old files use.
std::span<const std::string_view> nationalityNames();

inline constexpr std::string_view QualityRegular = "QUALITY_REGULAR";
inline constexpr std::string_view QualityUntrained = "QUALITY_UNTRAINED";
inline constexpr std::string_view QualityRaw = "QUALITY_RAW";
inline constexpr std::string_view MountFront = "MOUNT_FRONT";
inline constexpr std::string_view MountMiddle = "MOUNT_MIDDLE";
inline constexpr std::string_view MountRear = "MOUNT_REAR";
inline constexpr std::string_view NationalityPrefix = "NATIONALITY_";
inline constexpr std::string_view JobPrefix = "JOB_";
inline constexpr std::string_view NewManJob = "JOB_LOADER";
inline constexpr std::string_view EnginePrefix = "ENGINE_";
inline constexpr std::string_view WeaponPrefix = "WEAPON_";
inline constexpr std::string_view BombPrefix = "WEAPON_BOMB_";
inline constexpr std::string_view FlavourBombHe = "FLAVOUR_BOMB_HE";

/// The uniform images that a nation's vehicle crews wear unless a file says otherwise.
struct NationalUniform {
    std::string_view nationality;
    std::string_view profile;
    std::string_view game;
    std::string_view ranks;
};

/// The row of a nationality, or null where it has no default uniform.
const NationalUniform* findNationalUniform(std::string_view nationality);

/// Whether ammunition of this flavour needs no `flavour` element for this weapon type; an empty flavour never
/// does, and a weapon type without a known prefix has no default.
bool isDefaultFlavour(std::string_view weaponType, std::string_view flavour);

/// A name for people: "NATIONALITY_NORTH_KOREAN" without its prefix as "North Korean"; abbreviations keep
/// their capitals.
std::string displayName(std::string_view name, std::string_view prefix);

/// The same for one of `names`; any other name as it stands, with a mark.
std::string shownWord(std::string_view name, std::string_view prefix,
                      std::span<const std::string_view> names);

/// The job of a man of a squad on foot, for people. One without a job in the file has that of a new man, and
/// is no loader for it.
std::string squadJobWord(std::string_view job);

/// A weapon type for people: "Cannon 75 KWK42 L70".
std::string weaponWord(std::string_view weaponType);

} // namespace varrocade
