#include "analysis/penetration.h"
#include "test_support.h"
#include "weapons/weapon_names.h"

#include <array>
#include <clocale>
#include <cmath>
#include <limits>
#include <random>
#include <utility>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// The digits that the order of the factors may cost.
constexpr double Digits = 1e-12;

void expectAbout(double value, double expected, const std::string& what) {
    EXPECT_NEAR(value, expected, std::abs(expected) * Digits) << what;
}

/// 900^1.5 is 27000 and 1^0.0463... is 1, so that 27000 * 100 * 0.00005106895 * 1.155 remains: 137.886165
/// * 1.155.
constexpr double RoundPenetration = 159.258520575;

Projectile roundProjectile(AmmoFlavour flavour) {
    return {.flavour = flavour, .calibre = 100, .muzzleVelocity = 900, .mass = 1};
}

Projectile panther() {
    return {.flavour = AmmoFlavour::Apcbc, .calibre = 75, .muzzleVelocity = 935, .mass = 6.8};
}

} // namespace

TEST(Penetration, LosesVelocityOverRange) {
    const Projectile shell = panther();
    EXPECT_EQ(velocityAt(shell, 12, 0), 935) << "at the muzzle";
    EXPECT_EQ(velocityAt(shell, 1e300, 0), 935) << "at the muzzle, whatever the drag";
    EXPECT_EQ(velocityAt(shell, 0, 1000), 935) << "without drag";
    // 935 * 2.71828^-0.06
    expectAbout(velocityAt(shell, 12, 500), 880.549874439527809, "with the drag to begin with");
    EXPECT_EQ(velocityAt(shell, defaultDrag(shell.flavour), 500), velocityAt(shell, 12, 500));
    // 100000 * 2.71828^-10; with the full e it would be 4.539993.
    expectAbout(velocityAt({.muzzleVelocity = 100000}, 1000, 1000), 4.54002351473734563,
                "with a base of six digits");
    EXPECT_GT(velocityAt(shell, -12, 500), 935) << "a negative drag drives";
    EXPECT_EQ(velocityAt(shell, 1e308, 1000), 0);
    EXPECT_EQ(velocityAt({.muzzleVelocity = 0}, -1e308, 1000), 0) << "0 times infinity";
    for (const DragClassRow& row : dragClasses()) {
        const double left = velocityAt({.muzzleVelocity = 1000}, row.coefficient, 1000);
        EXPECT_TRUE(left > 400 && left < 970) << row.name;
    }
}

TEST(Penetration, OfEveryFlavour) {
    const auto rowOf = [](AmmoFlavour flavour) {
        Projectile projectile = roundProjectile(flavour);
        projectile.highExplosive = 0.64;
        projectile.era = HeatEra::ColdWarEarly;
        const DragClassRow& drag = dragClasses()[static_cast<std::size_t>(dragClassOf(flavour))];
        EXPECT_EQ(defaultDrag(flavour), drag.coefficient);
        return std::string(nameOf(flavour)) + " \"" + std::string(displayNameOf(flavour)) + "\" " +
               (isHeat(flavour) ? "era " : "") + std::string(drag.name) + " " +
               std::to_string(penetrationOf(projectile, 900));
    };
    const std::string unknown = rowOf(AmmoFlavour::None);
    std::string rows = "0 " + unknown;
    for (int value = 1; value < 256; ++value) {
        const auto flavour = static_cast<AmmoFlavour>(value);
        const std::string row = rowOf(flavour);
        rows += row == unknown ? "" : "\n" + std::to_string(value) + " " + row;
        // Files name no fragments.
        EXPECT_EQ(flavourOf(nameOf(flavour)), value < 16 || row == unknown ? AmmoFlavour::None : flavour);
    }
    EXPECT_EQ(rows, textCases("flavours.txt").front().text);
}

TEST(Penetration, OfKineticProjectiles) {
    // 2^0.04632095992565155 is 1.032628241283574165, by which the round figure grows.
    Projectile projectile = roundProjectile(AmmoFlavour::Ap);
    projectile.mass = 2;
    expectAbout(penetrationOf(projectile, 900), 164.454846010786162, "the mass");
    // 225^1.5 is 3375, an eighth of 27000.
    expectAbout(penetrationOf(roundProjectile(AmmoFlavour::Ap), 225), RoundPenetration / 8, "the velocity");
    // 880.5498744395278^1.5 * 6.8^0.04632095992565155 * 75 * 0.00005106895 * 1.155 * 1.1
    expectAbout(impactAt(panther(), 12, 500, 0).penetration, 138.958914423851, "all of it");
}

TEST(Penetration, OfCharges) {
    using Case = std::pair<double, double>;
    for (const auto& [filler, penetration] :
         {Case{0, 0.1}, Case{-1, 0.1}, Case{-1e-30, 0.1}, Case{0.0064, 0.1}, Case{0.01, 0.5}, Case{0.64, 18},
          Case{1, 23}, Case{4, 48}}) {
        const Projectile shell = {.flavour = AmmoFlavour::He, .highExplosive = filler};
        EXPECT_NEAR(penetrationOf(shell, 500), penetration, Digits) << filler;
    }
    const std::vector<double> eras = {130, 170, 300, 400, 500, 650, 130, 130};
    for (std::size_t era = 0; era < eras.size(); ++era) {
        const Projectile projectile{
            .flavour = AmmoFlavour::RpgHeat, .era = static_cast<HeatEra>(era), .calibre = 100};
        expectAbout(penetrationOf(projectile, 0), eras[era], "era " + std::to_string(era));
    }
}

TEST(Penetration, DependsOnTheAngleAlone) {
    const Projectile shell = panther();
    const Impact upright = impactAt(shell, 12, 300, 0);
    // Cosines of angle / 57.296; half a turn has 57.2957..., so that 60 degrees leave a little more than
    // half.
    using Case = std::pair<double, double>;
    for (const auto& [angle, factor] :
         {Case{0, 1}, Case{30, 0.8660264112411431}, Case{60, 0.5000034899344271},
          Case{75, 0.2588239107499761}, Case{120, -0.49999302010678653}, Case{-60, 0.5000034899344271}}) {
        const Impact leaning = impactAt(shell, 12, 300, angle);
        expectAbout(leaning.penetration, upright.penetration * factor, std::to_string(angle));
        EXPECT_EQ(leaning.velocity, upright.velocity);
    }
}

TEST(Penetration, IsANumberWhateverTheFileHolds) {
    constexpr double huge = std::numeric_limits<float>::max();
    std::mt19937 random(1943);
    const auto anyOf = [&](const auto&... values) {
        const std::array among = {values...};
        return among[random() % among.size()];
    };
    for (int i = 0; i < 20000; ++i) {
        const auto anyValue = [&] { return anyOf(-huge, -5.0, 0.0, 5.0, huge); };
        const Projectile shell{
            .flavour = anyOf(AmmoFlavour::Ball, AmmoFlavour::Apds, AmmoFlavour::He, AmmoFlavour::Heat),
            .calibre = anyValue(),
            .muzzleVelocity = anyValue(),
            .mass = anyValue(),
            .highExplosive = anyValue()};
        const double drag = anyOf(-1e308, 0.0, 12.0, 1e308);
        const Impact impact = impactAt(shell, drag, 1000, 30);
        EXPECT_FALSE(std::isnan(impact.velocity) || std::isnan(impact.penetration))
            << shell.muzzleVelocity << ' ' << drag << ' ' << shell.mass << ' ' << shell.calibre;
    }
    Projectile backwards = panther();
    backwards.muzzleVelocity = -935;
    EXPECT_EQ(penetrationText(impactAt(backwards, 12, 0, 0).penetration), "0.0 mm");
}

TEST(Penetration, ShowsOneDecimalUpToOneMillimetre) {
    using Case = std::pair<double, std::string_view>;
    for (const auto& [penetration, text] :
         {Case{0, "0.0 mm"}, Case{0.1, "0.1 mm"}, Case{0.25, "0.2 mm"}, Case{0.75, "0.8 mm"},
          Case{0.96, "1.0 mm"}, Case{1.0, "1.0 mm"}, Case{1.0000000001, "1 mm"}, Case{1.5, "2 mm"},
          Case{2.5, "2 mm"}, Case{127.4999999, "127 mm"}, Case{127.5, "128 mm"}, Case{75 * 1.7, "128 mm"},
          Case{-3.25, "-3.2 mm"}, Case{1234567, "1234567 mm"}}) {
        EXPECT_EQ(penetrationText(penetration), text) << penetration;
    }
    EXPECT_EQ(velocityText(880.5498), "881 m/s");
    EXPECT_EQ(velocityText(0.4), "0 m/s");
    EXPECT_EQ(velocityText(1200.5), "1200 m/s");
}

TEST(Penetration, ShowsNumbersAlikeInEveryLocale) {
    const std::string former = std::setlocale(LC_NUMERIC, nullptr);
    const auto isSet = [](const char* name) { return std::setlocale(LC_NUMERIC, name) != nullptr; };
    if (!isSet("de_DE.UTF-8") && !isSet("de_DE") && !isSet("de-DE") && !isSet("German")) {
        GTEST_SKIP() << "no locale with a decimal comma here";
    }
    EXPECT_EQ(penetrationText(0.5), "0.5 mm");
    std::setlocale(LC_NUMERIC, former.c_str());
}

TEST(Penetration, TellsHowFarAPlateIsPierced) {
    const Projectile shell = roundProjectile(AmmoFlavour::Apcr);
    const PenetrationCurve curve = penetrationCurve(shell, 40);
    ASSERT_EQ(curve.size(), 3001U);
    EXPECT_EQ(curve[500], impactAt(shell, 40, 500, 0).penetration);
    // Half of the penetration is left where 1.5 * 40 * r / 100000 is the logarithm of 2: at 1155.2 m.
    EXPECT_EQ(rangeThrough(curve, curve.front() / 2, 0), 1155);
    // The same at 60 degrees, where a quarter of the thickness is as good as half of it, but for the
    // constant's 7 millionths.
    EXPECT_EQ(rangeThrough(curve, curve.front() / 4, 60), 1155);
    EXPECT_EQ(rangeThrough(curve, curve[500], 0), 500) << "as thick as the penetration";
    EXPECT_EQ(rangeThrough(curve, curve.front(), 0), 0);
    EXPECT_EQ(rangeThrough(curve, curve.front() + 0.001, 0), std::nullopt);
    EXPECT_EQ(rangeThrough(curve, curve.back(), 0), 3000);
    EXPECT_EQ(rangeThrough(curve, 1, 0), 3000);
    EXPECT_EQ(rangeThrough(curve, 1, 90), std::nullopt) << "a horizontal plate";
    EXPECT_EQ(rangeThrough(curve, 1, 120), std::nullopt) << "a plate that faces away";
    EXPECT_EQ(rangeThrough(penetrationCurve(shell, 0), curve.front(), 0), 3000) << "without drag";
    const PenetrationCurve heat = penetrationCurve({.flavour = AmmoFlavour::Heat, .calibre = 100}, 25);
    EXPECT_EQ(rangeThrough(heat, 130, 0), 3000);
    EXPECT_EQ(rangeThrough(heat, 131, 0), std::nullopt);
}

} // namespace varrocade::tests
