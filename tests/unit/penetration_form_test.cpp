// The penetration dialogs' forms, driven without windows.

#include "editors/penetration/penetration_form.h"

#include "analysis/penetration.h"
#include "fake_form_port.h"
#include "resources/resource.h"
#include "view/chart/chart.h"

#include <gtest/gtest.h>

#include <map>

namespace varrocade::tests {
namespace {

TEST(PenetrationForm, ShowsAndCopiesTheSameRows) {
    WeaponRecord weapon{.name = "GUN", .calibre = 75};
    weapon.ammoTypes.push_back({.flavour = AmmoFlavour::Apcbc, .speed = 935, .mass = 6.8F, .name = "39/42"});
    FakeFormPort port;
    fillPenetrationDefaults(port);
    port.texts[IDC_PEN_ANGLE] = "60";
    port.texts[IDC_DRAG_APCBC] = "12";
    showPenetration(port, &weapon, 0);
    const auto rows = penetrationRows(projectileOf(weapon, weapon.ammoTypes[0]), 12, 60);
    std::string copied = "GUN\tAPCBC - 39/42\t60 degrees\r\nRange\tPenetration\tVelocity\r\n";
    for (std::size_t row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(port.texts[IDC_PENETRATION_ROWS + static_cast<int>(row)], rows[row].penetration);
        EXPECT_EQ(port.texts[IDC_VELOCITY_ROWS + static_cast<int>(row)], rows[row].velocity);
        copied += (row == 6 ? "1,000" : std::to_string(PenetrationRanges[row])) + " m\t" +
                  rows[row].penetration + "\t" + rows[row].velocity + "\r\n";
    }
    EXPECT_EQ(penetrationTable(port, weapon, 0), copied);
    EXPECT_EQ(rows[5].velocity, "881 m/s");
    showPenetration(port, &weapon, 1);
    EXPECT_EQ(port.texts[IDC_PENETRATION_ROWS], "-") << "there is no such ammunition";
}

TEST(PenetrationForm, BeginsWithTheWeaponThatIsChosen) {
    WeaponCatalogue catalogue;
    catalogue.load("sample\\");
    const auto first = [&](std::string_view wanted) {
        return catalogue.entries().at(firstPenetrationWeapon(catalogue, wanted)).weapon.fileName;
    };
    EXPECT_EQ(first("weapon_rifle_kar98k"), "WEAPON_RIFLE_KAR98K");
    EXPECT_EQ(first(""), FirstPenetrationWeapon);
    EXPECT_EQ(first("WEAPON_OF_NOBODY"), FirstPenetrationWeapon);
    EXPECT_EQ(firstPenetrationWeapon(WeaponCatalogue(), "GUN"), 0U);
}

TEST(PenetrationForm, StepsOfAnAxisAreRoundAndFew) {
    for (const auto& [greatest, expected] : std::map<double, std::pair<double, int>>{{0.5, {0.1, 5}},
                                                                                     {6, {1, 6}},
                                                                                     {6.1, {2, 4}},
                                                                                     {152, {50, 4}},
                                                                                     {301, {100, 4}},
                                                                                     {1.7e308, {2e5, 5}}}) {
        const ChartAxis axis = chartAxis(greatest, 6);
        EXPECT_DOUBLE_EQ(axis.step, expected.first) << greatest;
        EXPECT_EQ(axis.steps, expected.second) << greatest;
    }
}

} // namespace
} // namespace varrocade::tests
