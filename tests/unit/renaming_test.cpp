// Where names are used, and names that become others everywhere.

#include "app/workspace/names/rename_everywhere.h"
#include "app/workspace/names/used_names.h"
#include "app/workspace/visits/travel.h"
#include "faulty_files.h"
#include "tools/where_used.h"
#include "workspace_fixture.h"

#include <map>

namespace varrocade::tests {
namespace {

/// The files of a folder but for the backups, with their contents.
std::map<std::string, std::string> contentsOf(const TemporaryFolder& folder) {
    std::map<std::string, std::string> contents;
    for (const std::string& file : folder.files()) {
        if (file.find("Backups") == std::string::npos) {
            contents[file] = folder.read(file);
        }
    }
    return contents;
}

std::string refusalsOf(const RenamePlan& plan) {
    std::string text;
    for (const std::string& refusal : plan.refusals) {
        text += refusal + "\n";
    }
    return text;
}

/// A game and a mod for it, with names in odd places.
class Renaming : public testing::Test {
protected:
    Renaming() {
        folder.write(
            "Game\\Data\\Weapons\\Gun.txt",
            "<weapon> // Gun\r\n<name>gUN</name><shoot><sound_shoot>bang</sound_shoot></shoot></weapon>");
        folder.write("Game\\Data\\Weapons\\Other.txt", "<weapon><name>Inner</name></weapon>");
        folder.write("Game\\Data\\Vehicles\\German Tank.txt",
                     "<squad> // the Gun\r\n<vehicle><hull><image_view>Pic.PNG</image_view></hull><turret>"
                     "<image_view>pic</image_view><weapon><type>GUN</type></weapon>\r\n"
                     "<ammo><for>Gu\r\nn</for></ammo></turret></vehicle><unknown>Gun</unknown></squad>");
        folder.write("Game\\Data\\Infantry\\German Men.txt",
                     "<squad><man><weapon><type>Gunner</type></weapon></man></squad>");
        folder.write("Game\\Images\\Units\\Vehicles\\Hulls\\Pic.png", "hull");
        folder.write("Game\\Images\\Units\\Vehicles\\Turrets\\Pic.png", "turret");
        folder.write("Game\\Images\\Flags\\Static\\german.png", "flag");
        folder.write("Game\\Sounds\\bang.wav", "loud");
        folder.write("Game\\Sounds\\Voices\\de_fire.wav", "Feuer");
        folder.write("Mod\\Mod.txt",
                     "<mod><nationality><id>NATIONALITY_GERMAN</id><flag>Mine.png</flag><equipment><unit>"
                     "<file>German Tank</file></unit></equipment></nationality></mod> // German Tank");
        folder.write("Mod\\Data\\Weapons\\Gun.txt", "<weapon><name>Gun</name></weapon>");
        folder.write(
            "Mod\\Data\\Vehicles\\German Tank.txt",
            "<squad><description><nationality>NATIONALITY_GERMAN</nationality></description><vehicle>"
            "<turret><weapon><type>Gun</type></weapon></turret></vehicle></squad>");
        folder.write("Mod\\Images\\Flags\\Static\\Mine.png", "mine");
    }

    [[nodiscard]] RenamePlan plan(RenameKind kind, const std::string& from, const std::string& to,
                                  bool isMod = false) const {
        return planRenaming({.folders = {folder.path() + "Game\\", isMod ? folder.path() + "Mod\\" : ""},
                             .kind = kind,
                             .from = from,
                             .to = to});
    }
    /// What a plan makes of the files: those that are gone or new, and the former and new text of the others.
    std::string done(const RenamePlan& plan) const {
        EXPECT_TRUE(plan.isPossible()) << refusalsOf(plan);
        const auto before = contentsOf(folder);
        BackupKeeper backups;
        const auto failure = applyRewrites(systemFiles(), backups, plan.base, plan.rewrites);
        EXPECT_FALSE(failure) << failure->path << failure->reason;
        const auto after = contentsOf(folder);
        std::string text;
        for (const auto& [name, content] : before) {
            text += after.contains(name) ? "" : "- " + name + "\n";
        }
        for (const auto& [name, content] : after) {
            const auto former = before.find(name);
            text += former == before.end()      ? "+ " + name + ": " + content + "\n"
                    : former->second != content ? "~ " + name + ": " + content + "\n"
                                                : std::string();
        }
        return text;
    }

    TemporaryFolder folder;
};

TEST_F(Renaming, ChangesTheNameInItsPlaceAndNothingElse) {
    EXPECT_EQ(
        done(plan(RenameKind::Weapon, "gun", "New Gun")),
        "- Game\\Data\\Weapons\\Gun.txt\n"
        "~ Game\\Data\\Vehicles\\German Tank.txt: <squad> // the Gun\r\n<vehicle><hull><image_view>Pic.PNG"
        "</image_view></hull><turret><image_view>pic</image_view><weapon><type>New Gun</type></weapon>\r\n"
        "<ammo><for>New Gun\r\n</for></ammo></turret></vehicle><unknown>Gun</unknown></squad>\n"
        "+ Game\\Data\\Weapons\\New Gun.txt: <weapon> // Gun\r\n<name>New Gun</name><shoot><sound_shoot>bang"
        "</sound_shoot></shoot></weapon>\n");
    EXPECT_EQ(
        done(plan(RenameKind::Sound, "bang.wav", "boom")),
        "- Game\\Sounds\\bang.wav\n"
        "~ Game\\Data\\Weapons\\New Gun.txt: <weapon> // Gun\r\n<name>New Gun</name><shoot><sound_shoot>boom"
        "</sound_shoot></shoot></weapon>\n+ Game\\Sounds\\boom.wav: loud\n");
    // Of two pictures of one name, one, and then the other.
    const std::string hull = done(plan(RenameKind::Picture, "Hulls/pic", "Hull.2"));
    EXPECT_NE(hull.find("<hull><image_view>Hull.2.PNG</image_view>"), std::string::npos) << hull;
    EXPECT_NE(hull.find("<image_view>pic</image_view>"), std::string::npos) << hull;
    const std::string turret = done(plan(RenameKind::Picture, "pic.png", "PIC"));
    EXPECT_NE(turret.find("<image_view>PIC</image_view>"), std::string::npos) << "another letter case";
}

TEST_F(Renaming, InAModLeavesTheGamesFilesAlone) {
    const RenamePlan weapon = plan(RenameKind::Weapon, "Gun", "Cannon", true);
    EXPECT_EQ(weapon.remarks.size(), 0U) << "the mod has all files that name it";
    EXPECT_EQ(done(weapon).find("Game"), std::string::npos);
    EXPECT_EQ(
        done(plan(RenameKind::Picture, "Mine", "Ours", true)),
        "- Mod\\Images\\Flags\\Static\\Mine.png\n+ Mod\\Images\\Flags\\Static\\Ours.png: mine\n"
        "~ Mod\\Mod.txt: <mod><nationality><id>NATIONALITY_GERMAN</id><flag>Ours.png</flag><equipment><unit>"
        "<file>German Tank</file></unit></equipment></nationality></mod> // German Tank\n");
    const std::string unit = done(plan(RenameKind::Unit, "German Tank", "German Panzer", true));
    EXPECT_NE(unit.find("<file>German Panzer</file></unit></equipment></nationality></mod> // German Tank"),
              std::string::npos)
        << unit;
    folder.write("Mod\\Checks.txt", "// Gun\r\nno-rounds Data/Weapons/gun.txt: Data/Weapons/Gun.txt\r\n"
                                    "no-rounds Data/Weapons/G*.txt: all of them");
    folder.write("Mod\\Data\\Weapons\\Gun.txt", "<weapon><name>Gun</name></weapon>");
    const RenamePlan overriding = plan(RenameKind::Weapon, "Gun", "Cannon 2", true);
    ASSERT_EQ(overriding.remarks.size(), 1U) << "the game's tank counts again and names it";
    EXPECT_TRUE(overriding.remarks.front().ends_with("Vehicles: German Tank")) << overriding.remarks.front();
    EXPECT_NE(done(overriding)
                  .find("~ Mod\\Checks.txt: // Gun\r\nno-rounds Data/Weapons/Cannon 2.txt: "
                        "Data/Weapons/Gun.txt\r\nno-rounds Data/Weapons/G*.txt: all of them"),
              std::string::npos);
}

TEST_F(Renaming, SaysWhyNot) {
    folder.write("Game\\Data\\Infantry\\German Tank.txt", "<squad></squad>");
    struct Case {
        RenameKind kind;
        std::string from;
        std::string to;
        bool isMod;
        std::string_view reason;
    };
    const std::string path = folder.path();
    const Case cases[] = {
        {RenameKind::Weapon, "Gun", "Other", false, "That file already exists: "},
        {RenameKind::Weapon, "Gun", "inner", false, "Other.txt has that name in it"},
        {RenameKind::Weapon, "Gun", "a:b", false, "Ilegal characters in the filename"},
        {RenameKind::Weapon, "Gun", "a.b", false, "Ilegal characters in the filename"},
        {RenameKind::Weapon, "Gun", std::string(260, 'a'), false, "The game opens paths of at most"},
        {RenameKind::Weapon, "Gun", "Gun", false, "It has that name already"},
        {RenameKind::Weapon, "Nothing", "Some", false, "There is no file of the weapon Nothing"},
        {RenameKind::Weapon, "Other", "Some", true, "Copy it into the mod first"},
        {RenameKind::Picture, "german", "ours", false, "The game looks for this picture by its name"},
        {RenameKind::Sound, "Voices\\de_fire", "de_fires", false, "The game finds voices by their names"},
        {RenameKind::Unit, "German Tank", "German Two", false, "There are several units of that name"},
        {RenameKind::Unit, "Vehicles\\German Tank", "Tank", true, "must begin with the squad's nationality"},
    };
    const auto before = contentsOf(folder);
    for (const Case& one : cases) {
        const RenamePlan refused = plan(one.kind, one.from, one.to, one.isMod);
        EXPECT_FALSE(refused.isPossible()) << one.reason;
        EXPECT_NE(refusalsOf(refused).find(one.reason), std::string::npos) << refusalsOf(refused);
    }
    EXPECT_EQ(contentsOf(folder), before);
}

TEST_F(Renaming, IsDoneAsAWholeOrNotAtAll) {
    const RenamePlan planned = plan(RenameKind::Weapon, "Gun", "Cannon");
    const RenamePlan pictures = plan(RenameKind::Picture, "Pic", "Photo");
    const auto before = contentsOf(folder);
    int failed = 0;
    for (const RenamePlan* one : {&planned, &pictures}) {
        for (int failing = 1;; ++failing) {
            FailingOnce files(failing);
            BackupKeeper backups;
            const auto failure = applyRewrites(files, backups, one->base, one->rewrites);
            if (!files.hasFailed()) {
                EXPECT_FALSE(failure);
                BackupKeeper again;
                EXPECT_FALSE(applyRewrites(systemFiles(), again, one->base, reversed(one->rewrites)));
                EXPECT_EQ(contentsOf(folder), before) << "and back";
                break;
            }
            ++failed;
            ASSERT_TRUE(failure) << failing;
            EXPECT_EQ(contentsOf(folder), before) << "operation " << failing;
        }
    }
    EXPECT_GT(failed, 20);
    // Another program was faster.
    folder.write("Game\\Data\\Vehicles\\German Tank.txt", "<squad></squad>");
    BackupKeeper backups;
    EXPECT_TRUE(applyRewrites(systemFiles(), backups, planned.base, planned.rewrites));
    EXPECT_TRUE(systemFiles().exists(folder.path() + "Game\\Data\\Weapons\\Gun.txt"));
}

TEST_F(Renaming, TheSearchTellsWhatNamesIt) {
    NameSearch search({folder.path() + "Game\\", folder.path() + "Mod\\"}, {"German Tank", "Gun"});
    runJob(search);
    std::string found;
    for (const NameUse& use : search.uses()) {
        found += use.below + ": " + std::string(referenceWord(use.kind)) + " " + use.path + "\n";
    }
    EXPECT_EQ(found, "Mod.txt: unit nationality[1].equipment[1].unit[1].file\n"
                     "Data\\Vehicles\\German Tank.txt: weapon vehicle.turret[1].weapon[1].type\n");
    const std::vector<UsedName> names = usedNames(
        readWeaponText("<weapon><name>Gun</name><shoot><sound_shoot>bang</sound_shoot></shoot></weapon>"));
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(textOf(names[1]), "sound: bang");
    EXPECT_EQ(usedNameOfText(names, "Sound: BANG"), names[1]);
    EXPECT_FALSE(usedNameOfText(names, "bang.wav").hasKind);
}

TEST(RenamingOfTheSample, ThereAndBackGivesTheSameBytes) {
    const TemporaryFolder folder;
    for (const SampleFile& file : sampleFiles()) {
        folder.write(dataFilePath("", file.category, file.name), file.content);
    }
    const auto before = contentsOf(folder);
    int renamed = 0;
    for (std::size_t i = 0; i < sampleFiles().size(); i += 17) {
        const SampleFile& file = sampleFiles()[i];
        const bool isWeapon = file.category == Category::Weapons;
        RenameRequest request{.folders = {folder.path()},
                              .kind = isWeapon ? RenameKind::Weapon : RenameKind::Unit,
                              .from = file.name,
                              .to = file.name + " II"};
        const RenamePlan plan = planRenaming(request);
        ASSERT_TRUE(plan.isPossible()) << file.name << refusalsOf(plan);
        EXPECT_TRUE(plan.remarks.empty()) << plan.remarks.front();
        BackupKeeper backups;
        ASSERT_FALSE(applyRewrites(systemFiles(), backups, plan.base, plan.rewrites));
        NameSearch former(request.folders, {file.name});
        runJob(former);
        EXPECT_TRUE(former.uses().empty()) << former.uses().front().below;
        std::swap(request.from, request.to);
        const RenamePlan back = planRenaming(request);
        ASSERT_FALSE(applyRewrites(systemFiles(), backups, back.base, back.rewrites));
        EXPECT_EQ(contentsOf(folder), before) << file.name;
        ++renamed;
    }
    EXPECT_GT(renamed, 5);
}

// ---- in the workspace

class RenamingInWorkspace : public WorkspaceTest {
protected:
    [[nodiscard]] RenamePlan plan(const std::string& from, const std::string& to) const {
        return planRenaming(
            {.folders = gameFolders(workspace), .kind = RenameKind::Weapon, .from = from, .to = to});
    }
};

TEST_F(RenamingInWorkspace, IsOneStepToUndoAndLosesNothingUnsaved) {
    folder.write("Game\\Data\\Weapons\\WEAPON_A.txt", weaponFileText(newWeapon("WEAPON_A")));
    loadCatalogue(workspace);
    openEntry(workspace, "German Tank");
    change("Changed");
    openEntry(workspace, "German Truck");
    EXPECT_EQ(unsavedWithName(workspace, plan("WEAPON_A", "WEAPON_B"), "WEAPON_A"),
              (std::vector<std::size_t>{0}));
    ASSERT_TRUE(saveAll(workspace));
    chooseCategory(workspace, Category::Weapons);
    openEntry(workspace, "WEAPON_A");
    const auto before = contentsOf(folder);
    const RenamePlan planned = plan("WEAPON_A", "WEAPON_B");
    EXPECT_TRUE(unsavedWithName(workspace, planned, "WEAPON_A").empty());
    ASSERT_TRUE(renameEverywhere(workspace, planned));
    EXPECT_EQ(listedOpenName(workspace), "WEAPON_B");
    EXPECT_EQ(workspace.list.selected, "WEAPON_B");
    EXPECT_NE(folder.read("Game\\" + Tank).find("<type>WEAPON_B</type>"), std::string::npos);
    EXPECT_EQ(lastStepName(workspace), "Rename WEAPON_A everywhere");
    // From another record, which is as its file has it again.
    showFile(workspace, Category::Vehicles, "German Tank");
    EXPECT_EQ(openUnit(workspace)->vehicle->components[1].weapons[0].type, "WEAPON_B");
    undoLast(workspace);
    EXPECT_EQ(contentsOf(folder), before);
    EXPECT_EQ(openUnit(workspace)->vehicle->components[1].weapons[0].type, "WEAPON_A");
    EXPECT_FALSE(canUndoLast(workspace));

    ASSERT_TRUE(renameEverywhere(workspace, planned));
    change("Newer");
    undoLast(workspace);
    redoChange(workspace);
    showFile(workspace, Category::Weapons, "Gun");
    MessageRecorder::answer({});
    undoLast(workspace);
    EXPECT_EQ(captions(), Names{"Couldn't rename"}) << "a file with unsaved changes would lose them";
    EXPECT_NE(folder.read("Game\\" + Tank).find("<type>WEAPON_B</type>"), std::string::npos);
}

TEST_F(RenamingInWorkspace, VisitsLeadBackAndForth) {
    const auto open = [&] { return openFileName(workspace); };
    openEntry(workspace, "German Tank");
    EXPECT_FALSE(canGoBack(workspace) || canGoForward(workspace));
    change("Kept");
    openEntry(workspace, "German Truck");
    showFile(workspace, Category::Weapons, "Gun");
    goBack(workspace);
    EXPECT_EQ(open(), "German Truck");
    goBack(workspace);
    EXPECT_EQ(open(), "German Tank");
    EXPECT_EQ(openUnit(workspace)->longName, "Kept") << "what is unsaved is still there";
    EXPECT_FALSE(canGoBack(workspace));
    goForward(workspace);
    goForward(workspace);
    EXPECT_EQ(open(), "Gun");
    EXPECT_FALSE(canGoForward(workspace));
    // A file that has another name is found, one that is gone passed over.
    goBack(workspace);
    EXPECT_FALSE(renameFile(workspace, "German Lorry"));
    showRenamed(workspace);
    goBack(workspace);
    goForward(workspace);
    EXPECT_EQ(open(), "German Lorry");
    systemFiles().remove(workspace.programFolder + "Data\\Vehicles\\German Lorry.txt");
    goBack(workspace);
    goForward(workspace);
    EXPECT_EQ(open(), "Gun");
    // Going elsewhere from the past forgets what was ahead.
    goBack(workspace);
    showFile(workspace, Category::Infantry, "German Squad");
    EXPECT_FALSE(canGoForward(workspace));
    goBack(workspace);
    EXPECT_EQ(open(), "German Tank");
}

} // namespace
} // namespace varrocade::tests
