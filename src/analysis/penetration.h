#pragma once
// The editor's own estimate of what the game makes of the numbers in a weapon file: how fast a projectile
// still is at a range, and how much armour it goes through there.

#include "weapons/weapon_record.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// Projectiles that lose their velocity alike, in the order in which the calculator shows them.
enum class DragClass : std::uint8_t { Ap, Apc, Apcbc, Apcnr, Apcr, Apds, Apfsds, Bullet };

struct DragClassRow {
    std::string_view name;
    double coefficient; ///< what the calculator begins with, see `velocityAt`
};

/// A row each class, in the order of `DragClass`.
std::span<const DragClassRow> dragClasses();
DragClass dragClassOf(AmmoFlavour flavour);
double defaultDrag(AmmoFlavour flavour);

/// The ranges of the calculator's rows, in metres.
inline constexpr std::array<int, 7> PenetrationRanges = {0, 100, 200, 300, 400, 500, 1000};

/// The angles that the calculator offers, in degrees from the vertical.
inline constexpr std::array<int, 16> OfferedAngles = {0,  5,  10, 15, 20, 25, 30, 35,
                                                      40, 45, 50, 55, 60, 65, 70, 75};

/// What the formulas take from a weapon and one of its ammunition types: millimetres, metres a second,
/// kilograms.
struct Projectile {
    AmmoFlavour flavour = AmmoFlavour::None;
    HeatEra era = HeatEra::Early;
    double calibre = 0.0;
    double muzzleVelocity = 0.0;
    double mass = 0.0;
    double highExplosive = 0.0;
};

Projectile projectileOf(const WeaponRecord& weapon, const AmmoTypeRecord& ammoType);

/// The velocity in m/s that is left at `range` metres: u * 2.71828^(-drag * range / 100000), so that `drag`
/// is the loss in percent over the first kilometre, while it is small. Never "not a number".
double velocityAt(const Projectile& projectile, double drag, double range);

/// Millimetres of upright armour that the projectile goes through when it strikes at `velocity` m/s. Never
/// "not a number": where the formulas have none, a projectile does not penetrate, and a charge has the least
/// effect.
double penetrationOf(const Projectile& projectile, double velocity);

/// What is left of the penetration of upright armour when the plate leans by `angle` degrees.
double angleFactor(double angle);

/// What a projectile still does at a range.
struct Impact {
    double velocity = 0.0;    ///< m/s
    double penetration = 0.0; ///< millimetres of the leaning plate
};

Impact impactAt(const Projectile& projectile, double drag, double range, double angle);

/// "0.6 mm" up to 1 mm, "128 mm" above, whatever the locale.
std::string penetrationText(double penetration);
/// "935 m/s"
std::string velocityText(double velocity);

/// A row of the calculator for people.
struct PenetrationRow {
    int range = 0;           ///< metres
    std::string penetration; ///< of the leaning plate, as `penetrationText`
    std::string velocity;    ///< as `velocityText`
};

/// The calculator's rows, one for each of `PenetrationRanges`, for a plate that leans by `angle` degrees.
std::array<PenetrationRow, PenetrationRanges.size()> penetrationRows(const Projectile& projectile,
                                                                     double drag, double angle);

/// Curves end at this range, in metres.
inline constexpr int CurveEnd = 3000;

/// The penetration of upright armour at every whole metre from 0 to `CurveEnd`.
using PenetrationCurve = std::vector<double>;

PenetrationCurve penetrationCurve(const Projectile& projectile, double drag);

/// The greatest range in whole metres up to which a projectile with this curve goes through a plate of
/// `thickness` millimetres that leans by `angle` degrees: its penetration there is not below the thickness.
/// Nothing when it fails at the muzzle already. Takes for granted that a curve which reaches the thickness at
/// the muzzle does not come back to it after falling below.
std::optional<int> rangeThrough(const PenetrationCurve& curve, double thickness, double angle);

} // namespace varrocade
