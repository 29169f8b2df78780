#include "data/unit/unit_rules.h"

#include "data/unit/elements.h"
#include "data/unit/unit_rule_actions.h"

#include <array>
#include <cstdint>
#include <vector>

namespace varrocade::unit_rules {

namespace {

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
        {in, e::Weapon, weapon, addPersonalWeapon},
        {weapon, e::Type, P::Unknown, setPersonalWeapon},
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
        slots_.fill(Free);
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
            if (slots_[slot] == Free) {
                return nullptr;
            }
            const Rule& rule = rules_[slots_[slot]];
            if (rule.parent == parent && rule.element == name) {
                return &rule;
            }
        }
    }

private:
    static constexpr std::size_t Slots = 1024;
    static constexpr std::uint16_t Free = UINT16_MAX;

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
            while (slots_[slot] != Free) {
                slot = (slot + 1) % Slots;
            }
            slots_[slot] = static_cast<std::uint16_t>(rules_.size());
            rules_.push_back(rule);
        }
    }

    std::vector<Rule> rules_;
    std::array<std::uint16_t, Slots> slots_;
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

void reportLeftOut(Reading& reading, std::string_view what) {
    if (reading.trace != nullptr) {
        reading.trace->noteLeftOut(what);
    }
    if (reading.findings != nullptr && reading.node != nullptr) {
        reading.findings->addLeftOut(*reading.node, what);
    }
}

} // namespace varrocade::unit_rules
