#include "analysis/penetration.h"

#include "data/format/numbers.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

// The coefficients to begin with. A body whose drag grows with the square of its velocity, which holds well
// enough between Mach 2 and 4, keeps u * e^(-r * rho * C * A / (2 * m)) of its velocity u over the range r,
// so that the coefficient is 100000 * rho * C * A / (2 * m), with the density of air rho = 1.225 kg/m^3, the
// cross section A in m^2 and the mass m in kg of what flies, and its drag number C. C is about 0.3 for a
// slender body with a pointed nose, 0.33 for an ordinary bullet, 0.35 for a stubby pointed one, 0.45 for an
// arrow with its fins, and 0.5 to 0.55 for a blunt nose or an arrowhead, as the public drag functions (G1,
// G7) have it at these speeds. Calibres and masses are the published ones; of sub-calibre shot, what is left
// after the muzzle:
//
//   AP      76.2 mm BR-350A, 6.3 kg, blunt: 24; 57 mm 6 pdr AP, 2.86 kg, blunt: 27
//   APC     50 mm PzGr 39, 2.06 kg, blunt cap: 29. Its published penetration, 67 mm at 100 m and 34 mm at
//           1500 m, gives 32 where it goes with velocity^1.5; larger calibres lose less
//   APCBC   75 mm KwK 42, 6.8 kg, slender: 12, that is 935 m/s at the muzzle and 880 m/s at 500 m; 76.2 mm
//           17 pdr, 7.7 kg, stubby: 13; 88 mm KwK 36, 10.2 kg, slender: 11
//   APCNR   28/20 mm sPzB 41, 0.124 kg, 20 mm, slender: 47; 40/30 mm Littlejohn, 0.45 kg, 30 mm, slender: 29;
//           75/55 mm PaK 41, 2.6 kg, 55 mm, slender: 17
//   APCR    50 mm PzGr 40, 0.925 kg, arrowhead: 65, that is 1180 m/s at the muzzle and 850 m/s at 500 m; 75
//   mm
//           PzGr 40/42, 4.75 kg, stubby: 20; 76.2 mm HVAP, 4.26 kg, stubby: 23. In between
//   APDS    76.2 mm 17 pdr, about 2.1 kg and 44 mm without its pot, slender: 13. Its published penetration,
//           208 mm at 500 and 161 mm at 2000 yards, gives 12. 105 mm L28, about 4.1 kg and 50 mm: 9
//   APFSDS  120 mm, arrow of 4.3 kg and 28 mm: 4, that is about 60 m/s lost in the first kilometre
//   Bullet  7.62 mm M80, 9.5 g: 102; 7.92 mm sS, 12.8 g, slender: 71; 12.7 mm M2, 46 g: 58; 14.5 mm BS, 64 g,
//           slender: 50. In between
constexpr auto DragClasses = std::to_array<DragClassRow>({
    {"AP", 25},
    {"APC", 28},
    {"APCBC", 12},
    {"APCNR", 30},
    {"APCR", 40},
    {"APDS", 11},
    {"APFSDS", 4},
    {"Bullet", 75},
});

enum class Effect : std::uint8_t { None, Kinetic, HighExplosive, ShapedCharge, SquashHead };

struct FlavourRow {
    AmmoFlavour flavour;
    DragClass dragClass;
    Effect effect;
    double factor; ///< of kinetic projectiles
};

constexpr double AboveAp = 1.1;

constexpr auto Flavours = std::to_array<FlavourRow>({
    {AmmoFlavour::Ball, DragClass::Bullet, Effect::Kinetic, 0.7},
    {AmmoFlavour::AtRifleAp, DragClass::Bullet, Effect::Kinetic, 1.5},
    {AmmoFlavour::AtRifleHe, DragClass::Bullet, Effect::HighExplosive, 0},
    {AmmoFlavour::RpgHeat, DragClass::Bullet, Effect::ShapedCharge, 0},
    {AmmoFlavour::He, DragClass::Ap, Effect::HighExplosive, 0},
    {AmmoFlavour::Heat, DragClass::Ap, Effect::ShapedCharge, 0},
    {AmmoFlavour::Ap, DragClass::Ap, Effect::Kinetic, 1.0},
    {AmmoFlavour::Hesh, DragClass::Ap, Effect::SquashHead, 0},
    {AmmoFlavour::Apc, DragClass::Apc, Effect::Kinetic, AboveAp},
    {AmmoFlavour::Apcbc, DragClass::Apcbc, Effect::Kinetic, AboveAp},
    {AmmoFlavour::Apfsds, DragClass::Apfsds, Effect::Kinetic, AboveAp},
    {AmmoFlavour::Apcr, DragClass::Apcr, Effect::Kinetic, AboveAp},
    {AmmoFlavour::Apcnr, DragClass::Apcnr, Effect::Kinetic, AboveAp},
    {AmmoFlavour::Apds, DragClass::Apds, Effect::Kinetic, AboveAp},
    {AmmoFlavour::Atgm, DragClass::Ap, Effect::ShapedCharge, 0},
    {AmmoFlavour::Heatfs, DragClass::Ap, Effect::ShapedCharge, 0},
    {AmmoFlavour::RocketHe, DragClass::Bullet, Effect::HighExplosive, 0},
});

constexpr FlavourRow OtherFlavour = {AmmoFlavour::None, DragClass::Bullet, Effect::None, 0};

const FlavourRow& rowOf(AmmoFlavour flavour) {
    const auto row = std::find_if(Flavours.begin(), Flavours.end(), [flavour](const FlavourRow& candidate) {
        return candidate.flavour == flavour;
    });
    return row == Flavours.end() ? OtherFlavour : *row;
}

/// In calibres, by HEAT era.
constexpr std::array<double, 6> ShapedChargeFactors = {1.3, 1.7, 3.0, 4.0, 5.0, 6.5};

double shapedChargePenetration(const Projectile& projectile) {
    const auto era = static_cast<std::size_t>(projectile.era);
    return projectile.calibre *
           (era < ShapedChargeFactors.size() ? ShapedChargeFactors[era] : ShapedChargeFactors.front());
}

/// The design's own calibration. Left to right, as it is written down: the last digit depends on the order.
double kineticPenetration(const Projectile& projectile, double velocity, double factor) {
    const double penetration = std::pow(velocity, 1.5) * std::pow(projectile.mass, 0.04632095992565155) *
                               projectile.calibre * 0.00005106895 * 1.155 * factor;
    // A negative velocity or mass, which only a slip of the pen puts into a file, has no power.
    return std::isnan(penetration) ? 0.0 : penetration;
}

double highExplosivePenetration(double filler) {
    constexpr double least = 0.1;
    // A negative filler has no root. It is as good as none, and the comparison fails for "not a number" too.
    const double penetration = 25 * std::sqrt(filler) - 2;
    return penetration > least ? penetration : least;
}

} // namespace

std::span<const DragClassRow> dragClasses() {
    return DragClasses;
}

DragClass dragClassOf(AmmoFlavour flavour) {
    return rowOf(flavour).dragClass;
}

double defaultDrag(AmmoFlavour flavour) {
    return DragClasses[static_cast<std::size_t>(dragClassOf(flavour))].coefficient;
}

Projectile projectileOf(const WeaponRecord& weapon, const AmmoTypeRecord& ammoType) {
    return {
        .flavour = ammoType.flavour,
        .era = ammoType.era,
        .calibre = static_cast<double>(weapon.calibre),
        .muzzleVelocity = static_cast<double>(ammoType.speed),
        .mass = static_cast<double>(ammoType.mass),
        .highExplosive = static_cast<double>(ammoType.highExplosive),
    };
}

double velocityAt(const Projectile& projectile, double drag, double range) {
    if (projectile.muzzleVelocity == 0) {
        // An absurd negative drag would make it 0 times infinity.
        return 0.0;
    }
    // Not e: the formula has these six digits.
    constexpr double base = 2.71828;
    return projectile.muzzleVelocity * std::pow(base, -drag * range / 100000);
}

double penetrationOf(const Projectile& projectile, double velocity) {
    const FlavourRow& row = rowOf(projectile.flavour);
    switch (row.effect) {
    case Effect::Kinetic:
        return kineticPenetration(projectile, velocity, row.factor);
    case Effect::HighExplosive:
        return highExplosivePenetration(projectile.highExplosive);
    case Effect::ShapedCharge:
        return shapedChargePenetration(projectile);
    case Effect::SquashHead:
        return projectile.calibre * 1.5;
    case Effect::None:
        break;
    }
    return 0.0;
}

double angleFactor(double angle) {
    constexpr double degreesOfRadian = 57.296;
    return std::cos(angle / degreesOfRadian);
}

Impact impactAt(const Projectile& projectile, double drag, double range, double angle) {
    const double velocity = velocityAt(projectile, drag, range);
    return {.velocity = velocity, .penetration = penetrationOf(projectile, velocity) * angleFactor(angle)};
}

std::string penetrationText(double penetration) {
    std::string text;
    appendFixed(text, penetration, penetration <= 1.0 ? 1 : 0);
    text += " mm";
    return text;
}

std::string velocityText(double velocity) {
    std::string text;
    appendFixed(text, velocity, 0);
    text += " m/s";
    return text;
}

std::array<PenetrationRow, PenetrationRanges.size()> penetrationRows(const Projectile& projectile,
                                                                     double drag, double angle) {
    std::array<PenetrationRow, PenetrationRanges.size()> rows;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const int range = PenetrationRanges[row];
        const Impact impact = impactAt(projectile, drag, range, angle);
        rows[row] = {.range = range,
                     .penetration = penetrationText(impact.penetration),
                     .velocity = velocityText(impact.velocity)};
    }
    return rows;
}

PenetrationCurve penetrationCurve(const Projectile& projectile, double drag) {
    PenetrationCurve curve(CurveEnd + 1);
    for (std::size_t metre = 0; metre < curve.size(); ++metre) {
        curve[metre] = penetrationOf(projectile, velocityAt(projectile, drag, static_cast<double>(metre)));
    }
    return curve;
}

std::optional<int> rangeThrough(const PenetrationCurve& curve, double thickness, double angle) {
    const double factor = angleFactor(angle);
    const auto stopped =
        std::partition_point(curve.begin(), curve.end(), [thickness, factor](double penetration) {
            return penetration * factor >= thickness;
        });
    if (stopped == curve.begin()) {
        return std::nullopt;
    }
    return static_cast<int>(stopped - curve.begin()) - 1;
}

} // namespace varrocade
