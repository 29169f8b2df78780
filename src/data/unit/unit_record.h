#pragma once
// One unit file in memory. Plain values: copied for undo, compared with `==`. Integers are those of the
// files; lengths and offsets are centimetres, angles degrees clockwise seen from above with 0 straight ahead.

#include "data/format/fixed_string.h"
#include "data/unit/enumerations.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace varrocade {

/// A squad's members: the components of its vehicle, or its infantrymen.
inline constexpr std::size_t MaxSquadMembers = 13;
/// The game counts availability points in 8 bits.
inline constexpr std::size_t MaxAvailabilityPoints = 255;

/// How many such units exist from a date on.
struct AvailabilityPoint {
    std::uint8_t month = 0; ///< 1 to 12
    std::uint16_t year = 0;
    std::uint16_t number = 0;
    bool operator==(const AvailabilityPoint&) const = default;
};

/// A weapon in a component, a heavy weapon or an aircraft.
struct WeaponMountRecord {
    Text type;  ///< weapon type name, such as "WEAPON_CANNON_75_KWK42_L70"
    Text mount; ///< mount name or empty
    std::int32_t offsetX = 0;
    std::int32_t offsetY = 0;
    std::int32_t offsetAngle = 0;
    bool operator==(const WeaponMountRecord&) const = default;
};

/// Ammunition carried for a weapon.
struct AmmoLoadRecord {
    Text weaponType; ///< the weapon type it is for
    Text flavour;    ///< such as "FLAVOUR_APCBC", or empty
    std::int32_t rounds = 0;
    bool operator==(const AmmoLoadRecord&) const = default;
};

/// A crew man of a component, or an infantryman.
struct CrewManRecord {
    Text job{NewManJob};
    LanguageCode language;
    bool bodyArmour = false;
    bool nightVision = false;
    std::vector<Text> weapons; ///< weapon type names of the personal weapons
    std::vector<AmmoLoadRecord> ammo;
    bool operator==(const CrewManRecord&) const = default;
};

/// Thickness in millimetres and angle from the vertical: 0 an upright plate, 90 a horizontal one.
struct ArmourPlate {
    std::int32_t thickness = 0;
    std::int32_t angle = 0;
    bool operator==(const ArmourPlate&) const = default;
};

/// The value of `ArmourRecord::bottom` and `mantlet` while they are not given; any negative one means the
/// same.
inline constexpr std::int32_t ArmourNotGiven = -1;

struct ArmourRecord {
    ArmourPlate upperFront;
    ArmourPlate lowerFront;
    ArmourPlate upperLeft;
    ArmourPlate upperRight;
    ArmourPlate lowerLeft;
    ArmourPlate lowerRight;
    ArmourPlate upperRear;
    ArmourPlate lowerRear;
    std::int32_t frontSpaced = 0; ///< 0 or less: none
    std::int32_t sideSpaced = 0;
    std::int32_t rearSpaced = 0;
    std::int32_t top = 0;
    std::int32_t bottom = ArmourNotGiven;
    std::int32_t mantlet = ArmourNotGiven;
    bool operator==(const ArmourRecord&) const = default;
};

struct SmokeDischargerRecord {
    bool directional =
        false; ///< throws its grenades in a direction; set by an angle, an elevation or a speed
    bool angleGiven = false;
    bool elevationGiven = false;
    std::int32_t angle = 0;
    std::int32_t elevation = 0;
    std::int32_t offsetX = 0;
    std::int32_t offsetY = 0;
    std::int32_t speed = 0;
    std::int32_t reload = 0;
    std::int32_t ammo = 0;
    bool operator==(const SmokeDischargerRecord&) const = default;
};

/// The angle of an exhaust pipe that the files leave out: straight back.
inline constexpr std::int32_t ExhaustPointingBack = 180;

struct ExhaustPipeRecord {
    std::int32_t offsetX = 0;
    std::int32_t offsetY = 0;
    std::int32_t angle = ExhaustPointingBack;
    std::int32_t verticalAngle = 0;
    bool operator==(const ExhaustPipeRecord&) const = default;
};

enum class ComponentKind : std::uint8_t { Hull = 0, Superstructure = 1, Turret = 2, FixedWeapon = 3 };

/// A part of a vehicle. Which fields count depends on the kind: only hulls, turrets and fixed weapons have
/// images and crew, only turrets a diameter and the limited-traverse flag, only fixed weapons an offsetZ.
struct ComponentRecord {
    ComponentKind kind = ComponentKind::Hull;
    Text viewImage;
    Text destroyedImage;
    std::int32_t width = 0;
    std::int32_t length = 0;
    std::int32_t height = 0;
    std::int32_t diameter = 0;
    std::int32_t offsetX = 0;
    std::int32_t offsetY = 0;
    std::int32_t offsetZ = 0;
    std::int32_t rotateTime = 0; ///< seconds for a full circle
    bool limitedTraverse = false;
    std::int32_t rotateLeft = 0;
    std::int32_t rotateRight = 0;
    std::int32_t offsetAngle = 0;
    bool antiAircraft = false;
    bool nightVision = false;
    ArmourRecord armour;
    std::vector<SmokeDischargerRecord> smokeDischargers;
    std::vector<CrewManRecord> crew;
    std::vector<WeaponMountRecord> weapons;
    std::vector<AmmoLoadRecord> ammo;
    bool operator==(const ComponentRecord&) const = default;
};

enum class EngineMount : std::uint8_t { Rear = 0, Middle = 1, Front = 2 };

struct VehicleRecord {
    Text profileImage;
    std::int32_t weight = 0; ///< kilograms
    bool canMountInfantry = false;
    bool amphibious = false;
    Text engineName;
    std::int32_t horsepower = 0;
    Text reliability{"RELIABILITY_AVERAGE"};
    std::int32_t idleRevolutions = 500; ///< revolutions a minute, as the limit
    std::int32_t revolutionLimit = 2800;
    std::int32_t forwardGears = 5;
    std::int32_t reverseGears = 1;
    Text steering{"STEERING_CLUTCH_AND_BRAKE"};
    EngineMount engineMount = EngineMount::Rear;
    std::vector<ComponentRecord> components; ///< at most MaxSquadMembers
    std::vector<ExhaustPipeRecord> exhaustPipes;
    bool smokeScreen = false; ///< can make a smoke screen
    bool operator==(const VehicleRecord&) const = default;
};

enum class HeavyWeaponKind : std::uint8_t { Mortar, Hmg, AtGun, RecoillessRifle };

/// The crew-served weapon of a squad.
struct HeavyWeaponRecord {
    HeavyWeaponKind kind = HeavyWeaponKind::Mortar;
    Text baseImage;
    Text gunImage;
    Text profileImage;
    bool nightVision = false;
    bool antiAircraft = false;
    std::vector<WeaponMountRecord> weapons;
    std::vector<AmmoLoadRecord> ammo;
    bool limitedTraverse = false;
    std::int32_t rotateLeft = 0;
    std::int32_t rotateRight = 0;
    std::int32_t mass = 0;    ///< kilograms
    double trailLength = 0.0; ///< metres; 0 or less: none
    bool moveable = true;
    bool operator==(const HeavyWeaponRecord&) const = default;
};

struct RotorBladesRecord {
    Text image;
    std::int32_t offsetX = 0;
    std::int32_t offsetY = 0;
    std::int32_t diameter = 0;
    bool clockwise = true;
    bool operator==(const RotorBladesRecord&) const = default;
};

struct AircraftRecord {
    Text image;
    bool ejectsFlares = false;
    Text sound;
    std::int32_t speed = 0;
    std::vector<WeaponMountRecord> weapons;
    std::vector<AmmoLoadRecord> ammo;
    std::vector<RotorBladesRecord> rotorBlades;
    bool operator==(const AircraftRecord&) const = default;
};

struct SquadRecord {
    Text fileName; ///< without folder and ".txt"
    Text type{"TYPE_TANK"};
    Text longName;
    Text shortName;
    Text comment;
    Text nationality{"NATIONALITY_AMERICAN"};
    Text quality{"QUALITY_REGULAR"};
    LanguageCode language;
    bool namedUniform = false;
    Text uniformName;
    Text uniformProfile;
    Text uniformGame;
    Text uniformRanks;
    std::vector<AvailabilityPoint> availability; ///< in file order, at most MaxAvailabilityPoints
    bool convertedAvailability = false;          ///< came from the older quarterly form
    std::optional<VehicleRecord> vehicle;
    std::vector<CrewManRecord> infantrymen; ///< at most MaxSquadMembers
    std::optional<HeavyWeaponRecord> heavyWeapon;
    std::size_t heavyWeaponPlace = 0; ///< how many of the infantrymen stand before the heavy weapon
    std::optional<AircraftRecord> aircraft;
    bool operator==(const SquadRecord&) const = default;
};

/// The refusal of a 14th member.
inline constexpr std::string_view SquadFullCaption = "Squad full";
inline constexpr std::string_view TooManyComponentsText =
    "There are already the maximum number of components allowed per squad";
inline constexpr std::string_view TooManyInfantrymenText =
    "There are already the maximum number of infantryman allowed per squad";

} // namespace varrocade
