// The workspace without a window: what is open, what is saved of it, what is asked before something is lost.

#include "app/workspace/names/list_notice.h"
#include "app/workspace/options.h"
#include "app/workspace/options_file.h"
#include "workspace_fixture.h"

namespace varrocade::tests {
namespace {

TEST_F(WorkspaceTest, UnitsAndWeaponsAreChangedUndoneAndSavedAlike) {
    for (const auto& [category, name] :
         {std::pair(Category::Vehicles, "German Tank"), {Category::Weapons, "Gun"}}) {
        chooseCategory(workspace, category);
        openEntry(workspace, name);
        const std::string path = pathOf(workspace, name).substr(folder.path().size());
        EXPECT_FALSE(workspace.open.isUnsaved());
        const Record opened = workspace.open.present.record;
        listener.heard.clear();
        change("WEAPON_NEW");
        EXPECT_TRUE(workspace.open.isUnsaved());
        undoChange(workspace);
        EXPECT_EQ(workspace.open.present.record, opened);
        EXPECT_FALSE(workspace.open.isUnsaved());
        redoChange(workspace);
        redoChange(workspace);
        ASSERT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
        EXPECT_FALSE(workspace.open.isUnsaved());
        EXPECT_EQ(listener.heard, category == Category::Weapons
                                      ? "changed changed changed saved "
                                      : "changed rearranged2 changed rearranged2 changed saved ");
        const std::string saved = folder.read(path);
        EXPECT_NE(saved.find("WEAPON_NEW"), std::string::npos);
        EXPECT_EQ(workspace.open.content, saved);
        if (category == Category::Weapons) {
            EXPECT_NE(workspace.catalogue.find("WEAPON_NEW"), nullptr) << "offered at once";
        }
        undoChange(workspace);
        EXPECT_TRUE(workspace.open.isUnsaved()) << "the file has what was undone";
        ASSERT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
        EXPECT_EQ(folder.read(path).find("WEAPON_NEW"), std::string::npos);
    }
    EXPECT_EQ(captions(), Names());
}

TEST_F(WorkspaceTest, WhatCannotBeLoadedLeavesNothingOpenAndIsShown) {
    openEntry(workspace, "German Tank");
    EXPECT_FALSE(openFile(workspace, "Missing"));
    EXPECT_FALSE(isRecordOpen(workspace));
    chooseCategory(workspace, Category::Weapons);
    folder.write("Game\\Data\\Weapons\\Odd.txt", "<weapon><name>N</name><type>WEAPON_BOW</type></weapon>");
    EXPECT_TRUE(openFile(workspace, "Odd"));
    EXPECT_EQ(captions(), (Names{"Couldn't load file", "N"}));
    EXPECT_EQ(MessageRecorder::shown()[0].text,
              workspace.programFolder + "Data\\Vehicles\\Missing.txt\n\nCheck that the filename is made of "
                                        "ASCII characters and not Unicode");
    EXPECT_EQ(MessageRecorder::shown()[1].text, "unknown <type> 'WEAPON_BOW'");
    EXPECT_EQ(MessageRecorder::shown()[1].icon, MessageIcon::Error);
}

TEST_F(WorkspaceTest, AHandMadeFileIsAskedForOnceAndBeforeItIsReplaced) {
    const std::string handMade = "// by hand\n" + tankText() + "<extra>lost</extra>";
    folder.write("Game\\" + Tank, handMade);
    openEntry(workspace, "German Tank");
    change("New");
    MessageRecorder::answer({Answer::Cancel});
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Failed);
    EXPECT_EQ(captions(), Names{"Hand-made file"});
    EXPECT_NE(MessageRecorder::shown()[0].text.find("extra"), std::string::npos);
    EXPECT_EQ(folder.read("Game\\" + Tank), handMade);
    EXPECT_TRUE(workspace.open.isUnsaved());
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    change("Newer");
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    EXPECT_EQ(captions().size(), 2U);
    const Names backups = files("Game\\Backups\\");
    ASSERT_EQ(backups.size(), 2U) << "and what was saved in between";
    EXPECT_EQ((folder.read(backups[0]) == handMade) + (folder.read(backups[1]) == handMade), 1);
}

TEST_F(WorkspaceTest, AFailedSaveChangesNothing) {
    openEntry(workspace, "German Tank");
    nudge(Gun);
    folder.write("Game\\Backups", "no folder");
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Failed);
    ASSERT_EQ(captions(), Names{"Couldn't save file"});
    EXPECT_EQ(MessageRecorder::shown()[0].text, folder.path() + "Game\\" + Tank);
    EXPECT_EQ(folder.read("Game\\" + Tank), tankText());
    MessageRecorder::answer({Answer::Yes});
    openEntry(workspace, "German Truck");
    EXPECT_EQ(captions(), (Names{"Save changes", "Couldn't save file"}));
    EXPECT_EQ(openFileName(workspace), "German Tank") << "it stays open";
    EXPECT_EQ(workspace.list.selected, "German Tank");
    EXPECT_EQ(moved(), "w");
    EXPECT_TRUE(workspace.open.isUnsaved());
}

TEST_F(WorkspaceTest, TheMarksOfMovedPositionsFollowMovesInTheDrawingAndSaves) {
    openEntry(workspace, "German Tank");
    openUnit(workspace)->vehicle->components[1].weapons[0].offsetX += 5;
    recordChanged(workspace, "Weapon");
    EXPECT_EQ(moved(), "") << "a dialog moved it";
    change("New");
    undoChange(workspace);
    EXPECT_EQ(moved(), "") << "nor is it undone in the drawing";
    nudge(Gun);
    nudge(Pipe);
    EXPECT_EQ(moved(), "we");
    undoChange(workspace);
    EXPECT_EQ(moved(), "w");
    ASSERT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    EXPECT_EQ(moved(), "");
    undoChange(workspace);
    EXPECT_EQ(moved(), "w") << "the file has the gun where it was";
    redoChange(workspace);
    EXPECT_EQ(moved(), "");
    undoChange(workspace);
    nudge(Gun, -3);
    EXPECT_EQ(moved(), "w") << "another move than the saved one";

    ASSERT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    const RecordState before = workspace.open.present;
    EXPECT_TRUE(moveOpenPart(workspace, Pipe, {40, 40}, {}));
    EXPECT_EQ(moved(), "e");
    const Point start = positionOf(std::get<SquadRecord>(before.record), Pipe).value();
    EXPECT_TRUE(moveOpenPart(workspace, Pipe, start, {}));
    EXPECT_FALSE(finishMove(workspace, Pipe, before));
    EXPECT_EQ(moved(), "") << "the mouse put it back";
    EXPECT_FALSE(isMoveLast(workspace, Pipe));
    EXPECT_TRUE(isMoveLast(workspace, Gun));
}

TEST_F(WorkspaceTest, MovedPositionsAreAskedForUntilTheyAreSavedOrDropped) {
    const auto open = [&](const char* name, std::vector<Answer> answers) {
        MessageRecorder::answer(std::move(answers));
        openEntry(workspace, name);
        return openFileName(workspace);
    };
    EXPECT_EQ(open("German Tank", {}), "German Tank");
    nudge(Gun);
    EXPECT_EQ(open("German Truck", {Answer::Cancel}), "German Tank");
    EXPECT_EQ(moved(), "w");
    EXPECT_EQ(workspace.list.selected, "German Tank");
    // A dialog that is cancelled comes after the question: the tank stays open, and so do its marks.
    for (int time = 0; time < 2; ++time) {
        MessageRecorder::answer({Answer::No});
        EXPECT_TRUE(mayLeavePositions(workspace));
        EXPECT_EQ(captions(), Names{"Save changes"});
        EXPECT_EQ(moved(), "w");
    }
    EXPECT_EQ(open("German Truck", {Answer::No}), "German Truck");
    EXPECT_EQ(folder.read("Game\\" + Tank), tankText());
    EXPECT_EQ(moved(), "") << "they went with the tank";
    EXPECT_EQ(open("German Tank", {}), "German Tank");
    EXPECT_EQ(captions(), Names());
    nudge(Pipe);
    nudge(Gun);
    EXPECT_EQ(open("German Truck", {Answer::Yes}), "German Truck");
    EXPECT_EQ(MessageRecorder::shown()[0].text, "Save your changes to weapon and exhaust positions?");
    EXPECT_NE(folder.read("Game\\" + Tank), tankText());
}

TEST_F(WorkspaceTest, OpensAgainWhatAnotherProgramChanged) {
    openEntry(workspace, "German Tank");
    listener.heard.clear();
    folder.write("Game\\" + Tank, tankText() + "// only a comment\n");
    openEntry(workspace, "German Tank");
    EXPECT_EQ(listener.heard, "");
    const std::string changed = [] {
        SquadRecord unit = readUnitText(tankText());
        unit.longName = "Theirs";
        return vehicleFileText(unit).value();
    }();
    folder.write("Game\\" + Tank, changed);
    refreshAll(workspace);
    EXPECT_EQ(openUnit(workspace)->longName, "Theirs");
    change("Ours");
    folder.write("Game\\" + Tank, tankText());
    openEntry(workspace, "German Tank");
    EXPECT_EQ(openUnit(workspace)->longName, "Ours") << "what is unsaved stays";
}

TEST_F(WorkspaceTest, RemembersTheSelectionAndDropsAFilterThatHidesAFile) {
    openEntry(workspace, "German Truck");
    chooseCategory(workspace, Category::Infantry);
    setFilter(workspace, "tank");
    EXPECT_TRUE(workspace.list.shown.empty());
    EXPECT_FALSE(openFirstShown(workspace));
    EXPECT_EQ(listNotice(workspace).text, "Infantry: the filter \"tank\" hides the only one.");
    EXPECT_EQ(listNotice(workspace).remedy, ListRemedy::ShowAll);
    chooseCategory(workspace, Category::Vehicles);
    EXPECT_NE(listener.heard.find("unfiltered"), std::string::npos);
    EXPECT_EQ(workspace.list.shown.size(), 2U) << "the filter was for the other category";
    EXPECT_EQ(openFileName(workspace), "German Truck") << "what is remembered";
    EXPECT_EQ(listNotice(workspace).text, "");
    setFilter(workspace, "tank");
    EXPECT_TRUE(openFirstShown(workspace));
    EXPECT_EQ(openFileName(workspace), "German Tank");
    openEntry(workspace, "German Truck");
    setFilter(workspace, "squad");
    showFile(workspace, Category::Infantry, "German Squad");
    EXPECT_EQ(openFileName(workspace), "German Squad");
    EXPECT_EQ(workspace.list.selected, "German Squad");
    chooseCategory(workspace, Category::Vehicles);
    EXPECT_EQ(openFileName(workspace), "German Truck");
    setFilter(workspace, "tank");
    EXPECT_EQ(workspace.list.selected, "");
    setFilter(workspace, "");
    EXPECT_EQ(workspace.list.selected, "German Truck") << "shown again, it is selected again";
}

TEST_F(WorkspaceTest, GoesOnInTheFolderOfAGame) {
    const std::string game = workspace.programFolder;
    workspace.programFolder = folder.path() + "Elsewhere\\";
    refreshAll(workspace);
    const ListNotice notice = listNotice(workspace);
    EXPECT_EQ(notice.remedy, ListRemedy::ChooseFolder);
    EXPECT_NE(notice.text.find(workspace.programFolder), std::string::npos) << notice.text;
    EXPECT_FALSE(moveToGame(workspace, folder.path() + "Nowhere\\"));
    EXPECT_EQ(captions(), Names{"Error"});
    folder.write("Game\\options.dat", encodeOptions("C:\\Installed\\"));
    EXPECT_TRUE(moveToGame(workspace, game));
    EXPECT_EQ(workspace.list.all.size(), 2U);
    EXPECT_EQ(workspace.gameFolder, "C:\\Installed\\");
    EXPECT_NE(workspace.catalogue.find("Gun"), nullptr);
    chooseCategory(workspace, Category::Aircraft);
    EXPECT_EQ(listNotice(workspace).remedy, ListRemedy::None);
    EXPECT_NE(listNotice(workspace).text, "");
}

TEST_F(WorkspaceTest, ThatAFileExistsIsToldBeforeItsNationality) {
    folder.write("Game\\Data\\Vehicles\\Sole.txt", tankText());
    openNewFile(workspace, "German Tank");
    EXPECT_EQ(renameFile(workspace, "Sole"), "That file already exists");
    EXPECT_EQ(duplicateRecord(workspace, "Sole"), "File already exists");
    EXPECT_EQ(renameFile(workspace, "Other").value_or("").find("The filename must"), 0U);
}

TEST_F(WorkspaceTest, FilesAreMadeDuplicatedRenamedAndDeleted) {
    EXPECT_EQ(createUnit(workspace, "Tank", "NATIONALITY_GERMAN").value_or("").find("The filename must"), 0U);
    EXPECT_EQ(createUnit(workspace, "German Tank", "NATIONALITY_GERMAN"), "Squad name already exists");
    ASSERT_FALSE(createUnit(workspace, "German Two", "NATIONALITY_GERMAN"));
    openNewFile(workspace, "German Two");
    EXPECT_EQ(workspace.list.selected, "German Two");
    change("Kept");
    EXPECT_EQ(duplicateRecord(workspace, "German Tank"), "File already exists");
    ASSERT_FALSE(duplicateRecord(workspace, "German Three"));
    EXPECT_NE(folder.read("Game\\Data\\Vehicles\\German Three.txt").find("Kept"), std::string::npos);

    EXPECT_EQ(renameFile(workspace, "German Tank"), "That file already exists");
    EXPECT_EQ(renameFile(workspace, "German Two"), "That file already exists");
    ASSERT_FALSE(renameFile(workspace, "German TWO"));
    ASSERT_FALSE(renameFile(workspace, "German Four"));
    showRenamed(workspace);
    EXPECT_EQ(workspace.list.selected, "German Four");
    EXPECT_EQ(lastStepName(workspace), "Rename German TWO");
    undoLast(workspace);
    EXPECT_EQ(workspace.list.selected, "German TWO");
    EXPECT_EQ(lastStepName(workspace), "Name") << "which is older";
    ASSERT_FALSE(renameFile(workspace, "German Four"));
    showRenamed(workspace);
    change("Later");
    undoLast(workspace);
    undoLast(workspace);
    EXPECT_EQ(openFileName(workspace), "German Four") << "of all its steps";
    EXPECT_FALSE(workspace.open.isUnsaved());
    change("Unsaved");

    setFilter(workspace, "German F");
    MessageRecorder::answer({Answer::No, Answer::Yes});
    deleteFile(workspace);
    EXPECT_EQ(files("Game\\Data\\Vehicles\\").size(), 4U);
    deleteFile(workspace);
    EXPECT_EQ(captions(), (Names{"Delete German Four", "Delete German Four"}));
    EXPECT_EQ(files("Game\\Data\\Vehicles\\").size(), 3U);
    EXPECT_EQ(files("Game\\Backups\\Data\\Vehicles\\German Four").size(), 3U) << "and the unsaved changes";
    EXPECT_FALSE(isRecordOpen(workspace));
    chooseCategory(workspace, Category::Infantry);
    undoLast(workspace);
    EXPECT_EQ(workspace.list.selected, "German Four") << "back from another category";
    EXPECT_EQ(openUnit(workspace)->longName, "Unsaved");
    undoLast(workspace);
    EXPECT_FALSE(workspace.open.isUnsaved()) << "with its history";
    openEntry(workspace, workspace.list.all.back());
    MessageRecorder::answer({Answer::Yes});
    deleteFile(workspace);
    EXPECT_EQ(openFileName(workspace), workspace.list.all.back()) << "at the end the one before";

    folder.write("Game\\Backups", "no folder");
    chooseCategory(workspace, Category::Weapons);
    ASSERT_FALSE(createWeapon(workspace, "WEAPON_X"));
    openNewFile(workspace, "WEAPON_X");
    EXPECT_NE(workspace.catalogue.find("WEAPON_X"), nullptr);
}

TEST_F(WorkspaceTest, SwitchesToAnExistingModAndBack) {
    detectModMode(workspace);
    EXPECT_FALSE(workspace.modMode);
    folder.write("Game\\Mod\\Mod.txt", "<mod><name>M</name></mod>");
    folder.write("Game\\Mod\\Data\\Vehicles\\German Mod Tank.txt", tankText());
    folder.write("Game\\Mod\\" + Tank, "theirs");
    openEntry(workspace, "German Tank");
    EXPECT_FALSE(switchModMode(workspace));
    EXPECT_TRUE(workspace.modMode);
    EXPECT_EQ(workspace.modSettings.value_or(ModSettings()).name, "M");
    EXPECT_EQ(workspace.list.all.size(), 2U);
    EXPECT_EQ(openFileName(workspace), "German Tank") << "kept on the screen";
    EXPECT_EQ(workspace.list.selected, "") << "though the mod has a file of that name";
    change("Ours");
    EXPECT_EQ(markOf(workspace, "German Tank"), EntryMark::None);
    MessageRecorder::answer({Answer::Cancel});
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Failed);
    EXPECT_EQ(captions(), Names{"Changed outside"});
    EXPECT_EQ(folder.read("Game\\Mod\\" + Tank), "theirs");
    MessageRecorder::answer({});
    EXPECT_EQ(rememberedSelection(workspace), "");
    openEntry(workspace, "German Mod Tank");
    change("Unsaved");
    EXPECT_FALSE(switchModMode(workspace));
    EXPECT_FALSE(workspace.modMode || workspace.modSettings);
    EXPECT_FALSE(isRecordOpen(workspace));
    EXPECT_EQ(workspace.list.all.size(), 2U);
    EXPECT_EQ(unsavedRecordText(workspace, workspace.aside[1]),
              "Vehicles: German Mod Tank (in " + workspace.modFolder + ")");
    EXPECT_EQ(markOf(workspace, "German Tank"), EntryMark::Unsaved) << "in the folder that it came from";
    folder.write("User\\AppData\\Roaming\\Quorlin Games\\Varrocade\\Mod\\Mod.txt", "");
    EXPECT_TRUE(detectModMode(workspace));
    EXPECT_EQ(baseFolder(workspace).find(workspace.profileFolder), 0U) << "the user's comes first";
    EXPECT_EQ(captions(), Names());
}

TEST_F(WorkspaceTest, CreatesAModWhenTheUserWantsOne) {
    openEntry(workspace, "German Tank");
    nudge(Gun);
    for (const auto& [answers, boxes] :
         {std::pair(std::vector{Answer::Cancel}, 1U), {std::vector{Answer::No, Answer::Cancel}, 2U}}) {
        MessageRecorder::answer(answers);
        EXPECT_FALSE(switchModMode(workspace));
        EXPECT_EQ(captions().size(), boxes);
        EXPECT_FALSE(workspace.modMode);
        EXPECT_EQ(moved(), "w") << "the tank stays";
        EXPECT_EQ(rememberedSelection(workspace), "German Tank");
    }
    folder.write("User", "no folder");
    MessageRecorder::answer({Answer::No, Answer::Ok});
    EXPECT_FALSE(switchModMode(workspace));
    EXPECT_EQ(captions(), (Names{"Save changes", "Create New Mod", "Failed to create directory"}));
    EXPECT_FALSE(workspace.modMode);

    workspace.profileFolder = folder.path() + "Other";
    folder.write("Other\\AppData\\Roaming\\any", "");
    MessageRecorder::answer({Answer::No, Answer::Ok});
    EXPECT_TRUE(switchModMode(workspace));
    EXPECT_TRUE(workspace.modMode);
    EXPECT_FALSE(isRecordOpen(workspace));
    EXPECT_EQ(moved(), "");
    EXPECT_TRUE(workspace.aside.empty()) << "what was moved is dropped";
    const std::string modFile =
        folder.read("Other\\AppData\\Roaming\\Quorlin Games\\Varrocade\\Mod\\Mod.txt");
    EXPECT_EQ(readModSettings(modFile), workspace.modSettings);
    EXPECT_FALSE(workspace.modSettings.value_or(ModSettings()).nationalities.empty());
}

TEST_F(WorkspaceTest, OptionsKeepTheGamesFolder) {
    workspace.gameFolder = "C:\\Games\\";
    EXPECT_EQ(writeOptions(workspace), 1);
    workspace.gameFolder = "other";
    EXPECT_TRUE(readOptions(workspace));
    EXPECT_EQ(workspace.gameFolder, "C:\\Games\\");
    workspace.programFolder = folder.path() + "None\\";
    EXPECT_TRUE(readOptions(workspace));
    EXPECT_EQ(workspace.gameFolder, "");
    EXPECT_EQ(writeOptions(workspace), 0);
    EXPECT_EQ(captions(), Names{"Couldn't save file"});
}

} // namespace
} // namespace varrocade::tests
