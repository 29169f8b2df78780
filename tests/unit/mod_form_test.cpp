// The forms of the "Edit Mod" dialogs.

#include "editors/mod/mod_forms.h"

#include "fake_form_port.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

using Lines = std::vector<std::string>;

TEST(ModForm, RefusesAWarThatEndsBeforeItBegins) {
    FakeFormPort port;
    ModSettings settings;
    fillForm(port, modShape(), settings);
    EXPECT_EQ(port.texts[IDC_MOD_FIRST], "1939");
    port.texts[IDC_MOD_AUTHOR] = "Me";
    EXPECT_FALSE(readForm(port, modShape(), settings));
    EXPECT_EQ(settings, ModSettings{.author = "Me"});
    struct Refused {
        int control;
        const char* text;
    };
    for (const Refused& one :
         {Refused{IDC_MOD_NAME, ""}, Refused{IDC_MOD_LAST, "1938"}, Refused{IDC_MOD_FIRST_MONTH, "13"},
          Refused{IDC_MOD_FIRST, "x"}, Refused{IDC_MOD_COMMENT, "a // b"}}) {
        fillForm(port, modShape(), settings);
        port.texts[one.control] = one.text;
        const auto error = readForm(port, modShape(), settings);
        ASSERT_TRUE(error) << one.text;
        EXPECT_EQ(error->control, one.control) << error->message;
    }
    EXPECT_EQ(settings, ModSettings{.author = "Me"});
}

TEST(ModForm, EntriesWithAPeriodMayBeOpen) {
    FakeFormPort port;
    std::vector<ModAllegiance> sides = {{"SIDE_FIRST", {1940, 6, 0, 12}}};
    VectorListModel<ModAllegiance> model(sides, allegianceShape());
    EXPECT_EQ(model.line(0), "6/1940 - : First");
    model.offer(port, {});
    EXPECT_EQ(port.choices[IDC_MOD_SIDE].size(), 3U);
    model.show(0, port);
    port.texts[IDC_MOD_LAST] = "1940";
    port.texts[IDC_MOD_LAST_MONTH] = "5";
    ASSERT_TRUE(model.read(0, port));
    EXPECT_EQ(model.read(0, port)->control, IDC_MOD_LAST);
    port.texts[IDC_MOD_LAST_MONTH] = "6";
    EXPECT_FALSE(model.read(0, port));
    EXPECT_EQ(sides[0].period, (ModPeriod{1940, 6, 1940, 6}));
}

TEST(ModForm, NewNationalitiesAreOnesThatAreNotThereYet) {
    std::vector<ModNationality> nations;
    nations.reserve(4);
    for (int i = 0; i < 4; ++i) {
        nations.push_back(nextNationality(nations));
    }
    EXPECT_EQ(nations[0].id, "NATIONALITY_AMERICAN");
    EXPECT_EQ(nations[0].surnames.size(), 100U);
    EXPECT_EQ(nations[3].id, "NATIONALITY_AUSTRALIAN");
    EXPECT_EQ(nationalityShape().line(4, nations[3]), "4. Australia (Australian)");
}

TEST(ModForm, CreditsAndSurnamesAreLines) {
    EXPECT_EQ(creditsText({"", "a", "", "b"}), "\r\na\r\n\r\nb");
    EXPECT_EQ(creditLines(creditsText({"", "a", "", "b"})), (Lines{"", "a", "", "b"}));
    EXPECT_EQ(creditLines("a\nb\r\n\r\n"), (Lines{"a", "b"}));
    EXPECT_FALSE(refusalOfCredits({"", "fine / good"}));
    EXPECT_TRUE(refusalOfCredits({"ok", "see http://x"}));
    std::vector<ModSurname> surnames = surnamesOfText("  Smith \nadams\t3\r\n\n<x>\nBrown\t-5\nAdams\t3");
    EXPECT_EQ(surnames, (std::vector<ModSurname>{{"Smith", 1}, {"adams", 3}, {"Brown", 1}, {"Adams", 3}}));
    sortSurnames(surnames);
    EXPECT_EQ(surnames, (std::vector<ModSurname>{{"adams", 3}, {"Adams", 3}, {"Brown", 1}, {"Smith", 1}}));
    EXPECT_EQ(namedColours().size(), 10U);
}

} // namespace
} // namespace varrocade::tests
