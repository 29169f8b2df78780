#include "data/unit_rules.h"

#include "data/elements.h"
#include "data/engine_table.h"
#include "data/enumerations.h"
#include "data/image_names.h"
#include "data/numbers.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <cstring>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

namespace varrocade::unit_rules {

namespace {

using Apply = void (*)(Reading&, std::string_view);

constexpr std::string_view Yes = "yes";

// The object that a rule's member belongs to; null while there is none.
SquadRecord* target(Reading& reading, const SquadRecord*) {
    return &reading.record;
}
VehicleRecord* target(Reading& reading, const VehicleRecord*) {
    return reading.record.vehicle ? &*reading.record.vehicle : nullptr;
}
AircraftRecord* target(Reading& reading, const AircraftRecord*) {
    return reading.record.aircraft ? &*reading.record.aircraft : nullptr;
}
ArmourRecord* target(Reading& reading, const ArmourRecord*) {
    return reading.component != nullptr ? &reading.component->armour : nullptr;
}
AvailabilityPoint* target(Reading& reading, const AvailabilityPoint*) {
    return reading.point;
}
ComponentRecord* target(Reading& reading, const ComponentRecord*) {
    return reading.component;
}
CrewManRecord* target(Reading& reading, const CrewManRecord*) {
    return reading.man;
}
WeaponMountRecord* target(Reading& reading, const WeaponMountRecord*) {
    return reading.weapon;
}
AmmoLoadRecord* target(Reading& reading, const AmmoLoadRecord*) {
    return reading.ammo;
}
SmokeDischargerRecord* target(Reading& reading, const SmokeDischargerRecord*) {
    return reading.discharger;
}
ExhaustPipeRecord* target(Reading& reading, const ExhaustPipeRecord*) {
    return reading.exhaustPipe;
}
HeavyWeaponRecord* target(Reading& reading, const HeavyWeaponRecord*) {
    return reading.heavyWeapon;
}
RotorBladesRecord* target(Reading& reading, const RotorBladesRecord*) {
    return reading.rotorBlades;
}

template <typename Member>
struct MemberOf;
template <typename Record, typename Field>
struct MemberOf<Field Record::*> {
    using Owner = Record;
};

template <auto Member>
using OwnerOf = typename MemberOf<decltype(Member)>::Owner;
template <auto Member>
using FieldOf = std::remove_cvref_t<decltype(std::declval<OwnerOf<Member>&>().*Member)>;

/// The object whose list or reference a rule changes.
template <auto Member>
auto* ownerOf(Reading& reading) {
    const OwnerOf<Member>* kind = nullptr;
    return target(reading, kind);
}

/// The object whose member a rule is about to set.
template <auto Member, ValueKind Kind = kindOfField<FieldOf<Member>>()>
auto* targetOf(Reading& reading) {
    auto* object = ownerOf<Member>(reading);
    if (reading.trace != nullptr && object != nullptr) {
        reading.trace->note<Member>(*object, std::same_as<OwnerOf<Member>, SquadRecord>, Kind);
    }
    return object;
}

/// The element made an entry; `alone`: and put away the former one.
void noteEntry(Reading& reading, bool alone = false) {
    if (reading.trace != nullptr) {
        reading.trace->noteEntry(reading.node->name, alone);
    }
}

void judge(Reading& reading, bool understood) {
    if (reading.trace != nullptr) {
        reading.trace->judge(understood);
    }
}

void convert(std::string_view text, bool& field) {
    field = text == Yes;
}
void convert(std::string_view text, double& field) {
    field = toReal(text);
}
template <std::integral Integer>
void convert(std::string_view text, Integer& field) {
    field = toClamped<Integer>(text);
}
template <std::size_t Capacity>
void convert(std::string_view text, FixedString<Capacity>& field) {
    field = text;
}
/// A thickness alone, or a thickness, "@" and an angle.
void convert(std::string_view text, ArmourPlate& field) {
    const std::size_t at = text.find('@');
    field.thickness = toInteger(text);
    field.angle = at == std::string_view::npos ? 0 : toInteger(text.substr(at + 1));
}

/// Sets members from the element's text, by their types.
template <auto... Members>
void set(Reading& reading, std::string_view text) {
    const auto setOne = [&]<auto Member>() {
        if (auto* object = targetOf<Member>(reading)) {
            convert(text, object->*Member);
        }
    };
    (setOne.template operator()<Members>(), ...);
}

template <auto Member>
void setImage(Reading& reading, std::string_view text) {
    if (auto* object = targetOf<Member, ValueKind::Image>(reading)) {
        object->*Member = imageNameOf(text);
    }
}

template <auto Member>
void setUniformImage(Reading& reading, std::string_view text) {
    SquadRecord* record = targetOf<Member, ValueKind::Image>(reading);
    record->*Member = isDefaultImage(text) ? DefaultImageName : imageNameOf(text);
}

void setUniformName(Reading& reading, std::string_view text) {
    SquadRecord* record = targetOf<&SquadRecord::uniformName>(reading);
    record->namedUniform = true;
    record->uniformName = text;
    if (isDefaultImage(text)) {
        record->uniformName.clear();
        judge(reading, true);
    }
}

void setQuality(Reading& reading, std::string_view text) {
    const auto names = qualityNames();
    const bool known = std::find(names.begin(), names.end(), text) != names.end();
    judge(reading, known);
    targetOf<&SquadRecord::quality>(reading)->quality =
        !known ? QualityRegular : (text == QualityRaw ? QualityUntrained : text);
}

// ---- availability

void addPoint(Reading& reading, std::string_view) {
    std::vector<AvailabilityPoint>& points = reading.record.availability;
    reading.point = nullptr;
    if (points.size() >= MaxAvailabilityPoints) {
        reportLeftOut(reading, "more than 255 availability points");
        return;
    }
    reading.point = &points.emplace_back();
    noteEntry(reading);
}

// ---- vehicle

/// The entries of a component that is no longer the current one, or no longer there.
void forgetComponentEntries(Reading& reading) {
    reading.man = nullptr;
    reading.weapon = nullptr;
    reading.ammo = nullptr;
    reading.discharger = nullptr;
}

void createVehicle(Reading& reading, std::string_view) {
    reading.record.vehicle.emplace();
    noteEntry(reading, true);
    reading.component = nullptr;
    reading.exhaustPipe = nullptr;
    forgetComponentEntries(reading);
}

void setEngineMount(Reading& reading, std::string_view text) {
    if (VehicleRecord* vehicle = targetOf<&VehicleRecord::engineMount>(reading)) {
        const auto names = mountNames();
        judge(reading, std::find(names.begin(), names.end(), text) != names.end());
        vehicle->engineMount = text == MountFront    ? EngineMount::Front
                               : text == MountMiddle ? EngineMount::Middle
                                                     : EngineMount::Rear;
    }
}

/// The older form names the engine in the element itself, by its name or by an identifier of the engine
/// table.
void setFlatEngine(Reading& reading, std::string_view text) {
    if (text.empty() || !reading.record.vehicle) {
        return;
    }
    VehicleRecord& vehicle = *targetOf<&VehicleRecord::engineName>(reading);
    if (!text.starts_with(EnginePrefix)) {
        vehicle.engineName = text;
        return;
    }
    const EngineRow* row = findEngine(text);
    vehicle.engineName = row != nullptr ? row->name : std::string_view();
    judge(reading, row != nullptr);
    if (row != nullptr) {
        targetOf<&VehicleRecord::horsepower>(reading)->horsepower = row->horsepower;
    }
}

template <ComponentKind Kind>
void addComponent(Reading& reading, std::string_view) {
    reading.component = nullptr;
    forgetComponentEntries(reading);
    if (!reading.record.vehicle) {
        return;
    }
    std::vector<ComponentRecord>& components = reading.record.vehicle->components;
    if (components.size() >= MaxSquadMembers) {
        reportLeftOut(reading, "more than 13 components");
        return;
    }
    components.reserve(MaxSquadMembers);
    reading.component = &components.emplace_back();
    reading.component->kind = Kind;
    noteEntry(reading);
}

/// Appends to a list of the object that is being filled, and makes the new entry the current one.
template <auto List, auto Current>
void append(Reading& reading, std::string_view) {
    auto* object = ownerOf<List>(reading);
    reading.*Current = object != nullptr ? &(object->*List).emplace_back() : nullptr;
    if (object != nullptr) {
        noteEntry(reading);
    }
}

/// A man's entries begin afresh, so that what a refused man holds goes nowhere.
template <auto List>
void addMan(Reading& reading, std::string_view text) {
    append<List, &Reading::man>(reading, text);
    reading.ammo = nullptr;
}

template <auto Member>
void setLimit(Reading& reading, std::string_view text) {
    set<Member>(reading, text);
    if (auto* object = targetOf<Member>(reading)) {
        // A fixed weapon's limits always apply, without a flag.
        if constexpr (std::same_as<typename MemberOf<decltype(Member)>::Owner, ComponentRecord>) {
            object->limitedTraverse = object->kind == ComponentKind::Turret;
        } else {
            object->limitedTraverse = true;
        }
    }
}

/// The older limits count from straight ahead: to the left negative, to the right positive.
template <auto Member>
void setLimitFromNegative(Reading& reading, std::string_view text) {
    setLimit<Member>(reading, text);
    if (auto* object = targetOf<Member>(reading)) {
        const std::int32_t value = object->*Member;
        const bool negatable = value != std::numeric_limits<std::int32_t>::min();
        object->*Member = std::max(0, negatable ? -value : std::numeric_limits<std::int32_t>::max());
    }
}

template <auto Member>
void setLimitFromPositive(Reading& reading, std::string_view text) {
    setLimit<Member>(reading, text);
    if (auto* object = targetOf<Member>(reading)) {
        object->*Member = std::max(0, object->*Member);
    }
}

template <auto Member, bool SmokeDischargerRecord::*Given = nullptr>
void setDirection(Reading& reading, std::string_view text) {
    set<Member>(reading, text);
    if (reading.discharger != nullptr) {
        reading.discharger->directional = true;
        if constexpr (Given != nullptr) {
            reading.discharger->*Given = true;
        }
    }
}

// ---- squads on foot, heavy weapons, aircraft

void addInfantryman(Reading& reading, std::string_view) {
    reading.man = nullptr;
    reading.ammo = nullptr;
    if (reading.record.infantrymen.size() >= MaxSquadMembers) {
        reportLeftOut(reading, "more than 13 infantrymen");
        return;
    }
    reading.man = &reading.record.infantrymen.emplace_back();
    noteEntry(reading);
}

void addPersonalWeapon(Reading& reading, std::string_view text) {
    if (reading.man != nullptr) {
        reading.man->weapons.emplace_back(text);
        if (reading.trace != nullptr) {
            reading.trace->noteItem(fieldId<&CrewManRecord::weapons>(), reading.man->weapons.back());
        }
    }
}

template <HeavyWeaponKind Kind>
void createHeavyWeapon(Reading& reading, std::string_view) {
    reading.heavyWeapon = nullptr;
    reading.weapon = nullptr;
    reading.ammo = nullptr;
    if (reading.record.heavyWeapon) {
        reportLeftOut(reading, "a second heavy weapon");
        return;
    }
    reading.heavyWeapon = &reading.record.heavyWeapon.emplace();
    reading.heavyWeapon->kind = Kind;
    noteEntry(reading);
    reading.record.heavyWeaponPlace = reading.record.infantrymen.size();
}

void createAircraft(Reading& reading, std::string_view) {
    reading.record.aircraft.emplace();
    noteEntry(reading, true);
    reading.weapon = nullptr;
    reading.ammo = nullptr;
    reading.rotorBlades = nullptr;
}

/// Into -180 to 180, in whole turns.
void setNormalisedAngle(Reading& reading, std::string_view text) {
    if (WeaponMountRecord* weapon = targetOf<&WeaponMountRecord::offsetAngle>(reading)) {
        constexpr std::int32_t fullTurn = 360;
        constexpr std::int32_t halfTurn = 180;
        std::int32_t angle = toInteger(text) % fullTurn;
        if (angle > halfTurn) {
            angle -= fullTurn;
        } else if (angle < -halfTurn) {
            angle += fullTurn;
        }
        weapon->offsetAngle = angle;
    }
}

using P = Place;
using Squad = SquadRecord;
using Vehicle = VehicleRecord;
using Component = ComponentRecord;
using Man = CrewManRecord;
using Heavy = HeavyWeaponRecord;
using Aircraft = AircraftRecord;
using Armour = ArmourRecord;
using Discharger = SmokeDischargerRecord;
using Pipe = ExhaustPipeRecord;
using Mounted = WeaponMountRecord;
using Ammo = AmmoLoadRecord;

namespace e = element;
namespace older = element::older;

constexpr auto DescriptionRules = [](P in) {
    return std::to_array<Rule>({
        {in, e::Type, P::Unknown, set<&Squad::type>},
        {in, e::LongName, P::Unknown, set<&Squad::longName>},
        {in, e::ShortName, P::Unknown, set<&Squad::shortName>},
        {in, e::Comment, P::Unknown, set<&Squad::comment>},
        {in, e::Nationality, P::Unknown, set<&Squad::nationality>},
        {in, e::Language, P::Unknown, set<&Squad::language>},
        {in, e::Quality, P::Unknown, setQuality},
        {in, e::Uniform, P::Unknown, setUniformName},
        {in, e::UniformGame, P::Unknown, setUniformImage<&Squad::uniformGame>},
        {in, e::UniformProfile, P::Unknown, setUniformImage<&Squad::uniformProfile>},
        {in, e::UniformRanks, P::Unknown, setUniformImage<&Squad::uniformRanks>},
    });
};

constexpr auto ManRules = [](P in, P weapon, P ammo) {
    return std::to_array<Rule>({
        {in, e::Job, P::Unknown, set<&Man::job>},
        {in, e::Language, P::Unknown, set<&Man::language>},
        {in, e::BodyArmour, P::Unknown, set<&Man::bodyArmour>},
        {in, e::NightVision, P::Unknown, set<&Man::nightVision>},
        {in, e::Weapon, weapon, nullptr},
        {weapon, e::Type, P::Unknown, addPersonalWeapon},
        {in, e::Ammo, ammo, append<&Man::ammo, &Reading::ammo>},
        {ammo, e::For, P::Unknown, set<&Ammo::weaponType>},
        {ammo, e::Rounds, P::Unknown, set<&Ammo::rounds>},
    });
};

template <typename Owner>
constexpr auto TraverseRules = [](P in) {
    return std::to_array<Rule>({
        {in, e::RotateLeft, P::Unknown, setLimit<&Owner::rotateLeft>},
        {in, older::AngleLeft, P::Unknown, setLimit<&Owner::rotateLeft>},
        {in, e::RotateRight, P::Unknown, setLimit<&Owner::rotateRight>},
        {in, older::AngleRight, P::Unknown, setLimit<&Owner::rotateRight>},
        {in, older::MinAngle, P::Unknown, setLimitFromNegative<&Owner::rotateLeft>},
        {in, older::MinAngleCamel, P::Unknown, setLimitFromNegative<&Owner::rotateLeft>},
        {in, older::MaxAngle, P::Unknown, setLimitFromPositive<&Owner::rotateRight>},
        {in, older::MaxAngleCamel, P::Unknown, setLimitFromPositive<&Owner::rotateRight>},
    });
};

/// What turrets and fixed weapons have in common.
constexpr auto ArmedComponentRules = [](P in) {
    return std::to_array<Rule>({
        {in, e::OffsetX, P::Unknown, set<&Component::offsetX>},
        {in, e::OffsetY, P::Unknown, set<&Component::offsetY>},
        {in, e::ImageView, P::Unknown, setImage<&Component::viewImage>},
        {in, e::ImageDestroyed, P::Unknown, setImage<&Component::destroyedImage>},
        {in, e::RotateTime, P::Unknown, set<&Component::rotateTime>},
        {in, e::OffsetAngle, P::Unknown, set<&Component::offsetAngle>},
        {in, older::AngleOffset, P::Unknown, set<&Component::offsetAngle>},
        {in, older::OffsetAngleCamel, P::Unknown, set<&Component::offsetAngle>},
        {in, e::NightVision, P::Unknown, set<&Component::nightVision>},
        {in, e::AA, P::Unknown, set<&Component::antiAircraft>},
        {in, e::Weapon, P::ComponentWeapon, append<&Component::weapons, &Reading::weapon>},
        {in, e::Ammo, P::ComponentAmmo, append<&Component::ammo, &Reading::ammo>},
        {in, e::Man, P::CrewMan, addMan<&Component::crew>},
        {in, e::Armour, P::Armour, nullptr},
    });
};

constexpr auto PlainRules = std::to_array<Rule>({
    {P::Squad, e::Vehicle, P::Vehicle, createVehicle},
    {P::Squad, e::Man, P::Infantryman, addInfantryman},
    {P::Squad, e::Mortar, P::HeavyWeapon, createHeavyWeapon<HeavyWeaponKind::Mortar>},
    {P::Squad, e::Hmg, P::HeavyWeapon, createHeavyWeapon<HeavyWeaponKind::Hmg>},
    {P::Squad, e::Atgun, P::HeavyWeapon, createHeavyWeapon<HeavyWeaponKind::AtGun>},
    {P::Squad, e::RecoillessRifle, P::HeavyWeapon, createHeavyWeapon<HeavyWeaponKind::RecoillessRifle>},
    {P::Squad, e::Availability, P::Availability, nullptr},
    {P::Squad, e::Commonness, P::Commonness, nullptr},
    {P::Squad, e::Description, P::SquadDescription, nullptr},
    {P::Aircraft, e::Availability, P::Availability, nullptr},
    {P::Aircraft, e::Commonness, P::Commonness, nullptr},
    {P::Aircraft, e::Description, P::AircraftDescription, nullptr},
    {P::Aircraft, e::Armament, P::Armament, nullptr},
    {P::Aircraft, e::RotorBlades, P::RotorBlades, append<&Aircraft::rotorBlades, &Reading::rotorBlades>},

    {P::Availability, e::Data, P::AvailabilityData, addPoint},
    {P::AvailabilityData, e::Month, P::Unknown, set<&AvailabilityPoint::month>},
    {P::AvailabilityData, e::Year, P::Unknown, set<&AvailabilityPoint::year>},
    {P::AvailabilityData, e::Number, P::Unknown, set<&AvailabilityPoint::number>},

    {P::Vehicle, e::Attributes, P::Attributes, nullptr},
    {P::Vehicle, e::Drive, P::Drive, nullptr},
    {P::Vehicle, e::Hull, P::Hull, addComponent<ComponentKind::Hull>},
    {P::Vehicle, e::Superstructure, P::Superstructure, addComponent<ComponentKind::Superstructure>},
    {P::Vehicle, e::Turret, P::Turret, addComponent<ComponentKind::Turret>},
    {P::Vehicle, e::FixedWeapon, P::FixedWeapon, addComponent<ComponentKind::FixedWeapon>},

    {P::Attributes, e::ImageProfile, P::Unknown, setImage<&Vehicle::profileImage>},
    {P::Attributes, e::Weight, P::Unknown, set<&Vehicle::weight>},
    {P::Attributes, e::CanMountInfantry, P::Unknown, set<&Vehicle::canMountInfantry>},
    {P::Attributes, e::IsAmphibious, P::Unknown, set<&Vehicle::amphibious>},

    {P::Drive, e::Engine, P::Engine, setFlatEngine},
    {P::Drive, e::Gears, P::Gears, nullptr},
    {P::Drive, e::Steering, P::Unknown, set<&Vehicle::steering>},
    {P::Drive, e::CanMakeSmokeScreen, P::Unknown, set<&Vehicle::smokeScreen>},
    {P::Drive, e::ExhaustPipe, P::ExhaustPipe, append<&Vehicle::exhaustPipes, &Reading::exhaustPipe>},
    {P::Drive, e::Reliability, P::Unknown, set<&Vehicle::reliability>},
    {P::Drive, e::Mount, P::Unknown, setEngineMount},
    {P::Drive, e::RpmIdle, P::Unknown, set<&Vehicle::idleRevolutions>},
    {P::Drive, e::RpmLimit, P::Unknown, set<&Vehicle::revolutionLimit>},
    {P::Engine, e::Name, P::Unknown, set<&Vehicle::engineName>},
    {P::Engine, e::Horsepower, P::Unknown, set<&Vehicle::horsepower>},
    {P::Engine, e::Reliability, P::Unknown, set<&Vehicle::reliability>},
    {P::Engine, e::Mount, P::Unknown, setEngineMount},
    {P::Engine, e::RpmIdle, P::Unknown, set<&Vehicle::idleRevolutions>},
    {P::Engine, e::RpmLimit, P::Unknown, set<&Vehicle::revolutionLimit>},
    {P::Gears, e::Forwards, P::Unknown, set<&Vehicle::forwardGears>},
    {P::Gears, e::Reverse, P::Unknown, set<&Vehicle::reverseGears>},
    {P::ExhaustPipe, e::OffsetX, P::Unknown, set<&Pipe::offsetX>},
    {P::ExhaustPipe, e::OffsetY, P::Unknown, set<&Pipe::offsetY>},
    {P::ExhaustPipe, e::Angle, P::Unknown, set<&Pipe::angle>},
    {P::ExhaustPipe, older::HorizontalAngle, P::Unknown, set<&Pipe::angle>},
    {P::ExhaustPipe, e::VerticalAngle, P::Unknown, set<&Pipe::verticalAngle>},

    {P::Hull, e::Width, P::Unknown, set<&Component::width>},
    {P::Hull, e::Length, P::Unknown, set<&Component::length>},
    {P::Hull, e::Height, P::Unknown, set<&Component::height>},
    {P::Hull, e::ImageView, P::Unknown, setImage<&Component::viewImage>},
    {P::Hull, e::ImageDestroyed, P::Unknown, setImage<&Component::destroyedImage>},
    {P::Hull, e::Man, P::CrewMan, addMan<&Component::crew>},
    {P::Hull, e::Armour, P::Armour, nullptr},
    {P::Hull, e::SmokeDischarger, P::SmokeDischarger,
     append<&Component::smokeDischargers, &Reading::discharger>},

    {P::Superstructure, e::Width, P::Unknown, set<&Component::width>},
    {P::Superstructure, e::Length, P::Unknown, set<&Component::length>},
    {P::Superstructure, e::Height, P::Unknown, set<&Component::height>},
    {P::Superstructure, e::OffsetX, P::Unknown, set<&Component::offsetX>},
    {P::Superstructure, e::OffsetY, P::Unknown, set<&Component::offsetY>},
    {P::Superstructure, e::Armour, P::Armour, nullptr},
    {P::Superstructure, e::SmokeDischarger, P::SmokeDischarger,
     append<&Component::smokeDischargers, &Reading::discharger>},

    {P::Turret, e::Diameter, P::Unknown, set<&Component::diameter>},
    {P::Turret, e::Height, P::Unknown, set<&Component::height>},
    {P::Turret, e::SmokeDischarger, P::SmokeDischarger,
     append<&Component::smokeDischargers, &Reading::discharger>},
    {P::FixedWeapon, e::OffsetZ, P::Unknown, set<&Component::offsetZ>},

    {P::ComponentWeapon, e::Type, P::Unknown, set<&Mounted::type>},
    {P::ComponentWeapon, e::Mount, P::Unknown, set<&Mounted::mount>},
    {P::ComponentWeapon, e::OffsetX, P::Unknown, set<&Mounted::offsetX>},
    {P::ComponentWeapon, e::OffsetY, P::Unknown, set<&Mounted::offsetY>},
    {P::ComponentWeapon, e::OffsetAngle, P::Unknown, set<&Mounted::offsetAngle>},
    {P::ComponentAmmo, e::For, P::Unknown, set<&Ammo::weaponType>},
    {P::ComponentAmmo, e::Flavour, P::Unknown, set<&Ammo::flavour>},
    {P::ComponentAmmo, e::Rounds, P::Unknown, set<&Ammo::rounds>},

    {P::SmokeDischarger, e::OffsetX, P::Unknown, set<&Discharger::offsetX>},
    {P::SmokeDischarger, e::OffsetY, P::Unknown, set<&Discharger::offsetY>},
    {P::SmokeDischarger, e::Angle, P::Unknown, setDirection<&Discharger::angle, &Discharger::angleGiven>},
    {P::SmokeDischarger, e::Elevation, P::Unknown,
     setDirection<&Discharger::elevation, &Discharger::elevationGiven>},
    {P::SmokeDischarger, e::Speed, P::Unknown, setDirection<&Discharger::speed>},
    {P::SmokeDischarger, e::Ammo, P::Unknown, set<&Discharger::ammo>},
    {P::SmokeDischarger, e::Reload, P::Unknown, set<&Discharger::reload>},

    {P::Armour, e::Top, P::Unknown, set<&Armour::top>},
    {P::Armour, e::Bottom, P::Unknown, set<&Armour::bottom>},
    {P::Armour, e::Mantlet, P::Unknown, set<&Armour::mantlet>},
    {P::Armour, e::FrontSpaced, P::Unknown, set<&Armour::frontSpaced>},
    {P::Armour, e::SideSpaced, P::Unknown, set<&Armour::sideSpaced>},
    {P::Armour, e::RearSpaced, P::Unknown, set<&Armour::rearSpaced>},
    {P::Armour, e::Front, P::Unknown, set<&Armour::upperFront, &Armour::lowerFront>},
    {P::Armour, e::UpperFront, P::Unknown, set<&Armour::upperFront>},
    {P::Armour, older::FrontUpper, P::Unknown, set<&Armour::upperFront>},
    {P::Armour, e::LowerFront, P::Unknown, set<&Armour::lowerFront>},
    {P::Armour, older::FrontLower, P::Unknown, set<&Armour::lowerFront>},
    {P::Armour, e::Rear, P::Unknown, set<&Armour::upperRear, &Armour::lowerRear>},
    {P::Armour, e::UpperRear, P::Unknown, set<&Armour::upperRear>},
    {P::Armour, older::RearUpper, P::Unknown, set<&Armour::upperRear>},
    {P::Armour, e::LowerRear, P::Unknown, set<&Armour::lowerRear>},
    {P::Armour, older::RearLower, P::Unknown, set<&Armour::lowerRear>},
    {P::Armour, e::Side, P::Unknown,
     set<&Armour::upperLeft, &Armour::upperRight, &Armour::lowerLeft, &Armour::lowerRight>},
    {P::Armour, e::UpperSide, P::Unknown, set<&Armour::upperLeft, &Armour::upperRight>},
    {P::Armour, older::SideUpper, P::Unknown, set<&Armour::upperLeft, &Armour::upperRight>},
    {P::Armour, e::LowerSide, P::Unknown, set<&Armour::lowerLeft, &Armour::lowerRight>},
    {P::Armour, older::SideLower, P::Unknown, set<&Armour::lowerLeft, &Armour::lowerRight>},
    {P::Armour, e::UpperLeft, P::Unknown, set<&Armour::upperLeft>},
    {P::Armour, older::LeftUpper, P::Unknown, set<&Armour::upperLeft>},
    {P::Armour, e::LowerLeft, P::Unknown, set<&Armour::lowerLeft>},
    {P::Armour, older::LeftLower, P::Unknown, set<&Armour::lowerLeft>},
    {P::Armour, e::UpperRight, P::Unknown, set<&Armour::upperRight>},
    {P::Armour, older::RightUpper, P::Unknown, set<&Armour::upperRight>},
    {P::Armour, e::LowerRight, P::Unknown, set<&Armour::lowerRight>},
    {P::Armour, older::RightLower, P::Unknown, set<&Armour::lowerRight>},

    // An infantryman's ammunition has a flavour, a crew man's has none.
    {P::InfantrymanAmmo, e::Flavour, P::Unknown, set<&Ammo::flavour>},

    {P::HeavyWeapon, e::Weapon, P::HeavyWeaponWeapon, append<&Heavy::weapons, &Reading::weapon>},
    {P::HeavyWeaponWeapon, e::Type, P::Unknown, set<&Mounted::type>},
    {P::HeavyWeapon, e::Ammo, P::HeavyWeaponAmmo, append<&Heavy::ammo, &Reading::ammo>},
    {P::HeavyWeaponAmmo, e::For, P::Unknown, set<&Ammo::weaponType>},
    {P::HeavyWeaponAmmo, e::Rounds, P::Unknown, set<&Ammo::rounds>},
    {P::HeavyWeaponAmmo, e::Flavour, P::Unknown, set<&Ammo::flavour>},
    {P::HeavyWeapon, e::ImageViewBase, P::Unknown, setImage<&Heavy::baseImage>},
    {P::HeavyWeapon, e::ImageViewGun, P::Unknown, setImage<&Heavy::gunImage>},
    {P::HeavyWeapon, e::ImageProfile, P::Unknown, setImage<&Heavy::profileImage>},
    {P::HeavyWeapon, e::NightVision, P::Unknown, set<&Heavy::nightVision>},
    {P::HeavyWeapon, e::AA, P::Unknown, set<&Heavy::antiAircraft>},
    {P::HeavyWeapon, e::Mass, P::Unknown, set<&Heavy::mass>},
    {P::HeavyWeapon, e::TrailLength, P::Unknown, set<&Heavy::trailLength>},
    {P::HeavyWeapon, e::Moveable, P::Unknown, set<&Heavy::moveable>},

    {P::AircraftDescription, e::Image, P::Unknown, setImage<&Aircraft::image>},
    {P::AircraftDescription, e::Sound, P::Unknown, set<&Aircraft::sound>},
    {P::AircraftDescription, e::Speed, P::Unknown, set<&Aircraft::speed>},
    {P::AircraftDescription, e::EjectsFlares, P::Unknown, set<&Aircraft::ejectsFlares>},
    {P::Armament, e::Weapon, P::AircraftWeapon, append<&Aircraft::weapons, &Reading::weapon>},
    {P::AircraftWeapon, e::Type, P::Unknown, set<&Mounted::type>},
    {P::AircraftWeapon, e::Mount, P::Unknown, set<&Mounted::mount>},
    {P::AircraftWeapon, e::OffsetX, P::Unknown, set<&Mounted::offsetX>},
    {P::AircraftWeapon, e::OffsetY, P::Unknown, set<&Mounted::offsetY>},
    {P::AircraftWeapon, e::OffsetAngle, P::Unknown, setNormalisedAngle},
    {P::AircraftWeapon, older::OffsetAngleCamel, P::Unknown, setNormalisedAngle},
    {P::Armament, e::Ammo, P::AircraftAmmo, append<&Aircraft::ammo, &Reading::ammo>},
    {P::AircraftAmmo, e::For, P::Unknown, set<&Ammo::weaponType>},
    {P::AircraftAmmo, e::Flavour, P::Unknown, set<&Ammo::flavour>},
    {P::AircraftAmmo, e::Rounds, P::Unknown, set<&Ammo::rounds>},
    {P::RotorBlades, e::Image, P::Unknown, setImage<&RotorBladesRecord::image>},
    {P::RotorBlades, e::Clockwise, P::Unknown, set<&RotorBladesRecord::clockwise>},
    {P::RotorBlades, e::Diameter, P::Unknown, set<&RotorBladesRecord::diameter>},
    {P::RotorBlades, e::OffsetX, P::Unknown, set<&RotorBladesRecord::offsetX>},
    {P::RotorBlades, e::OffsetY, P::Unknown, set<&RotorBladesRecord::offsetY>},
});

/// The rules by place and element, in a table that one look finds most of them in.
class RuleIndex {
public:
    RuleIndex() {
        add(PlainRules);
        add(DescriptionRules(P::SquadDescription));
        add(DescriptionRules(P::AircraftDescription));
        add(ManRules(P::Infantryman, P::InfantrymanWeapon, P::InfantrymanAmmo));
        add(ManRules(P::CrewMan, P::CrewManWeapon, P::CrewManAmmo));
        add(ArmedComponentRules(P::Turret));
        add(ArmedComponentRules(P::FixedWeapon));
        add(TraverseRules<Component>(P::Turret));
        add(TraverseRules<Component>(P::FixedWeapon));
        add(TraverseRules<Heavy>(P::HeavyWeapon));
    }

    [[nodiscard]] const Rule* find(Place parent, std::string_view name) const {
        for (std::size_t slot = slotOf(parent, name);; slot = (slot + 1) % Slots) {
            const Rule& rule = rules_[slot];
            if (rule.element.empty()) {
                return nullptr;
            }
            if (rule.parent == parent && rule.element == name) {
                return &rule;
            }
        }
    }

private:
    static constexpr std::size_t Slots = 1024;

    static std::size_t slotOf(Place parent, std::string_view name) {
        const std::size_t first = static_cast<unsigned char>(name.empty() ? '\0' : name.front());
        const std::size_t last = static_cast<unsigned char>(name.empty() ? '\0' : name.back());
        const std::size_t middle = static_cast<unsigned char>(name.empty() ? '\0' : name[name.size() / 2]);
        const std::size_t hash =
            static_cast<std::size_t>(parent) * 131 + name.size() * 31 + first * 7 + last * 61 + middle * 17;
        return hash % Slots;
    }

    template <typename Rules>
    void add(const Rules& rules) {
        for (const Rule& rule : rules) {
            std::size_t slot = slotOf(rule.parent, rule.element);
            while (!rules_[slot].element.empty()) {
                slot = (slot + 1) % Slots;
            }
            rules_[slot] = rule;
        }
    }

    std::array<Rule, Slots> rules_{};
};

const RuleIndex& ruleIndex() {
    static const RuleIndex index;
    return index;
}

// These begin a unit wherever they stand.
constexpr Rule SquadRule = {P::Unknown, e::Squad, P::Squad, nullptr};
constexpr Rule AircraftRule = {P::Unknown, e::Aircraft, P::Aircraft, createAircraft};

} // namespace

const Rule* findRule(Place parent, std::string_view element) {
    if (element == e::Squad) {
        return &SquadRule;
    }
    if (element == e::Aircraft) {
        return &AircraftRule;
    }
    return parent == Place::Unknown ? nullptr : ruleIndex().find(parent, element);
}

void report(Reading& reading, std::string_view line) {
    if (reading.diagnostics.size() < MaxDiagnostics) {
        reading.diagnostics.emplace_back(line);
    }
}

void reportLeftOut(Reading& reading, std::string_view what) {
    if (reading.trace != nullptr) {
        reading.trace->noteLeftOut(what);
    }
    if (reading.diagnostics.size() >= MaxDiagnostics || reading.node == nullptr) {
        return;
    }
    const std::size_t line = lineOfOffset(reading.fileContent, reading.tree.offsetOf(reading.node->name));
    report(reading, "ERROR: " + reading.record.fileName.str() + ": line " + std::to_string(line) + ": " +
                        std::string(what) + ": left out");
}

} // namespace varrocade::unit_rules
