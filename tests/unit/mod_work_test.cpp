// Working in a mod with the game's units at hand.

#include "app/workspace/mod/mod_work.h"

#include "app/workspace/mod/mod_band.h"
#include "app/workspace/mod/mod_memory.h"
#include "app/workspace/names/list_notice.h"
#include "app/workspace/options.h"
#include "mod/mod_settings.h"
#include "workspace_fixture.h"

namespace varrocade::tests {
namespace {

class ModWorkTest : public WorkspaceTest {
protected:
    ModWorkTest() {
        folder.write("Game\\Mod\\Mod.txt", "<mod><name>M</name></mod>");
        folder.write("Game\\Mod\\Data\\Vehicles\\German truck.txt", tankText());
        WeaponRecord rifle = newWeapon("WEAPON_A");
        rifle.shootSound = "bang";
        folder.write("Game\\Data\\Weapons\\WEAPON_A.txt", weaponFileText(rifle));
        folder.write("Game\\Sounds\\bang.wav", "bang");
        detectModMode(workspace);
    }
};

TEST_F(ModWorkTest, ShowsTheGamesUnitsBehindTheModsOnRequest) {
    EXPECT_EQ(workspace.list.all, Names{"German truck"}) << "to begin with the mod's alone";
    showGameUnits(workspace, true);
    EXPECT_EQ(workspace.list.all, (Names{"German truck", "German Tank"}))
        << "the mod's truck hides the game's";
    EXPECT_TRUE(isOfGame(workspace.list, "German Tank") && !isOfGame(workspace.list, "German truck"));
    openEntry(workspace, "German Tank");
    EXPECT_EQ(listedOpenName(workspace), "German Tank");
    deleteFile(workspace);
    EXPECT_EQ(captions(), Names()) << "the game's are not deleted from a mod";
    change("Ours");
    EXPECT_EQ(markOf(workspace, "German Tank"), EntryMark::Unsaved);
    openEntry(workspace, "German truck");
    openEntry(workspace, "German Tank");
    EXPECT_TRUE(workspace.open.isUnsaved()) << "as it was left";
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    EXPECT_EQ(folder.read("Game\\" + Tank), tankText()) << "the game's own stays";
    EXPECT_EQ(files("Game\\Mod\\" + Tank).size(), 1U);
    EXPECT_FALSE(isOfGame(workspace.list, "German Tank"));
    EXPECT_EQ(listedOpenName(workspace), "German Tank");
    noticeOutsideChanges(workspace);
    showGameUnits(workspace, false);
    EXPECT_EQ(workspace.list.all.size(), 2U);
}

TEST_F(ModWorkTest, CopiesWhatIsNeededAndTakesItBack) {
    showGameUnits(workspace, true);
    openEntry(workspace, "German Tank");
    change("Unsaved");
    const Names both = {"German Tank", "None"};
    ModWork work = copyIntoMod(workspace, Category::Vehicles, both, CopyNeeds::Yes);
    EXPECT_EQ(work.done, (Names{Tank, "Data\\Weapons\\WEAPON_A.txt", "Sounds\\bang.wav"}));
    EXPECT_EQ(work.failures.size(), 1U);
    EXPECT_EQ(folder.read("Game\\Mod\\" + Tank), tankText()) << "byte for byte";
    EXPECT_EQ(markOf(workspace, "German Tank"), EntryMark::Unsaved) << "now of the mod's file";
    work = copyIntoMod(workspace, Category::Vehicles, Names{"German Tank"}, CopyNeeds::No);
    EXPECT_EQ(work.left, Names{Tank});
    discardChanges(workspace);
    work = removeFromMod(workspace, Category::Vehicles, Names{"German Tank", "Nobody"});
    EXPECT_EQ(work.done, Names{Tank});
    EXPECT_EQ(work.left.size(), 1U);
    EXPECT_FALSE(isRecordOpen(workspace));
    EXPECT_TRUE(isOfGame(workspace.list, "German Tank"));
    EXPECT_EQ(files("Game\\Mod\\Backups\\Data\\Vehicles").size(), 2U) << "what was discarded, and the file";
}

TEST_F(ModWorkTest, OpensModsOfAnyFolder) {
    folder.write("Elsewhere\\Mod.txt", "<mod><name>Other</name></mod>");
    EXPECT_FALSE(openOtherMod(workspace, folder.path() + "None\\"));
    EXPECT_TRUE(openOtherMod(workspace, folder.path() + "Elsewhere\\"));
    EXPECT_EQ(workspace.modSettings.value_or(ModSettings()).name, "Other");
    EXPECT_TRUE(workspace.list.all.empty());
    const Names both = {folder.path() + "Elsewhere\\", folder.path() + "Game\\Mod\\"};
    EXPECT_EQ(workspace.otherMods, both) << "the usual mod, which was left, too";
    EXPECT_TRUE(openOtherMod(workspace, both[1]));
    EXPECT_TRUE(openOtherMod(workspace, both[0]));
    EXPECT_EQ(workspace.otherMods, both);
    showGameUnits(workspace, true);
    Workspace next;
    next.programFolder = workspace.programFolder;
    ASSERT_TRUE(readOptions(next));
    EXPECT_EQ(next.otherMods, both) << "also in the next run";
    EXPECT_TRUE(next.showsGameUnits);
    forgetMod(next, both[1]);
    readModMemory(workspace);
    EXPECT_EQ(workspace.otherMods, Names{both[0]});
    folder.write("Game\\editor.txt", "<editor><mod>no backslash</mod><mod>A\\</mod><mod>a\\</mod><mod>" +
                                         std::string(300, 'x') + "\\</mod><mod></mod><x></x></editor>");
    readModMemory(workspace);
    EXPECT_EQ(workspace.otherMods, Names{"A\\"});
    EXPECT_FALSE(workspace.showsGameUnits);
}

TEST_F(ModWorkTest, TellsWhatCanBeBroughtInAndWhereItGoes) {
    EXPECT_EQ(namesToCopy(workspace, Category::Vehicles), Names{"German Tank"});
    EXPECT_EQ(namesToRemove(workspace, Category::Vehicles), Names{"German truck"});
    EXPECT_EQ(modBand(workspace), (ModBand{"Mod: M", workspace.modFolder}));
    workspace.hasStartedInMod = true;
    EXPECT_NE(modBand(workspace).remark.find("has started in the mod"), std::string::npos);
    chooseCategory(workspace, Category::Infantry);
    const ListNotice notice = listNotice(workspace);
    EXPECT_EQ(notice.remedy, ListRemedy::ShowGameUnits) << "the mod has no infantry, the game has";
    showGameUnits(workspace, true);
    EXPECT_EQ(listNotice(workspace).text, "");
    openEntry(workspace, "German Squad");
    const std::string path = dataFilePath(workspace.modFolder, Category::Infantry, "German Squad");
    EXPECT_EQ(modBand(workspace).remark, "The game's file. What is changed is saved as " + path);
    change("Ours");
    EXPECT_TRUE(modBand(workspace).isAboutGameFile);
    EXPECT_TRUE(modBand(workspace).remark.ends_with("going to be saved as " + path));
    saveOpenRecord(workspace);
    EXPECT_FALSE(modBand(workspace).isAboutGameFile);
    chooseCategory(workspace, Category::Aircraft);
    EXPECT_EQ(listNotice(workspace).remedy, ListRemedy::None) << "the game has none, either";
    leaveModMode(workspace);
    EXPECT_EQ(modBand(workspace), ModBand());
    EXPECT_FALSE(workspace.hasStartedInMod);
}

} // namespace
} // namespace varrocade::tests
