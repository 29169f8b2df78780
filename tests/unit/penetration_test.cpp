#include "analysis/armour_plates.h"
#include "analysis/penetration.h"
#include "cli/command_line.h"
#include "test_support.h"

#include <clocale>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// The digits that the order of the factors may cost.
constexpr double Digits = 1e-12;

void expectAbout(double value, double expected, const std::string& what) {
    EXPECT_NEAR(value, expected, std::abs(expected) * Digits) << what;
}

std::string flavourText(AmmoFlavour flavour) {
    return "flavour " + std::to_string(static_cast<int>(flavour));
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

constexpr std::string_view GunText =
    "<weapon><name>WEAPON_CANNON_75</name><type>WEAPON_CANNON</type>"
    "<dimensions><calibre>75</calibre></dimensions><ammo>"
    "<type><flavour>FLAVOUR_HEAT</flavour><speed>450.5</speed><mass>4.4</mass>"
    "<era>HEAT_ERA_LATE</era><name>Gr 38</name></type>"
    "<type><flavour>FLAVOUR_SMOKE</flavour><speed>540</speed><mass>6.2</mass></type>"
    "<type><flavour>FLAVOUR_APCBC</flavour><speed>935</speed><mass>6.8</mass>"
    "<name>PzGr\t39/42</name></type></ammo></weapon>";

} // namespace

TEST(Penetration, KnowsTheDragClassOfEveryFlavour) {
    constexpr std::size_t flavours = 256;
    std::vector<DragClass> expected(flavours, DragClass::Bullet);
    for (const std::size_t flavour : {128U, 129U, 130U, 131U, 141U, 142U}) {
        expected[flavour] = DragClass::Ap;
    }
    expected[132] = DragClass::Apc;
    expected[134] = DragClass::Apcbc;
    expected[135] = DragClass::Apfsds;
    expected[136] = DragClass::Apcr;
    expected[137] = DragClass::Apcnr;
    expected[138] = DragClass::Apds;
    for (std::size_t flavour = 0; flavour < flavours; ++flavour) {
        EXPECT_EQ(dragClassOf(static_cast<AmmoFlavour>(flavour)), expected[flavour]) << flavour;
    }
    EXPECT_EQ(dragClasses()[static_cast<std::size_t>(DragClass::Apcnr)].name, "APCNR");
    EXPECT_EQ(dragClasses()[static_cast<std::size_t>(DragClass::Apfsds)].name, "APFSDS");
    EXPECT_EQ(dragClasses()[static_cast<std::size_t>(DragClass::Bullet)].name, "Bullet");
}

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
    constexpr std::size_t flavours = 256;
    std::vector<double> expected(flavours, 0.0);
    for (const std::size_t flavour : {132U, 134U, 135U, 136U, 137U, 138U}) {
        expected[flavour] = 175.1843726325;
    }
    expected[16] = 111.4809644025;
    expected[18] = 238.8877808625;
    expected[130] = RoundPenetration;
    for (const std::size_t flavour : {19U, 128U, 192U}) {
        expected[flavour] = 18; // 25 * 0.8 - 2
    }
    for (const std::size_t flavour : {81U, 129U, 141U, 142U}) {
        expected[flavour] = 300; // 100 * 3.0
    }
    expected[131] = 150;
    for (std::size_t number = 0; number < flavours; ++number) {
        const auto flavour = static_cast<AmmoFlavour>(number);
        Projectile projectile = roundProjectile(flavour);
        projectile.highExplosive = 0.64;
        projectile.era = HeatEra::ColdWarEarly;
        expectAbout(penetrationOf(projectile, 900), expected[number], flavourText(flavour));
    }
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
    struct Case {
        double filler;
        double expected;
    };
    const std::vector<Case> fillers = {{0, 0.1},    {-1, 0.1},  {-1e-30, 0.1}, {0.0064, 0.1},
                                       {0.01, 0.5}, {0.64, 18}, {1, 23},       {4, 48}};
    for (const Case& c : fillers) {
        const double penetration =
            penetrationOf({.flavour = AmmoFlavour::He, .highExplosive = c.filler}, 500);
        EXPECT_NEAR(penetration, c.expected, 1e-12) << c.filler;
    }
    EXPECT_EQ(penetrationText(penetrationOf({.flavour = AmmoFlavour::He}, 500)), "0.1 mm");
    EXPECT_EQ(penetrationText(penetrationOf({.flavour = AmmoFlavour::He, .highExplosive = -0.5}, 500)),
              "0.1 mm");

    const std::vector<double> eras = {130, 170, 300, 400, 500, 650, 130, 130};
    for (std::size_t era = 0; era < eras.size(); ++era) {
        const Projectile projectile{
            .flavour = AmmoFlavour::RpgHeat, .era = static_cast<HeatEra>(era), .calibre = 100};
        expectAbout(penetrationOf(projectile, 0), eras[era], "era " + std::to_string(era));
    }
}

TEST(Penetration, DependsOnTheAngleAlone) {
    struct Case {
        double angle;
        double factor;
    };
    // Cosines of angle / 57.296; half a turn has 57.2957..., so that 60 degrees leave a little more than
    // half.
    const std::vector<Case> cases = {
        {0, 1},
        {30, 0.8660264112411431},
        {60, 0.5000034899344271},
        {75, 0.2588239107499761},
        {120, -0.49999302010678653},
        {-60, 0.5000034899344271},
    };
    const Projectile shell = panther();
    const Impact upright = impactAt(shell, 12, 300, 0);
    for (const Case& c : cases) {
        const Impact leaning = impactAt(shell, 12, 300, c.angle);
        expectAbout(leaning.penetration, upright.penetration * c.factor, std::to_string(c.angle));
        EXPECT_EQ(leaning.velocity, upright.velocity);
    }
}

TEST(Penetration, IsANumberWhateverTheFileHolds) {
    const double huge = static_cast<double>(std::numeric_limits<float>::max());
    const std::vector<double> values = {-huge, -5, 0, 5, huge};
    for (const AmmoFlavour flavour :
         {AmmoFlavour::Ball, AmmoFlavour::Apds, AmmoFlavour::He, AmmoFlavour::Heat}) {
        for (const double velocity : values) {
            for (const double mass : values) {
                for (const double calibre : values) {
                    for (const double drag : {-1e308, 0.0, 12.0, 1e308}) {
                        const Projectile projectile{.flavour = flavour,
                                                    .calibre = calibre,
                                                    .muzzleVelocity = velocity,
                                                    .mass = mass,
                                                    .highExplosive = mass};
                        const Impact impact = impactAt(projectile, drag, 1000, 30);
                        EXPECT_FALSE(std::isnan(impact.velocity)) << velocity << ' ' << drag;
                        EXPECT_FALSE(std::isnan(impact.penetration))
                            << velocity << ' ' << mass << ' ' << calibre;
                    }
                }
            }
        }
    }
    Projectile backwards = panther();
    backwards.muzzleVelocity = -935;
    EXPECT_EQ(penetrationText(impactAt(backwards, 12, 0, 0).penetration), "0.0 mm");
}

TEST(Penetration, ShowsOneDecimalUpToOneMillimetre) {
    struct Case {
        double penetration;
        std::string_view text;
    };
    const std::vector<Case> cases = {
        {0, "0.0 mm"},     {0.1, "0.1 mm"},      {0.25, "0.2 mm"},   {0.75, "0.8 mm"},
        {0.96, "1.0 mm"},  {1.0, "1.0 mm"},      {1.04, "1 mm"},     {1.0000000001, "1 mm"},
        {1.5, "2 mm"},     {2.5, "2 mm"},        {126.5, "126 mm"},  {127.4999999, "127 mm"},
        {127.5, "128 mm"}, {75 * 1.7, "128 mm"}, {-3.25, "-3.2 mm"}, {1234567, "1234567 mm"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(penetrationText(c.penetration), c.text) << c.penetration;
    }
    EXPECT_EQ(velocityText(880.5498), "881 m/s");
    EXPECT_EQ(velocityText(0.4), "0 m/s");
    EXPECT_EQ(velocityText(1200.5), "1200 m/s");
    const Projectile heat{
        .flavour = AmmoFlavour::Heat, .era = HeatEra::Late, .calibre = 75, .muzzleVelocity = 450};
    for (const int range : PenetrationRanges) {
        EXPECT_EQ(penetrationText(impactAt(heat, 25, range, 0).penetration), "128 mm");
    }
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

TEST(Penetration, FindsThePlatesOfAVehicle) {
    VehicleRecord vehicle;
    vehicle.components.resize(3);
    ArmourRecord& hull = vehicle.components[0].armour;
    hull.upperFront = {80, 55};
    hull.lowerRear = {40, -30};
    hull.top = 16;
    hull.frontSpaced = 5;
    ArmourRecord& turret = vehicle.components[2].armour;
    turret.upperLeft = {45, 25};
    turret.mantlet = 100;
    turret.bottom = 0;
    struct Expected {
        std::size_t component;
        std::string_view name;
        std::int32_t thickness;
        std::int32_t angle;
    };
    const std::vector<Expected> expected = {
        {0, "upper_front", 80, 55}, {0, "lower_rear", 40, -30}, {0, "top", 16, 90},
        {2, "upper_left", 45, 25},  {2, "mantlet", 100, 0},
    };
    const std::vector<VehiclePlate> plates = armourPlates(vehicle);
    ASSERT_EQ(plates.size(), expected.size());
    for (std::size_t i = 0; i < plates.size(); ++i) {
        EXPECT_EQ(plates[i].component, expected[i].component);
        EXPECT_EQ(plates[i].name, expected[i].name);
        EXPECT_EQ(plates[i].plate, (ArmourPlate{expected[i].thickness, expected[i].angle})) << plates[i].name;
    }
}

TEST(PenetrationCommand, PrintsSevenLines) {
    const TemporaryFolder folder;
    folder.write("gun.txt", GunText);
    const std::string gun = folder.path() + "gun.txt";
    // 127.5 * cos(60 / 57.296) is 63.75, 450.5 * 2.71828^(-0.1 r / 1000) falls as the table has it.
    const CommandOutcome heat = runCommand({"penetration", gun, "0", "60", "10"});
    EXPECT_EQ(heat.status, cli::Done);
    EXPECT_EQ(heat.output, "0 m\t64 mm\t450 m/s\n100 m\t64 mm\t446 m/s\n200 m\t64 mm\t442 m/s\n"
                           "300 m\t64 mm\t437 m/s\n400 m\t64 mm\t433 m/s\n500 m\t64 mm\t429 m/s\n"
                           "1000 m\t64 mm\t408 m/s\n");
    const CommandOutcome lenient = runCommand({"penetration", gun, "2", "upright", "none"});
    EXPECT_EQ(lenient.status, cli::Done);
    EXPECT_TRUE(lenient.output.starts_with("0 m\t152 mm\t935 m/s\n")) << lenient.output;
    EXPECT_TRUE(lenient.output.ends_with("\n1000 m\t152 mm\t935 m/s\n")) << lenient.output;
    EXPECT_TRUE(runCommand({"penetration", gun, "1", "0", "0"}).output.starts_with("0 m\t0.0 mm\t540 m/s\n"));
}

TEST(PenetrationCommand, RefusesWhatItDoesNotUnderstand) {
    const TemporaryFolder folder;
    folder.write("gun.txt", GunText);
    folder.write("empty.txt", "");
    for (const char* arguments :
         {"", "$gun.txt", "$gun.txt 0 30", "$gun.txt 0 30 12 12", "$gun.txt 3 30 12", "$gun.txt -1 30 12",
          "$gun.txt  30 12", "$gun.txt 0x 30 12", "$gun.txt 99999999999999999999999 30 12",
          "$missing.txt 0 30 12", "$empty.txt 0 30 12", "--matrix", "--matrix $", "--matrix $ $"}) {
        expectRefused(folder, "penetration " + std::string(arguments));
    }
}

TEST(PenetrationCommand, PrintsAMatrix) {
    const TemporaryFolder folder;
    folder.write("Data\\Weapons\\WEAPON_CANNON_75.txt", GunText);
    folder.write(
        "Data\\Vehicles\\B.txt",
        "<squad><vehicle><hull><armour><upper_front>150@0</upper_front><lower_front>60@60</lower_front>"
        "</armour></hull><turret><armour><mantlet>128</mantlet></armour></turret></vehicle></squad>");
    folder.write(
        "Data\\Vehicles\\A.txt",
        "<squad><vehicle><superstructure><armour><upper_right>10</upper_right></armour></superstructure>"
        "</vehicle></squad>");
    const std::string heading =
        "weapon\tshell\tflavour\tammunition\tvehicle\tcomponent\tkind\tplate\tthickness\tangle\trange\n";
    const std::string heat = "WEAPON_CANNON_75\t0\tFLAVOUR_HEAT\tGr 38\t";
    const std::string shot = "WEAPON_CANNON_75\t2\tFLAVOUR_APCBC\tPzGr 39/42\t";
    const std::string a = "A\t0\tsuperstructure\tupper_right\t10\t0\t";
    const std::string upper = "B\t0\thull\tupper_front\t150\t0\t";
    const std::string lower = "B\t0\thull\tlower_front\t60\t60\t";
    const std::string mantlet = "B\t1\tturret\tmantlet\t128\t0\t";
    // HEAT has 127.5 mm at every range, 63.75 mm at 60 degrees. PzGr 39/42 has 152.05 mm at the muzzle, and
    // 150 mm where 1.5 * 12 * r / 100000 is ln(152.05 / 150): at 75 m; 128 mm at 956 m, 60 / 0.5 at 1314 m.
    const std::string expected = heading + heat + a + "3000\n" + heat + upper + "-\n" + heat + lower +
                                 "3000\n" + heat + mantlet + "-\n" + shot + a + "3000\n" + shot + upper +
                                 "75\n" + shot + lower + "1314\n" + shot + mantlet + "956\n";
    const CommandOutcome matrix = runCommand({"penetration", "--matrix", folder.path()});
    EXPECT_EQ(matrix.status, cli::Done) << matrix.complaints;
    EXPECT_EQ(matrix.output, expected);
    // A folder without its backslash, and with a file that is no weapon.
    folder.write("Data\\Weapons\\broken.txt", "nothing");
    const CommandOutcome broken =
        runCommand({"penetration", "--matrix", folder.path().substr(0, folder.path().size() - 1)});
    EXPECT_EQ(broken.status, cli::Findings);
    EXPECT_EQ(broken.output, expected);
    EXPECT_NE(broken.complaints.find("broken.txt"), std::string::npos) << broken.complaints;
}

} // namespace varrocade::tests
