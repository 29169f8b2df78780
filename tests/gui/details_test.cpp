#include "gui_test.h"
#include "layout_check.h"

#include <algorithm>

namespace varrocade::gui {

namespace {

struct FieldRow {
    int id;
    std::string_view label;
    std::string_view text;
};

constexpr std::string_view KnownVehicle = "German Known";

/// A vehicle whose every field of the dialog differs from what a new one has.
constexpr std::string_view KnownText = "<squad>\r\n"
                                       "\t<description>\r\n"
                                       "\t\t<type>TYPE_HALFTRACK</type>\r\n"
                                       "\t\t<nationality>NATIONALITY_GERMAN</nationality>\r\n"
                                       "\t\t<language>de</language>\r\n"
                                       "\t\t<long_name>A long name</long_name>\r\n"
                                       "\t\t<short_name>Short</short_name>\r\n"
                                       "\t\t<comment>A comment.</comment>\r\n"
                                       "\t\t<uniform_profile>Profile-Test.png</uniform_profile>\r\n"
                                       "\t\t<uniform_game>uniform_game_test.png</uniform_game>\r\n"
                                       "\t\t<uniform_ranks>uniform_ranks_test.png</uniform_ranks>\r\n"
                                       "\t</description>\r\n"
                                       "\t<vehicle>\r\n"
                                       "\t\t<attributes>\r\n"
                                       "\t\t\t<image_profile>Profile Known.png</image_profile>\r\n"
                                       "\t\t\t<weight>44800</weight>\r\n"
                                       "\t\t\t<can_mount_infantry>yes</can_mount_infantry>\r\n"
                                       "\t\t</attributes>\r\n"
                                       "\t\t<hull><width>300</width></hull>\r\n"
                                       "\t</vehicle>\r\n"
                                       "</squad>\r\n";

bool contains(const std::vector<std::string>& texts, std::string_view text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

} // namespace

class DetailsTest : public GuiTest {
protected:
    /// Starts with a vehicle open.
    void startWith(std::string_view name) {
        start();
        select(name);
    }
    [[nodiscard]] std::string tigerText() const { return game.read(dataFile(Tiger)); }
};

TEST_F(DetailsTest, ShowsEveryField) {
    game.write(dataFile(KnownVehicle), KnownText);
    game.write("Images\\Units\\Vehicles\\Profiles\\Profile Known.png", "");
    game.write("Images\\Units\\Profile-Test.png", "");
    game.write("Images\\Units\\Other.png", "");
    startWith(KnownVehicle);
    const Window details = openDetails();
    expectWellLaidOut(details);
    constexpr FieldRow fields[] = {
        {IDC_NATIONALITY, "Nationality:", "NATIONALITY_GERMAN"},
        {IDC_TYPE, "Type:", "TYPE_HALFTRACK"},
        {IDC_LONG_NAME, "Long name:", "A long name"},
        {IDC_SHORT_NAME, "Short name:", "Short"},
        {IDC_DESCRIPTION, "Description:", "A comment."},
        {IDC_WEIGHT, "Weight:", "44800"},
        {IDC_PROFILE_IMAGE, "Control panel image:", "Profile Known"},
        {IDC_UNIFORM_PROFILE, "Profile image:", "Profile-Test"},
        {IDC_UNIFORM_GAME, "Game image:", "uniform_game_test"},
        {IDC_UNIFORM_RANKS, "Rank Image:", "uniform_ranks_test"},
        {IDC_UNIFORM_NAME, "Uniform:", "Default"},
        {IDC_LANGUAGE, "Voice language:", "de"},
    };
    for (const FieldRow& field : fields) {
        std::string label = details.labelOf(field.id);
        label.erase(std::remove(label.begin(), label.end(), '&'), label.end());
        EXPECT_EQ(label, field.label);
        EXPECT_EQ(details.control(field.id).text(), field.text) << field.label;
    }
    EXPECT_TRUE(details.control(IDC_MOUNT_INFANTRY).isChecked());
    EXPECT_FALSE(details.control(IDC_AMPHIBIOUS).isChecked());
    EXPECT_EQ(details.control(IDOK).text(), "Save any changes");
    EXPECT_EQ(details.control(IDCANCEL).text(), "Lose any changes");
    EXPECT_EQ(details.control(IDC_PROFILE_IMAGE).choices()[0], "Default");
    EXPECT_TRUE(contains(details.control(IDC_PROFILE_IMAGE).choices(), "Profile Known"));
    EXPECT_TRUE(contains(details.control(IDC_UNIFORM_PROFILE).choices(), "Profile-Test"));
    EXPECT_FALSE(contains(details.control(IDC_UNIFORM_PROFILE).choices(), "Other"));
    EXPECT_TRUE(contains(details.control(IDC_TYPE).choices(), "TYPE_INFANTRY_FIGHTING_VEHICLE"));
    EXPECT_TRUE(contains(details.control(IDC_NATIONALITY).choices(), "NATIONALITY_RUSSIAN"));
    finish(details, IDCANCEL);
    EXPECT_EQ(game.read(dataFile(KnownVehicle)), KnownText);
}

TEST_F(DetailsTest, SavesWhatWasChangedAndNothingElse) {
    startWith(Tiger);
    const std::string before = tigerText();
    finish(openDetails());
    EXPECT_EQ(tigerText(), before) << "nothing was changed";

    const Window details = openDetails();
    details.control(IDC_TYPE).choose("TYPE_ASSAULT_GUN");
    details.setText(IDC_LONG_NAME, "Panther & <Tiger>");
    details.setText(IDC_SHORT_NAME, "");
    details.setText(IDC_DESCRIPTION, "One line.\r\nAnother.");
    details.setText(IDC_WEIGHT, " 12345 ");
    details.setText(IDC_PROFILE_IMAGE, "Other");
    for (const int box : {IDC_MOUNT_INFANTRY, IDC_AMPHIBIOUS}) {
        details.control(box).send(BM_CLICK);
    }
    finish(details);
    std::string expected = before;
    constexpr std::pair<std::string_view, std::string_view> replacements[] = {
        {"TYPE_TANK", "TYPE_ASSAULT_GUN"},
        {"Panzerkampfwagen VI Tiger Ausf. E (Sd.Kfz. 181)", "Panther & <Tiger>"},
        {"<short_name>Tiger I<", "<short_name><"},
        {"The first heavy tank of the Wehrmacht, 1,347 built by Henschel from August 1942 to August 1944.",
         "One line. Another."},
        {"<weight>56900</weight>\r\n",
         "<weight>12345</weight>\r\n\t\t\t<can_mount_infantry>yes</can_mount_infantry>\r\n"
         "\t\t\t<is_amphibious>yes</is_amphibious>\r\n"},
        {"Profile German Panzer VI Tiger Ausf E.png", "Other.png"},
    };
    for (const auto& [part, replacement] : replacements) {
        expected = withReplaced(expected, part, replacement);
    }
    EXPECT_EQ(tigerText(), expected);
    EXPECT_EQ(game.backups(dataFile(Tiger)), std::vector<std::string>{before});
}

TEST_F(DetailsTest, WhatNoFileCouldHoldIsRefused) {
    startWith(Tiger);
    const std::string before = tigerText();
    const Window details = openDetails();
    details.setText(IDC_DESCRIPTION, "See http://tanks");
    details.startPress(IDOK);
    EXPECT_TRUE(eventually([&] { return !details.isEnabled(); })) << "nothing is refused";
    answer({.caption = "Details",
            .text = "\"Description\" must not begin with \"<\" nor contain \"</\" or \"//\": the file could "
                    "not hold it"});
    EXPECT_EQ(editor->focus(), details.control(IDC_DESCRIPTION));
    finish(details, IDCANCEL);
    EXPECT_EQ(tigerText(), before);
}

TEST_F(DetailsTest, LongListsOfUnknownNamesAreScrolled) {
    startWith(Tiger);
    const Window details = openDetails();
    const Window unknown = details.control(IDC_UNKNOWN);
    const auto type = [&](int field, const std::string& text) {
        details.setText(field, text);
        details.send(WM_COMMAND, MAKEWPARAM(field, CBN_EDITCHANGE));
    };
    type(IDC_PROFILE_IMAGE, "Default");
    EXPECT_FALSE(unknown.isVisible());
    constexpr int fields[] = {IDC_NATIONALITY, IDC_PROFILE_IMAGE, IDC_UNIFORM_PROFILE, IDC_UNIFORM_RANKS};
    for (const int field : fields) {
        type(field, "an image that nobody has drawn " + std::to_string(field));
    }
    EXPECT_TRUE(unknown.isVisible());
    EXPECT_TRUE(unknown.hasStyle(WS_VSCROLL | ES_READONLY));
    for (const int field : fields) {
        EXPECT_NE(unknown.text().find(std::to_string(field) + "\""), std::string::npos) << unknown.text();
    }
    expectWellLaidOut(details);
    finish(details, IDCANCEL);
}

TEST_F(DetailsTest, WeightThatIsNoNumberIsNone) {
    startWith(Tiger);
    for (const std::string_view text : {"abc", "", "12 t"}) {
        const std::string before = tigerText();
        const Window details = openDetails();
        details.setText(IDC_WEIGHT, text);
        finish(details);
        const Window again = openDetails();
        EXPECT_EQ(again.control(IDC_WEIGHT).text(), "0") << text;
        again.setText(IDC_WEIGHT, "56900");
        finish(again);
        EXPECT_EQ(tigerText(), before);
    }
}

TEST_F(DetailsTest, LanguageIsTwoCharactersOrNone) {
    startWith(Tiger);
    const std::string before = tigerText();
    const std::string nationality = "<nationality>NATIONALITY_GERMAN</nationality>\r\n";
    for (const std::string_view text : {"fr", "f", "en", "fre", "ge", "Default", "ge", ""}) {
        const Window details = openDetails();
        details.setText(IDC_LANGUAGE, text);
        finish(details);
        const bool isKept = text.size() == 2;
        const std::string line = isKept ? "\t\t<language>" + std::string(text) + "</language>\r\n" : "";
        EXPECT_EQ(tigerText(), withReplaced(before, nationality, nationality + line)) << text;
        const Window again = openDetails();
        EXPECT_EQ(again.control(IDC_LANGUAGE).text(), isKept ? text : "Default");
        finish(again, IDCANCEL);
    }
}

TEST_F(DetailsTest, UniformMethodEnablesItsLists) {
    startWith(Tiger);
    const std::string before = tigerText();
    const auto expectLists = [](Window details, bool isNewMethod) {
        EXPECT_EQ(details.control(IDC_UNIFORM_NEW_METHOD).isChecked(), isNewMethod);
        EXPECT_EQ(details.control(IDC_UNIFORM_OLD_METHOD).isChecked(), !isNewMethod);
        EXPECT_EQ(details.control(IDC_UNIFORM_PROFILE).isEnabled(), isNewMethod);
        EXPECT_EQ(details.control(IDC_UNIFORM_GAME).isEnabled(), isNewMethod);
        EXPECT_EQ(details.control(IDC_UNIFORM_NAME).isEnabled(), !isNewMethod);
    };
    Window details = openDetails();
    expectLists(details, true);
    details.control(IDC_UNIFORM_OLD_METHOD).send(BM_CLICK);
    expectLists(details, false);
    details.setText(IDC_UNIFORM_NAME, "Panzer");
    finish(details);
    const std::string comment = "August 1944.</comment>\r\n";
    EXPECT_EQ(tigerText(), withReplaced(before, comment, comment + "\r\n\t\t<uniform>Panzer</uniform>\r\n"));

    details = openDetails();
    expectLists(details, false);
    EXPECT_EQ(details.control(IDC_UNIFORM_NAME).text(), "Panzer");
    details.control(IDC_UNIFORM_NEW_METHOD).send(BM_CLICK);
    expectLists(details, true);
    details.setText(IDC_UNIFORM_PROFILE, "Profile-Other");
    details.setText(IDC_UNIFORM_GAME, "other_game");
    details.setText(IDC_UNIFORM_RANKS, "other_ranks");
    finish(details);
    EXPECT_NE(tigerText().find("\t\t<uniform_profile>Profile-Other.png</uniform_profile>\r\n"
                               "\t\t<uniform_game>other_game.png</uniform_game>\r\n"
                               "\t\t<uniform_ranks>other_ranks.png</uniform_ranks>\r\n"),
              std::string::npos)
        << tigerText();
    EXPECT_EQ(tigerText().find("<uniform>"), std::string::npos);
}

TEST_F(DetailsTest, HandMadeFileIsReplacedOnlyWhenToldTo) {
    const std::string layout = tigerText();
    const std::string before =
        withReplaced(layout, "\t</vehicle>", "\t\t<paint>grey</paint>\r\n\t</vehicle>");
    game.write(dataFile(Tiger), before);
    startWith(Tiger);
    Window details = openDetails();
    details.setText(IDC_WEIGHT, "1");
    finish(details);
    Window box = editor->waitForDialog("Hand-made file");
    EXPECT_NE(contentOf(box).text.find("paint"), std::string::npos) << contentOf(box);
    finish(box, IDCANCEL);
    EXPECT_EQ(tigerText(), before);
    EXPECT_TRUE(game.backups(dataFile(Tiger)).empty());

    details = openDetails();
    EXPECT_EQ(details.control(IDC_WEIGHT).text(), "1") << "the change is not lost";
    finish(details);
    box = editor->waitForDialog("Hand-made file");
    finish(box, IDOK);
    EXPECT_EQ(tigerText(), withReplaced(layout, "56900", "1"));
    EXPECT_EQ(game.backups(dataFile(Tiger)), std::vector<std::string>{before});
    finish(openDetails());
    EXPECT_TRUE(editor->dialogs().empty()) << "told once";
}

TEST_F(DetailsTest, CancellingChangesNothing) {
    startWith(Tiger);
    const std::string before = tigerText();
    Window details = openDetails();
    details.setText(IDC_LONG_NAME, "Lost");
    details.setText(IDC_WEIGHT, "1");
    details.control(IDC_AMPHIBIOUS).send(BM_CLICK);
    details.control(IDC_LONG_NAME).pressKey(VK_ESCAPE);
    expectGone(details, window);
    details = openDetails();
    EXPECT_EQ(details.control(IDC_LONG_NAME).text(), "Panzerkampfwagen VI Tiger Ausf. E (Sd.Kfz. 181)");
    EXPECT_EQ(details.control(IDC_WEIGHT).text(), "56900");
    EXPECT_FALSE(details.control(IDC_AMPHIBIOUS).isChecked());
    finish(details, IDCANCEL);
    EXPECT_EQ(tigerText(), before);
    EXPECT_FALSE(game.exists("Backups"));
}

} // namespace varrocade::gui
