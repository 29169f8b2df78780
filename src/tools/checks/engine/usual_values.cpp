#include "tools/checks/engine/usual_values.h"

#include "data/each_field.h"
#include "data/unit/enumerations.h"
#include "weapons/ammo_words.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_kinds.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varrocade {

namespace {

/// Fewer values tell nothing of what is usual.
constexpr std::size_t LeastValues = 8;
/// A value is apart from the others beyond so many robust deviations of their logarithms, and beyond this
/// factor of the nearest of them: games hold a few extremes of each kind, which are no faults.
constexpr double Deviations = 6.0;
constexpr double BeyondOthers = 3.5;
/// The same where most values are alike, so that their spread tells nothing.
constexpr double BeyondAlike = 4.0;
/// Values that are nearly all alike spread by so much all the same.
constexpr double LeastSpread = 0.2;
/// Takes a median of deviations for a normal distribution's.
constexpr double OfNormal = 1.4826;

/// Horsepower a tonne that no vehicle leaves, however many of a kind are known.
constexpr double LeastPower = 1.5;
constexpr double GreatestPower = 60.0;

/// The value that would stand in this place if they were sorted.
double ranked(std::vector<double>& values, std::size_t place) {
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(place);
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

namespace figure {

constexpr UsualFigure Horsepower = figureOf(field::Horsepower);
constexpr UsualFigure PowerForWeight = {&field::Horsepower, "Power for the weight", "hp/t"};
constexpr UsualFigure IdleRevolutions = figureOf(field::IdleRevolutions);
constexpr UsualFigure RevolutionLimit = figureOf(field::RevolutionLimit);
constexpr UsualFigure ForwardGears = figureOf(field::ForwardGears);
constexpr UsualFigure RotateTime = figureOf(field::RotateTime);
constexpr UsualFigure Rounds = figureOf(field::Rounds);
constexpr UsualFigure Mass = figureOf(field::Mass);
constexpr UsualFigure TrailLength = figureOf(field::TrailLength);
constexpr UsualFigure Speed = figureOf(field::AircraftSpeed);

} // namespace figure

/// The kind of all vehicles together, for the types that few are of.
constexpr std::string_view AnyVehicle = "TYPE_VEHICLE";

std::string entryPath(std::string_view name, std::size_t index) {
    return std::string(name) + "[" + std::to_string(index + 1) + "].";
}

/// Calls `visit(figure, kind, value, pathOfEntry)` for each figure of a unit; the path is made on demand.
template <typename Visit>
class UnitFigures {
public:
    UnitFigures(const SquadRecord& unit, Visit& visit) : unit_(unit), visit_(visit) {}

    void run() {
        if (unit_.vehicle) {
            ofVehicle(*unit_.vehicle);
        }
        if (unit_.heavyWeapon) {
            const HeavyWeaponRecord& weapon = *unit_.heavyWeapon;
            const auto path = [&] { return std::string(elementOf(weapon.kind)) + "."; };
            visit_(figure::Mass, unit_.type.view(), weapon.mass, path);
            visit_(figure::TrailLength, unit_.type.view(), weapon.trailLength, path);
            ofAmmo(weapon.ammo, path);
        }
        if (unit_.aircraft) {
            const auto path = [] { return std::string(element::Aircraft) + "."; };
            visit_(figure::Speed, unit_.type.view(), unit_.aircraft->speed, path);
        }
        for (std::size_t i = 0; i < unit_.infantrymen.size(); ++i) {
            ofAmmo(unit_.infantrymen[i].ammo, [i] { return entryPath(element::Man, i); });
        }
    }

private:
    void ofVehicle(const VehicleRecord& vehicle) {
        const std::string_view type = unit_.type;
        const auto path = [] { return std::string(element::Vehicle) + "."; };
        visit_(figure::Horsepower, type, vehicle.horsepower, path);
        visit_(figure::IdleRevolutions, type, vehicle.idleRevolutions, path);
        visit_(figure::RevolutionLimit, type, vehicle.revolutionLimit, path);
        visit_(figure::ForwardGears, type, vehicle.forwardGears, path);
        if (vehicle.weight > 0) {
            const double power = vehicle.horsepower * 1000.0 / vehicle.weight;
            visit_(figure::PowerForWeight, type, power, path);
            visit_(figure::PowerForWeight, AnyVehicle, power, path);
        }
        std::array<std::size_t, 4> counts{};
        for (const ComponentRecord& part : vehicle.components) {
            const std::size_t number = counts.at(static_cast<std::size_t>(part.kind))++;
            const auto ofPart = [&] {
                return std::string(element::Vehicle) + "." + entryPath(elementOf(part.kind), number);
            };
            if (part.rotateTime > 0) {
                visit_(figure::RotateTime, type, part.rotateTime, ofPart);
            }
            ofAmmo(part.ammo, ofPart);
        }
    }

    template <typename Path>
    void ofAmmo(const std::vector<AmmoLoadRecord>& loads, Path path) {
        for (std::size_t i = 0; i < loads.size(); ++i) {
            // Rounds go with what they are for, whoever carries them.
            visit_(figure::Rounds, nameOf(typeOfWeaponName(loads[i].weaponType)), loads[i].rounds,
                   [&] { return path() + entryPath(element::Ammo, i); });
        }
    }

    const SquadRecord& unit_;
    Visit& visit_;
};

/// The same for a weapon. Kinds of ammunition are "FLAVOUR_HE WEAPON_CANNON".
template <typename Visit>
void visitFigures(const WeaponRecord& weapon, Visit& visit) {
    const Holder holder = holderOf(weapon.type);
    const std::string_view type = nameOf(weapon.type);
    const auto ofWeapon = [] { return std::string(); };
    for (const ComparedFigure& compared : figuresOfWeapons()) {
        if (compared.figure.field->isStoredBy(holder)) {
            visit(compared.figure, type, compared.value(weapon, {}), ofWeapon);
        }
    }
    std::string kind;
    for (std::size_t i = 0; i < weapon.ammoTypes.size(); ++i) {
        const AmmoTypeRecord& ammo = weapon.ammoTypes[i];
        kind.assign(nameOf(ammo.flavour)).append(" ").append(type);
        const auto ofAmmo = [i] { return entryPath(weapon_element::Ammo, i); };
        for (const ComparedFigure& compared : figuresOfAmmunition()) {
            if (compared.figure.field->isStoredBy(holderOf(ammo.flavour), holder)) {
                visit(compared.figure, kind, compared.value(weapon, ammo), ofAmmo);
            }
        }
    }
}

template <typename Visit>
void visitFigures(const SquadRecord& unit, Visit& visit) {
    UnitFigures<Visit>(unit, visit).run();
}

template <typename Record>
void sample(ValueSamples& samples, const Record& record, std::uint32_t owner) {
    auto take = [&](const UsualFigure& what, std::string_view kind, double value, const auto&) {
        if (value <= 0) {
            return;
        }
        auto found = samples.find(std::pair(&what, kind));
        if (found == samples.end()) {
            found = samples.emplace(std::pair(&what, std::string(kind)), std::vector<ValueSample>()).first;
        }
        found->second.push_back({static_cast<float>(value), owner});
    };
    visitFigures(record, take);
}

std::string wordsOfKind(std::string_view kind) {
    const std::size_t blank = kind.find(' ');
    if (blank != std::string_view::npos) {
        return flavourWord(kind.substr(0, blank)) + " of " + wordsOfKind(kind.substr(blank + 1));
    }
    return displayName(kind, kind.starts_with(WeaponPrefix) ? WeaponPrefix : "TYPE_");
}

/// `rangeOf` tells the range of a figure and a kind.
template <typename Record, typename RangeOf>
std::vector<UnusualValue> unusualValues(const Record& record, RangeOf rangeOf) {
    std::vector<UnusualValue> values;
    auto look = [&](const UsualFigure& what, std::string_view kind, double value, const auto& path) {
        const UsualValues::Range range = rangeOf(what, kind);
        if (value <= 0 || (value >= range.least && value <= range.greatest)) {
            return;
        }
        const bool isTold = std::any_of(values.begin(), values.end(), [&](const UnusualValue& other) {
            return other.figure->field == what.field && other.path.starts_with(path());
        });
        if (!isTold) {
            values.push_back({path() + std::string(what.field->element), &what, wordsOfKind(kind), value,
                              range.least, range.greatest});
        }
    };
    visitFigures(record, look);
    return values;
}

} // namespace

void addSamples(ValueSamples& samples, const SquadRecord& unit, std::uint32_t owner) {
    sample(samples, unit, owner);
}

void addSamples(ValueSamples& samples, const WeaponRecord& weapon, std::uint32_t owner) {
    sample(samples, weapon, owner);
}

void UsualValues::learn(const ValueSamples& samples) {
    for (const auto& [key, found] : samples) {
        if (found.size() < LeastValues) {
            continue;
        }
        std::vector<double> logarithms(found.size());
        std::transform(found.begin(), found.end(), logarithms.begin(),
                       [](const ValueSample& sample) { return std::log(double{sample.value}); });
        // The outermost value may be the faulty one: the next counts as the nearest other.
        const double nextToLeast = ranked(logarithms, 1);
        const double nextToGreatest = ranked(logarithms, logarithms.size() - 2);
        const double middle = ranked(logarithms, logarithms.size() / 2);
        for (double& value : logarithms) {
            value = std::abs(value - middle);
        }
        const double deviation = OfNormal * ranked(logarithms, logarithms.size() / 2);
        const double spread = Deviations * std::max(deviation, LeastSpread);
        const double margin = std::log(deviation > 0 ? BeyondOthers : BeyondAlike);
        const double least = std::min(middle - spread, nextToLeast - margin);
        const double greatest = std::max(middle + spread, nextToGreatest + margin);
        ranges_[key] = {.least = std::exp(least), .greatest = std::exp(greatest)};
    }
}

UsualValues::Range UsualValues::rangeOf(const UsualFigure& what, std::string_view kind) const {
    const auto found = ranges_.find(std::pair(&what, kind));
    Range range = found != ranges_.end() ? found->second : Range{.least = 0, .greatest = 1e30};
    if (&what == &figure::PowerForWeight) {
        range = {.least = std::max(range.least, LeastPower),
                 .greatest = std::min(range.greatest, GreatestPower)};
    }
    return range;
}

std::vector<std::uint32_t> UsualValues::ownersOfUnusual(const ValueSamples& samples) const {
    constexpr double rounding = 1e-6;
    std::vector<std::uint32_t> owners;
    for (const auto& [key, found] : samples) {
        const Range range = rangeOf(*key.first, key.second);
        const double least = range.least * (1 + rounding);
        const double greatest = range.greatest * (1 - rounding);
        for (const ValueSample& sample : found) {
            if (double{sample.value} < least || double{sample.value} > greatest) {
                owners.push_back(sample.owner);
            }
        }
    }
    return owners;
}

std::vector<UnusualValue> UsualValues::unusual(const SquadRecord& unit) const {
    return unusualValues(
        unit, [this](const UsualFigure& what, std::string_view kind) { return rangeOf(what, kind); });
}

std::vector<UnusualValue> UsualValues::unusual(const WeaponRecord& weapon) const {
    return unusualValues(
        weapon, [this](const UsualFigure& what, std::string_view kind) { return rangeOf(what, kind); });
}

} // namespace varrocade
