#include "data/reading/unit_rules.h"

#include "data/reading/unit_rule_actions.h"
#include "data/unit/elements.h"
#include "data/unit_fields.h"

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

using Action = Rule::Action;

/// An element that sets one field, by the field's own name or by another.
template <const auto& F>
constexpr Rule rule(P in, std::string_view element, Action action = set<Reading, F>) {
    return {in, element, P::Unknown, action, tag_rules::FieldList<F>, F.element};
}
template <const auto& F>
constexpr Rule rule(P in, Action action = set<Reading, F>) {
    return {in, F.element, P::Unknown, action, tag_rules::FieldList<F>};
}
/// An element that sets several fields at once.
template <const auto&... Fields>
constexpr Rule setAll(P in, std::string_view element, std::string_view today = {}) {
    return {in, element, P::Unknown, set<Reading, Fields...>, tag_rules::FieldList<Fields...>, today};
}

constexpr auto DescriptionRules = [](P in) {
    return std::to_array<Rule>({
        rule<field::Type>(in),
        rule<field::LongName>(in),
        rule<field::ShortName>(in),
        rule<field::Comment>(in),
        rule<field::Nationality>(in),
        rule<field::VoiceLanguage>(in),
        rule<field::Quality>(in, setQuality),
        rule<field::UniformName>(in, setUniformName),
        rule<field::UniformGame>(in, setUniformImage<field::UniformGame>),
        rule<field::UniformProfile>(in, setUniformImage<field::UniformProfile>),
        rule<field::UniformRanks>(in, setUniformImage<field::UniformRanks>),
    });
};

constexpr auto ManRules = [](P in, P weapon, P ammo) {
    return std::to_array<Rule>({
        rule<field::Job>(in),
        rule<field::ManLanguage>(in),
        rule<field::BodyArmour>(in),
        rule<field::ManNightVision>(in),
        {in, e::Weapon, weapon, addPersonalWeapon},
        rule<field::PersonalWeapons>(weapon, setPersonalWeapon),
        {in, e::Ammo, ammo, append<&Man::ammo, &Reading::ammo>},
        rule<field::AmmoFor>(ammo),
        rule<field::Rounds>(ammo),
    });
};

template <const auto& Left, const auto& Right>
constexpr auto TraverseRules = [](P in) {
    return std::to_array<Rule>({
        rule<Left>(in, setLimit<Left>),
        rule<Left>(in, older::AngleLeft, setLimit<Left>),
        rule<Right>(in, setLimit<Right>),
        rule<Right>(in, older::AngleRight, setLimit<Right>),
        rule<Left>(in, older::MinAngle, setLimitFromNegative<Left>),
        rule<Left>(in, older::MinAngleCamel, setLimitFromNegative<Left>),
        rule<Right>(in, older::MaxAngle, setLimitFromPositive<Right>),
        rule<Right>(in, older::MaxAngleCamel, setLimitFromPositive<Right>),
    });
};

/// What turrets and fixed weapons have in common.
constexpr auto ArmedComponentRules = [](P in) {
    return std::to_array<Rule>({
        rule<field::OffsetX>(in),
        rule<field::OffsetY>(in),
        rule<field::ViewImage>(in),
        rule<field::DestroyedImage>(in),
        rule<field::RotateTime>(in),
        rule<field::OffsetAngle>(in),
        rule<field::OffsetAngle>(in, older::AngleOffset),
        rule<field::OffsetAngle>(in, older::OffsetAngleCamel),
        rule<field::NightVision>(in),
        rule<field::AntiAircraft>(in),
        {in, e::Weapon, P::ComponentWeapon, append<&Component::weapons, &Reading::weapon>},
        {in, e::Ammo, P::ComponentAmmo, append<&Component::ammo, &Reading::ammo>},
        {in, e::Man, P::CrewMan, addMan<&Component::crew>},
        {in, e::Armour, P::Armour, nullptr},
    });
};

constexpr auto PlainRules = std::to_array<Rule>({
    // These begin a unit wherever they stand.
    {P::Unknown, e::Squad, P::Squad, nullptr},
    {P::Unknown, e::Aircraft, P::Aircraft, createAircraft},

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
    rule<field::Month>(P::AvailabilityData),
    rule<field::Year>(P::AvailabilityData),
    rule<field::NumberOfUnits>(P::AvailabilityData),

    {P::Vehicle, e::Attributes, P::Attributes, nullptr},
    {P::Vehicle, e::Drive, P::Drive, nullptr},
    {P::Vehicle, e::Hull, P::Hull, addComponent<ComponentKind::Hull>},
    {P::Vehicle, e::Superstructure, P::Superstructure, addComponent<ComponentKind::Superstructure>},
    {P::Vehicle, e::Turret, P::Turret, addComponent<ComponentKind::Turret>},
    {P::Vehicle, e::FixedWeapon, P::FixedWeapon, addComponent<ComponentKind::FixedWeapon>},

    rule<field::ProfileImage>(P::Attributes),
    rule<field::Weight>(P::Attributes),
    rule<field::CanMountInfantry>(P::Attributes),
    rule<field::Amphibious>(P::Attributes),

    {P::Drive, e::Engine, P::Engine, setFlatEngine, tag_rules::FieldList<field::EngineName>},
    {P::Drive, e::Gears, P::Gears, nullptr},
    rule<field::Steering>(P::Drive),
    rule<field::SmokeScreen>(P::Drive),
    {P::Drive, e::ExhaustPipe, P::ExhaustPipe, append<&Vehicle::exhaustPipes, &Reading::exhaustPipe>},
    rule<field::Reliability>(P::Drive),
    rule<field::MountOfEngine>(P::Drive, setEngineMount),
    rule<field::IdleRevolutions>(P::Drive),
    rule<field::RevolutionLimit>(P::Drive),
    rule<field::EngineName>(P::Engine),
    rule<field::Horsepower>(P::Engine),
    rule<field::Reliability>(P::Engine),
    rule<field::MountOfEngine>(P::Engine, setEngineMount),
    rule<field::IdleRevolutions>(P::Engine),
    rule<field::RevolutionLimit>(P::Engine),
    rule<field::ForwardGears>(P::Gears),
    rule<field::ReverseGears>(P::Gears),
    rule<field::ExhaustOffsetX>(P::ExhaustPipe),
    rule<field::ExhaustOffsetY>(P::ExhaustPipe),
    rule<field::ExhaustAngle>(P::ExhaustPipe),
    rule<field::ExhaustAngle>(P::ExhaustPipe, older::HorizontalAngle),
    rule<field::ExhaustVerticalAngle>(P::ExhaustPipe),

    rule<field::Width>(P::Hull),
    rule<field::Length>(P::Hull),
    rule<field::Height>(P::Hull),
    rule<field::ViewImage>(P::Hull),
    rule<field::DestroyedImage>(P::Hull),
    {P::Hull, e::Man, P::CrewMan, addMan<&Component::crew>},
    {P::Hull, e::Armour, P::Armour, nullptr},
    {P::Hull, e::SmokeDischarger, P::SmokeDischarger,
     append<&Component::smokeDischargers, &Reading::discharger>},

    rule<field::Width>(P::Superstructure),
    rule<field::Length>(P::Superstructure),
    rule<field::Height>(P::Superstructure),
    rule<field::OffsetX>(P::Superstructure),
    rule<field::OffsetY>(P::Superstructure),
    {P::Superstructure, e::Armour, P::Armour, nullptr},
    {P::Superstructure, e::SmokeDischarger, P::SmokeDischarger,
     append<&Component::smokeDischargers, &Reading::discharger>},

    rule<field::Diameter>(P::Turret),
    rule<field::Height>(P::Turret),
    {P::Turret, e::SmokeDischarger, P::SmokeDischarger,
     append<&Component::smokeDischargers, &Reading::discharger>},
    rule<field::OffsetZ>(P::FixedWeapon),

    rule<field::MountedType>(P::ComponentWeapon),
    rule<field::Mount>(P::ComponentWeapon),
    rule<field::MountedOffsetX>(P::ComponentWeapon),
    rule<field::MountedOffsetY>(P::ComponentWeapon),
    rule<field::MountedOffsetAngle>(P::ComponentWeapon),
    rule<field::AmmoFor>(P::ComponentAmmo),
    rule<field::Flavour>(P::ComponentAmmo),
    rule<field::Rounds>(P::ComponentAmmo),

    rule<field::DischargerOffsetX>(P::SmokeDischarger),
    rule<field::DischargerOffsetY>(P::SmokeDischarger),
    rule<field::DischargerAngle>(P::SmokeDischarger,
                                 setDirection<field::DischargerAngle, &Discharger::angleGiven>),
    rule<field::DischargerElevation>(P::SmokeDischarger,
                                     setDirection<field::DischargerElevation, &Discharger::elevationGiven>),
    rule<field::DischargerSpeed>(P::SmokeDischarger, setDirection<field::DischargerSpeed>),
    rule<field::DischargerAmmo>(P::SmokeDischarger),
    rule<field::DischargerReload>(P::SmokeDischarger),

    rule<field::Top>(P::Armour),
    rule<field::Bottom>(P::Armour),
    rule<field::Mantlet>(P::Armour),
    rule<field::FrontSpaced>(P::Armour),
    rule<field::SideSpaced>(P::Armour),
    rule<field::RearSpaced>(P::Armour),
    setAll<field::UpperFront, field::LowerFront>(P::Armour, e::Front),
    rule<field::UpperFront>(P::Armour),
    rule<field::UpperFront>(P::Armour, older::FrontUpper),
    rule<field::LowerFront>(P::Armour),
    rule<field::LowerFront>(P::Armour, older::FrontLower),
    setAll<field::UpperRear, field::LowerRear>(P::Armour, e::Rear),
    rule<field::UpperRear>(P::Armour),
    rule<field::UpperRear>(P::Armour, older::RearUpper),
    rule<field::LowerRear>(P::Armour),
    rule<field::LowerRear>(P::Armour, older::RearLower),
    setAll<field::UpperLeft, field::UpperRight, field::LowerLeft, field::LowerRight>(P::Armour, e::Side),
    setAll<field::UpperLeft, field::UpperRight>(P::Armour, e::UpperSide),
    setAll<field::UpperLeft, field::UpperRight>(P::Armour, older::SideUpper, e::UpperSide),
    setAll<field::LowerLeft, field::LowerRight>(P::Armour, e::LowerSide),
    setAll<field::LowerLeft, field::LowerRight>(P::Armour, older::SideLower, e::LowerSide),
    rule<field::UpperLeft>(P::Armour),
    rule<field::UpperLeft>(P::Armour, older::LeftUpper),
    rule<field::LowerLeft>(P::Armour),
    rule<field::LowerLeft>(P::Armour, older::LeftLower),
    rule<field::UpperRight>(P::Armour),
    rule<field::UpperRight>(P::Armour, older::RightUpper),
    rule<field::LowerRight>(P::Armour),
    rule<field::LowerRight>(P::Armour, older::RightLower),

    // An infantryman's ammunition has a flavour, a crew man's has none.
    rule<field::Flavour>(P::InfantrymanAmmo),

    {P::HeavyWeapon, e::Weapon, P::HeavyWeaponWeapon, append<&Heavy::weapons, &Reading::weapon>},
    rule<field::MountedType>(P::HeavyWeaponWeapon),
    {P::HeavyWeapon, e::Ammo, P::HeavyWeaponAmmo, append<&Heavy::ammo, &Reading::ammo>},
    rule<field::AmmoFor>(P::HeavyWeaponAmmo),
    rule<field::Rounds>(P::HeavyWeaponAmmo),
    rule<field::Flavour>(P::HeavyWeaponAmmo),
    rule<field::BaseImage>(P::HeavyWeapon),
    rule<field::GunImage>(P::HeavyWeapon),
    rule<field::HeavyProfileImage>(P::HeavyWeapon),
    rule<field::HeavyNightVision>(P::HeavyWeapon),
    rule<field::HeavyAntiAircraft>(P::HeavyWeapon),
    rule<field::Mass>(P::HeavyWeapon),
    rule<field::TrailLength>(P::HeavyWeapon),
    rule<field::Moveable>(P::HeavyWeapon),

    rule<field::AircraftImage>(P::AircraftDescription),
    rule<field::AircraftSound>(P::AircraftDescription),
    rule<field::AircraftSpeed>(P::AircraftDescription),
    rule<field::EjectsFlares>(P::AircraftDescription),
    {P::Armament, e::Weapon, P::AircraftWeapon, append<&Aircraft::weapons, &Reading::weapon>},
    rule<field::MountedType>(P::AircraftWeapon),
    rule<field::Mount>(P::AircraftWeapon),
    rule<field::MountedOffsetX>(P::AircraftWeapon),
    rule<field::MountedOffsetY>(P::AircraftWeapon),
    rule<field::MountedOffsetAngle>(P::AircraftWeapon, setNormalisedAngle),
    rule<field::MountedOffsetAngle>(P::AircraftWeapon, older::OffsetAngleCamel, setNormalisedAngle),
    {P::Armament, e::Ammo, P::AircraftAmmo, append<&Aircraft::ammo, &Reading::ammo>},
    rule<field::AmmoFor>(P::AircraftAmmo),
    rule<field::Flavour>(P::AircraftAmmo),
    rule<field::Rounds>(P::AircraftAmmo),
    rule<field::RotorImage>(P::RotorBlades),
    rule<field::Clockwise>(P::RotorBlades),
    rule<field::RotorDiameter>(P::RotorBlades),
    rule<field::RotorOffsetX>(P::RotorBlades),
    rule<field::RotorOffsetY>(P::RotorBlades),
});

tag_rules::RuleTable<Reading> makeTable() {
    tag_rules::RuleTable<Reading> table;
    table.add(PlainRules);
    table.add(DescriptionRules(P::SquadDescription));
    table.add(DescriptionRules(P::AircraftDescription));
    table.add(ManRules(P::Infantryman, P::InfantrymanWeapon, P::InfantrymanAmmo));
    table.add(ManRules(P::CrewMan, P::CrewManWeapon, P::CrewManAmmo));
    table.add(ArmedComponentRules(P::Turret));
    table.add(ArmedComponentRules(P::FixedWeapon));
    table.add(TraverseRules<field::RotateLeft, field::RotateRight>(P::Turret));
    table.add(TraverseRules<field::RotateLeft, field::RotateRight>(P::FixedWeapon));
    table.add(TraverseRules<field::HeavyRotateLeft, field::HeavyRotateRight>(P::HeavyWeapon));
    return table;
}

} // namespace

const tag_rules::RuleTable<Reading>& ruleTable() {
    static const tag_rules::RuleTable<Reading> table = makeTable();
    return table;
}

const ElementTable& elements() {
    static const ElementTable table(ruleTable());
    return table;
}

bool isElement(std::string_view name) {
    return ruleTable().knows(name);
}

} // namespace varrocade::unit_rules
