#include "gui_test.h"

#include <algorithm>
#include <set>

namespace varrocade::gui {

class FileListTest : public GuiTest {};

TEST_F(FileListTest, HoldsTheFilesOfEachCategoryAndOpensThem) {
    game.copyFromSample("Images");
    game.copyFromSample("Data\\Weapons");
    start();
    for (const CategoryParts& category : Categories) {
        SCOPED_TRACE(category.name);
        chooseCategory(category.button);
        EXPECT_EQ(entries(), game.names("Data\\" + std::string(category.name)));
        // Weapons are many, and show much the same.
        const std::size_t step = category.button == WeaponsId ? 10 : 1;
        const std::vector<std::string> names = entries();
        for (std::size_t i = 0; i < names.size(); i += step) {
            select(names[i]);
            EXPECT_TRUE(isEnabled(DuplicateId) && isEnabled(RenameId) && isEnabled(DeleteId)) << names[i];
        }
    }
}

TEST_F(FileListTest, FileChangedElsewhereIsReadAgainWhenSelectedAgain) {
    start();
    select(Tiger);
    const std::string text = game.read(dataFile(Tiger));
    game.write(dataFile(Tiger), withReplaced(text, "56900", "12345"));
    select(Tiger);
    const Window details = openDetails();
    EXPECT_EQ(details.control(IDC_WEIGHT).text(), "12345");
    finish(details, IDCANCEL);
}

TEST_F(FileListTest, WhatChangesElsewhereIsNoticedWhileTheWindowIsInFront) {
    start();
    select(Tiger);
    game.write(dataFile(Tiger), withReplaced(game.read(dataFile(Tiger)), "56900", "12345"));
    game.write(dataFile("German New"), game.read(dataFile(Tiger)));
    EXPECT_TRUE(eventually([&] {
        const std::vector<std::string> names = entries();
        return std::find(names.begin(), names.end(), "German New") != names.end();
    }));
    EXPECT_EQ(selected(), Tiger);
    const Window details = openDetails();
    EXPECT_EQ(details.control(IDC_WEIGHT).text(), "12345");
    finish(details, IDCANCEL);
}

TEST_F(FileListTest, RemembersTheSelectionOfEachCategory) {
    start();
    select(Tiger);
    chooseCategory(InfantryId);
    EXPECT_EQ(selected(), "");
    EXPECT_FALSE(isEnabled(DuplicateId));
    list().choose(2);
    const std::string squad = selected();
    chooseCategory(VehiclesId);
    EXPECT_EQ(selected(), Tiger);
    EXPECT_TRUE(isEnabled(DuplicateId));
    chooseCategory(InfantryId);
    EXPECT_EQ(selected(), squad);
    EXPECT_TRUE(isEnabled(RenameId));
    EXPECT_TRUE(window.control(IDC_EDIT_DETAILS).isVisible());
}

TEST_F(FileListTest, FilterShowsWhatHoldsEveryWord) {
    game.write(dataFile("German Tiger II"), "<squad>");
    start();
    const std::vector<std::string> all = entries();
    select(Tiger);
    const Window filter = window.control(IDC_FILTER);
    EXPECT_EQ(filter.areaInParent(), (Area{4, 43, 350, 22}));

    sendCommand(IDM_FIND);
    EXPECT_EQ(editor->focus(), filter);
    window.setText(IDC_FILTER, "TIGER  ger");
    EXPECT_EQ(entries(), (std::vector<std::string>{std::string(Tiger), "German Tiger II"}));
    EXPECT_EQ(selected(), Tiger);
    window.setText(IDC_FILTER, "no such file");
    EXPECT_TRUE(entries().empty());
    EXPECT_FALSE(isEnabled(DeleteId)) << "nothing is selected";
    const Window notice = window.control(IDC_LIST_NOTICE);
    const Window remedy = window.control(IDC_LIST_REMEDY);
    EXPECT_TRUE(notice.isVisible() && remedy.isVisible());
    EXPECT_EQ(notice.text(),
              "Vehicles: the filter \"no such file\" hides all " + std::to_string(all.size()) + ".");
    EXPECT_EQ(remedy.text(), "Show all");
    sendCommand(IDC_LIST_REMEDY);
    EXPECT_EQ(entries(), all);
    EXPECT_FALSE(notice.isVisible() || remedy.isVisible());

    window.setText(IDC_FILTER, "stug");
    sendCommand(IDM_FIND);
    filter.pressKey(VK_RETURN);
    EXPECT_TRUE(eventually([&] { return selected() == "German StuG III Ausf G"; }))
        << "the only hit is opened";
    window.setText(IDC_FILTER, "");
    select(Tiger);
    window.setText(IDC_FILTER, "tiger");
    sendCommand(IDM_FIND);
    filter.pressKey(VK_RETURN);
    EXPECT_TRUE(eventually([&] { return editor->focus() == list(); }));
    EXPECT_EQ(entries().size(), 2U);
    sendCommand(IDM_FIND);
    filter.pressKey(VK_ESCAPE);
    EXPECT_TRUE(eventually([&] { return filter.text().empty() && editor->focus() == list(); }));
    EXPECT_EQ(entries(), all);
    EXPECT_EQ(selected(), Tiger) << "it is open all the time";
    EXPECT_TRUE(isEnabled(DeleteId));
    window.setText(IDC_FILTER, "tiger");
    sendCommand(InfantryId);
    EXPECT_EQ(filter.text(), "") << "it was for the vehicles";
    EXPECT_FALSE(entries().empty());
}

TEST_F(FileListTest, KeysMoveAndCommand) {
    start();
    list().choose(0);
    list().pressKey(VK_DOWN);
    EXPECT_TRUE(eventually([&] { return selected() == entries()[1]; }));
    for (const char letter : std::string_view("German S")) {
        list().post(WM_CHAR, static_cast<WPARAM>(letter), 1);
    }
    EXPECT_TRUE(eventually([&] { return selected().starts_with("German S"); })) << selected();
    const std::string name = selected();

    list().pressKey(VK_RETURN);
    const Window details = editor->waitForDialog("Details");
    EXPECT_NE(details.control(IDC_LONG_NAME).text(), "");
    finish(details, IDCANCEL);

    list().pressKey(VK_F2);
    const Window rename = editor->waitForDialog("Rename");
    EXPECT_EQ(rename.control(IDC_NEW_NAME).text(), name);
    finish(rename, IDCANCEL);

    list().pressKey(VK_DELETE);
    answer({"Delete " + name, "Are you sure you want to delete this squad?", {IDYES, IDNO}}, IDNO);
    EXPECT_TRUE(game.exists(dataFile(name)));

    game.write(dataFile("Polish New One"), "<squad>");
    list().pressKey(VK_F5);
    EXPECT_TRUE(eventually([&] { return entries() == game.names("Data\\Vehicles"); }));
    EXPECT_EQ(selected(), name);
    game.remove(dataFile("Polish New One"));
    chooseCategory(VehiclesId);
    EXPECT_EQ(entries(), game.names("Data\\Vehicles")) << "the same category again";
    EXPECT_EQ(selected(), name);
}

TEST_F(FileListTest, TabReachesEveryControl) {
    start();
    select(Tiger);
    std::set<int> reached;
    for (std::size_t i = 0; i < 14; ++i) {
        const Window before = editor->focus();
        reached.insert(GetDlgCtrlID(before.handle()));
        before.pressKey(VK_TAB);
        EXPECT_TRUE(eventually([&] { return editor->focus() != before; }))
            << "stuck at " << *reached.rbegin();
    }
    EXPECT_EQ(reached,
              (std::set<int>{ListId, NewId, DuplicateId, RenameId, DeleteId, VehiclesId, AtGunsId, InfantryId,
                             AircraftId, WeaponsId, IDC_FILTER, IDC_DRAWING, IDC_SHEET, IDC_EDIT_DETAILS}));
    EXPECT_EQ(editor->focus(), list()) << "once around";
}

TEST_F(FileListTest, MouseSelectsAndOpens) {
    start();
    const LRESULT height = list().send(LB_GETITEMHEIGHT);
    const LPARAM place = MAKELPARAM(60, 2 * height + height / 2);
    list().post(WM_LBUTTONDOWN, MK_LBUTTON, place);
    list().post(WM_LBUTTONUP, 0, place);
    EXPECT_TRUE(eventually([&] { return isEnabled(DuplicateId); }));
    EXPECT_EQ(selected(), entries()[2]);
    list().post(WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    list().post(WM_LBUTTONUP, 0, place);
    finish(editor->waitForDialog("Details"), IDCANCEL);
}

} // namespace varrocade::gui
