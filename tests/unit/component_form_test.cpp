// The dialogs of a vehicle's components and their armour, driven without windows.

#include "editors/vehicle/armour_form.h"
#include "editors/vehicle/component_form.h"
#include "fake_form_port.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

ComponentRecord turret() {
    ComponentRecord component;
    component.kind = ComponentKind::Turret;
    component.rotateTime = 16;
    component.limitedTraverse = true;
    return component;
}

struct TraverseCase {
    const char* left;
    const char* right;
    const char* offset;
    const char* message; ///< without "The turret " or "The "; empty: accepted
    const char* caption;
};

constexpr TraverseCase TraverseCases[] = {
    {"180", "180", "0", "", ""},
    {"0", "360", "-180", "", ""},
    {"10", "10", "180", "", ""},
    {"181", "180", "0", "rotate left and right angles must add up to less that 360 degrees", "Rotate angles"},
    {"-1", "0", "0", "rotate left and right angles must be between 0 and 360 degrees", "Rotate angles"},
    {"0", "361", "0", "rotate left and right angles must be between 0 and 360 degrees", "Rotate angles"},
    {"10", "10", "181", "offset angle must be between -180 and 180 degrees", "Offset angle"},
    {"10", "10", "-181", "offset angle must be between -180 and 180 degrees", "Offset angle"},
    // The limits are looked at before the offset angle.
    {"400", "10", "400", "rotate left and right angles must be between 0 and 360 degrees", "Rotate angles"},
};

TEST(ComponentForm, ChecksTraverseOfTurretsAndFixedWeapons) {
    for (const bool isTurret : {true, false}) {
        for (const TraverseCase& row : TraverseCases) {
            ComponentRecord component = turret();
            component.kind = isTurret ? ComponentKind::Turret : ComponentKind::FixedWeapon;
            component.offsetZ = 1;
            FakeFormPort port;
            fillForm(port, componentShape(), component);
            port.texts[IDC_ROTATE_LEFT] = row.left;
            port.texts[IDC_ROTATE_RIGHT] = row.right;
            port.texts[IDC_OFFSET_ANGLE] = row.offset;
            const ComponentRecord before = component;
            const auto error = readForm(port, componentShape(), component);
            if (*row.message == '\0') {
                EXPECT_FALSE(error) << row.left << " " << row.right;
                EXPECT_EQ(std::to_string(component.rotateRight), row.right);
            } else {
                ASSERT_TRUE(error) << row.left << " " << row.right;
                EXPECT_EQ(error->message, (isTurret ? "The turret " : "The ") + std::string(row.message));
                EXPECT_EQ(error->caption, row.caption);
                EXPECT_EQ(component, before);
            }
        }
    }
}

TEST(ComponentForm, LeavesLimitsAloneWithoutLimitedTraverse) {
    ComponentRecord component = turret();
    FakeFormPort port;
    fillForm(port, componentShape(), component);
    port.setChecked(IDC_LIMITED_TRAVERSE, false);
    updateEnabling(port, componentShape(), component);
    EXPECT_TRUE(port.disabled.contains(IDC_ROTATE_LEFT));
    EXPECT_TRUE(port.disabled.contains(IDC_OFFSET_ANGLE));
    port.texts[IDC_ROTATE_LEFT] = "nonsense";
    ASSERT_FALSE(readForm(port, componentShape(), component));
    EXPECT_FALSE(component.limitedTraverse);
}

TEST(ComponentForm, FixedWeaponsStandAboveTheGround) {
    ComponentRecord weapon = turret();
    weapon.kind = ComponentKind::FixedWeapon;
    FakeFormPort port;
    fillForm(port, componentShape(), weapon);
    const auto error = readForm(port, componentShape(), weapon);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, "OffsetZ must be greater than zero");
}

TEST(ComponentForm, RotateSpeedIsDegreesASecond) {
    EXPECT_EQ(rotateSpeedText(16), "22.5");
    EXPECT_EQ(rotateSpeedText(7), "51.4");
    EXPECT_EQ(rotateSpeedText(0), "0.0");
    EXPECT_EQ(rotateTimeOf("22.5"), 16);
    EXPECT_EQ(rotateTimeOf("0"), std::nullopt);
    EXPECT_EQ(rotateTimeOf("-3"), std::nullopt);
    EXPECT_EQ(rotateTimeOf("fast"), std::nullopt);
    EXPECT_EQ(rotateTimeOf("0.001"), 86400);
    // A speed of 1.0 stands for many times: one that was not touched keeps its own.
    ComponentRecord slow = turret();
    slow.limitedTraverse = false;
    slow.rotateTime = 349;
    FakeFormPort port;
    fillForm(port, componentShape(), slow);
    ASSERT_FALSE(readForm(port, componentShape(), slow));
    EXPECT_EQ(slow.rotateTime, 349);
    constexpr std::pair<const char*, const char*> refused[] = {
        {"0", "The rotate speed must be greater than zero"},
        {"12abc", "\"Rotate speed\" must be a number"},
        {"1,5", "\"Rotate speed\" must be a number"},
        {"1000000000",
         "The rotate speed must be at most 360 degrees per second: the file counts the seconds for a "
         "full circle"},
    };
    for (const auto& [text, message] : refused) {
        port.texts[IDC_ROTATE_SPEED] = text;
        const auto error = readForm(port, componentShape(), slow);
        ASSERT_TRUE(error) << text;
        EXPECT_EQ(error->message, message);
    }
}

TEST(ArmourForm, NotGivenIsAStateOfItsOwn) {
    ComponentRecord component = turret();
    ArmourRecord& armour = component.armour;
    armour.upperFront = {50, 60};
    armour.mantlet = -7;
    FakeFormPort port;
    fillForm(port, armourShape(), component);
    followPlates(port, component);
    EXPECT_EQ(port.texts[IDC_PLATES + 2], "100 mm"); // 50 mm at 60 degrees
    EXPECT_TRUE(port.disabled.contains(IDC_MANTLET));
    ASSERT_FALSE(readForm(port, armourShape(), component));
    EXPECT_EQ(armour.mantlet, -7) << "as it was";
    port.setChecked(IDC_MANTLET_GIVEN, true);
    port.texts[IDC_MANTLET] = "0";
    ASSERT_FALSE(readForm(port, armourShape(), component));
    EXPECT_EQ(armour.mantlet, 0);
    EXPECT_EQ(armour.bottom, ArmourNotGiven);
    port.texts[IDC_PLATES + 1] = "91";
    const auto error = readForm(port, armourShape(), component);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->control, IDC_PLATES + 1);
    EXPECT_EQ(error->message, "\"Upper front angle\" must be a whole number from 0 to 90");
    // The other plates follow what is typed all the same.
    port.texts[IDC_PLATES + 3] = "70";
    followPlates(port, component);
    EXPECT_EQ(port.texts[IDC_PLATES + 2], "?");
    EXPECT_EQ(port.texts[IDC_PLATES + 5], "70 mm");
    EXPECT_EQ(armour.lowerFront.thickness, 70);
    port.texts[IDC_PLATES + 1] = "90";
    port.texts[IDC_SIDE_SPACED] = "6O";
    EXPECT_EQ(readForm(port, armourShape(), component)->control, IDC_SIDE_SPACED) << "no 0 without a word";
    component.kind = ComponentKind::Hull;
    FakeFormPort ofHull;
    fillForm(ofHull, armourShape(), component);
    EXPECT_FALSE(ofHull.texts.contains(IDC_MANTLET)) << "a turret's";
}

TEST(ComponentForm, TakesItsOwnFieldsAndLeavesTheOthers) {
    ComponentRecord drawn = turret();
    ComponentRecord own = turret();
    own.offsetX = 7;
    own.viewImage = "picture";
    drawn.crew.resize(2);
    drawn.weapons.resize(1);
    drawn.armour.top = 12;
    ComponentRecord expected = drawn;
    expected.offsetX = 7;
    expected.viewImage = "picture";
    takeOwnFields(drawn, own);
    EXPECT_EQ(drawn, expected);
}

// A field stands in the dialogs of some kinds, is shown only in others, and is stored by others still.
TEST(ComponentForm, KindsHaveTheirOwnRows) {
    struct KindCase {
        ComponentKind kind;
        bool hasWidth;
        bool canMove;
        const char* notStored;
    };
    for (const KindCase& row :
         {KindCase{ComponentKind::Hull, true, false,
                   "(OffsetX, OffsetY and OffsetZ are not stored in the file)"},
          KindCase{ComponentKind::Superstructure, true, true,
                   "(OffsetZ and Image are not stored in the file)"},
          KindCase{ComponentKind::Turret, false, true, "(OffsetZ is not stored in the file)"},
          KindCase{ComponentKind::FixedWeapon, false, true, ""}}) {
        ComponentRecord component = turret();
        component.kind = row.kind;
        component.offsetX = 7;
        FakeFormPort port;
        fillForm(port, componentShape(), component);
        EXPECT_EQ(port.texts.contains(IDC_WIDTH), row.hasWidth);
        EXPECT_EQ(port.disabled.contains(IDC_OFFSET_X), !row.canMove);
        EXPECT_EQ(notStoredText(componentShape(), component), row.notStored);
        port.texts[IDC_OFFSET_X] = "8";
        port.texts[IDC_OFFSET_Z] = "1";
        ASSERT_FALSE(readForm(port, componentShape(), component));
        EXPECT_EQ(component.offsetX, row.canMove ? 8 : 7);
    }
}

} // namespace
} // namespace varrocade::tests
