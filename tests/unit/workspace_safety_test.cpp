// Nothing is lost: unsaved records, their journal, files that others change, what a cut-off save leaves.

#include "app/workspace/journal.h"
#include "app/workspace/record/chosen_records.h"
#include "app/workspace/record/journal_copies.h"
#include "workspace_fixture.h"

#include <filesystem>
#include <tuple>

namespace varrocade::tests {
namespace {

TEST_F(WorkspaceTest, ChangedRecordsStayInMemoryAsTheyWere) {
    openEntry(workspace, "German Tank");
    change("Tank");
    openEntry(workspace, "German Truck");
    EXPECT_EQ(workspace.aside.size(), 1U);
    openEntry(workspace, "German Tank");
    EXPECT_TRUE(workspace.open.isUnsaved() && workspace.aside.empty());
    undoChange(workspace);
    EXPECT_FALSE(workspace.open.isUnsaved()) << "with its history";
    redoChange(workspace);
    // A No drops what was moved, and nothing else.
    nudge(Gun);
    nudge(Pipe);
    MessageRecorder::answer({Answer::No});
    chooseCategory(workspace, Category::Weapons);
    openEntry(workspace, "Gun");
    change("WEAPON_X");
    SquadRecord wanted = readUnitText(tankText());
    wanted.longName = "Tank";
    ASSERT_EQ(unsavedRecords(workspace).size(), 2U);
    const OpenRecord& tank = *unsavedRecords(workspace)[1];
    EXPECT_EQ(fileTextOf(Category::Vehicles, tank.present.record), vehicleFileText(wanted));
    EXPECT_EQ(markOf(workspace, "Gun"), EntryMark::Unsaved);
    EXPECT_EQ(markOf(workspace, "German Tank"), EntryMark::None) << "is of another category";
    EXPECT_EQ(folder.files().size(), 4U) << "nothing was written";
    showUnsaved(workspace, 1);
    EXPECT_EQ(openFileName(workspace), "German Tank");
    EXPECT_EQ(moved(), "");
    EXPECT_EQ(markOf(workspace, "German TANK"), EntryMark::Unsaved);
    undoChange(workspace);
    EXPECT_EQ(moved(), "we") << "what was dropped can be brought back";
    redoChange(workspace);

    EXPECT_TRUE(saveAll(workspace));
    EXPECT_TRUE(unsavedRecords(workspace).empty() && !canSaveAll(workspace));
    EXPECT_NE(folder.read("Game\\Data\\Weapons\\Gun.txt").find("WEAPON_X"), std::string::npos);
    EXPECT_NE(workspace.catalogue.find("WEAPON_X"), nullptr);
    change("Again");
    discardChanges(workspace);
    EXPECT_FALSE(workspace.open.isUnsaved());
    undoChange(workspace);
    EXPECT_EQ(openUnit(workspace)->longName, "Again");
    EXPECT_EQ(captions(), Names{"Save changes"});
}

TEST_F(WorkspaceTest, WhatAnotherProgramHasChangedIsNeverOverwrittenSilently) {
    SquadRecord unit = readUnitText(tankText());
    unit.longName = "Theirs";
    const std::string theirs = vehicleFileText(unit).value();
    for (const auto& [answer, result, longName] : {std::tuple(Answer::Cancel, SaveResult::Failed, "Ours"),
                                                   {Answer::Yes, SaveResult::NothingToSave, "Theirs"},
                                                   {Answer::No, SaveResult::Saved, "Ours"}}) {
        folder.write("Game\\" + Tank, tankText());
        noticeOutsideChanges(workspace);
        openEntry(workspace, "German Tank");
        change("Ours");
        folder.write("Game\\" + Tank, theirs);
        noticeOutsideChanges(workspace);
        EXPECT_EQ(markOf(workspace, "German Tank"), EntryMark::ChangedOutside);
        MessageRecorder::answer({answer});
        EXPECT_EQ(saveOpenRecord(workspace), result);
        EXPECT_EQ(captions(), Names{"Changed outside"});
        EXPECT_EQ(openUnit(workspace)->longName, longName);
        EXPECT_EQ(folder.read("Game\\" + Tank) == theirs, answer != Answer::No);
        EXPECT_EQ(workspace.open.isUnsaved(), answer == Answer::Cancel);
        if (answer == Answer::Yes) {
            undoChange(workspace);
            EXPECT_EQ(openUnit(workspace)->longName, "Ours") << "reloading can be undone";
        }
        discardChanges(workspace);
    }
    const Names backups = files("Game\\Backups\\");
    // What was given up by reloading and discarding is there, too.
    EXPECT_TRUE(std::any_of(backups.begin(), backups.end(),
                            [&](const std::string& name) { return folder.read(name) == theirs; }));
    EXPECT_TRUE(std::any_of(backups.begin(), backups.end(), [&](const std::string& name) {
        return folder.read(name).find("Ours") != std::string::npos;
    }));
    // Back in the window: what is unchanged is read again, what is gone leaves the list and stays open.
    folder.write("Game\\" + Tank, theirs);
    noticeOutsideChanges(workspace);
    EXPECT_EQ(openUnit(workspace)->longName, "Theirs");
    ASSERT_TRUE(systemFiles().remove(pathOf(workspace, "German Tank")));
    noticeOutsideChanges(workspace);
    EXPECT_EQ(workspace.list.all, Names{"German Truck"});
    EXPECT_EQ(workspace.list.selected, "");
    EXPECT_EQ(openFileName(workspace), "German Tank");
    ASSERT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    EXPECT_EQ(workspace.list.selected, "German Tank");
}

/// Another run of the program in the same folders.
class NextRun {
public:
    explicit NextRun(const Workspace& former) {
        workspace.programFolder = former.programFolder;
        workspace.profileFolder = former.profileFolder;
        detectModMode(workspace);
    }
    Workspace workspace;
};

TEST_F(WorkspaceTest, TheJournalBringsUnsavedChangesToTheNextRun) {
    const std::string copy = "Game\\Backups\\Unsaved\\" + Tank;
    openEntry(workspace, "German Tank");
    change("Tank");
    EXPECT_FALSE(writeJournal(workspace));
    EXPECT_NE(folder.read(copy).find("Tank"), std::string::npos);
    undoChange(workspace);
    EXPECT_FALSE(writeJournal(workspace));
    EXPECT_TRUE(files("Game\\Backups\\").empty()) << "undone, it is gone";
    redoChange(workspace);
    nudge(Gun);
    MessageRecorder::answer({Answer::No});
    EXPECT_TRUE(mayExit(workspace));
    const std::string written = folder.read(copy);
    const auto restore = [&](Answer answer) {
        NextRun next(workspace);
        MessageRecorder::answer({answer});
        offerUnsavedChanges(next.workspace);
        EXPECT_EQ(captions(), Names{"Unsaved changes"});
        EXPECT_NE(MessageRecorder::shown()[0].text.find("Vehicles: German Tank\n"), std::string::npos);
        return std::move(next.workspace);
    };
    EXPECT_TRUE(restore(Answer::Cancel).aside.empty());
    EXPECT_EQ(folder.read(copy), written) << "the next start asks again";

    Workspace next = restore(Answer::Yes);
    openEntry(next, "German Tank");
    EXPECT_EQ(openUnit(next)->longName, "Tank");
    EXPECT_EQ(openUnit(next)->vehicle->components[1].weapons[0].offsetX, 0) << "the No dropped the move";
    undoChange(next);
    EXPECT_FALSE(next.open.isUnsaved());
    redoChange(next);
    EXPECT_EQ(saveOpenRecord(next), SaveResult::Saved);
    EXPECT_FALSE(writeJournal(next));
    EXPECT_FALSE(systemFiles().exists(folder.path() + copy));

    // The file is another than the one that was changed: saving asks.
    folder.write(copy, written);
    folder.write("Game\\" + Tank, tankText() + "//theirs");
    next = restore(Answer::Yes);
    openEntry(next, "German Tank");
    EXPECT_EQ(markOf(next, "German Tank"), EntryMark::ChangedOutside);
    MessageRecorder::answer({Answer::Cancel});
    EXPECT_EQ(saveOpenRecord(next), SaveResult::Failed);
    EXPECT_EQ(captions(), Names{"Changed outside"});
    ASSERT_TRUE(systemFiles().remove(folder.path() + "Game\\" + Tank));
    next = restore(Answer::Yes);
    EXPECT_EQ(createUnit(next, "German Tank", "NATIONALITY_GERMAN"), "Squad name already exists");
    showUnsaved(next, 0);
    EXPECT_EQ(openFileName(next), "German Tank") << "whose file is gone";
    folder.write("Game\\" + Tank, tankText());

    const std::size_t backups = files("Game\\Backups\\Data\\").size();
    EXPECT_TRUE(restore(Answer::No).aside.empty());
    EXPECT_FALSE(systemFiles().exists(folder.path() + copy));
    EXPECT_EQ(files("Game\\Backups\\Data\\").size(), backups + 1) << "nor is it lost then";
}

TEST_F(WorkspaceTest, AJournalThatCannotBeWrittenIsToldAndKeepsTheProgram) {
    folder.write("Game\\Backups", "no folder");
    EXPECT_TRUE(mayExit(workspace)) << "there is nothing to write";
    openEntry(workspace, "German Tank");
    change("Tank");
    keepJournal(workspace);
    keepJournal(workspace);
    EXPECT_EQ(captions(), Names{"Couldn't keep the unsaved changes"}) << "once";
    EXPECT_FALSE(mayExit(workspace));
    MessageRecorder::answer({Answer::Yes});
    deleteFile(workspace);
    EXPECT_EQ(captions(), (Names{"Delete German Tank", "Couldn't keep the unsaved changes"}));
    EXPECT_EQ(openUnit(workspace)->longName, "Tank");
    EXPECT_EQ(renameFile(workspace, "German Other"), "");
    EXPECT_EQ(workspace.list.all.size(), 2U);
    ASSERT_TRUE(systemFiles().remove(folder.path() + "Game\\Backups"));
    EXPECT_TRUE(mayExit(workspace));
}

TEST_F(WorkspaceTest, WhatACutOffSaveHasLeftIsOfferedWhereItIsWhole) {
    SquadRecord unit = readUnitText(tankText());
    unit.longName = "Whole";
    const std::string whole = vehicleFileText(unit).value();
    const std::string vehicles = "Game\\Data\\Vehicles\\";
    folder.write(vehicles + "German Truck.txt.saving", whole);
    folder.write(vehicles + "German Tank.txt.saving", whole.substr(0, whole.size() / 2));
    folder.write(vehicles + "German Tank.txt.saving17", tankText());
    folder.write(vehicles + "German Three.txt.renaming", tankText());
    folder.write(vehicles + "German Tank.txt.saving me", "not ours");
    folder.write("Game\\Data\\Aircraft\\German Plane.txt.saving", "<aircraft>\r\n</aircraft>\r\n");
    // Backups, copies of unsaved changes, options: what is whole of the first two stays.
    const std::string backup = "Game\\Backups\\Data\\Vehicles\\German Tank 2026-01-01 000000.txt";
    folder.write(backup + ".saving", tankText());
    folder.write(backup + ".saving1", "<squad>");
    const std::string copy = "Game\\Backups\\Unsaved\\" + Tank;
    folder.write(copy, journalHead(tankText()) + whole);
    folder.write(copy + ".saving", "<squad>");
    folder.write(copy + ".saving1", journalHead(tankText()) + tankText("Newer"));
    folder.write("Game\\options.dat.saving", "");
    MessageRecorder::answer({Answer::Yes});
    offerUnsavedChanges(workspace);
    EXPECT_EQ(files(vehicles), (Names{vehicles + "German Tank.txt", vehicles + "German Tank.txt.saving me",
                                      vehicles + "German Three.txt", vehicles + "German Truck.txt"}));
    for (const std::string& name : folder.files()) {
        EXPECT_TRUE(name.find(".saving") == std::string::npos || name.ends_with(".saving me")) << name;
    }
    EXPECT_EQ(folder.read(backup), tankText());
    EXPECT_EQ(files("Game\\Backups\\Data\\").size(), 2U) << "and the copy that a newer one has replaced";
    ASSERT_EQ(workspace.aside.size(), 3U);
    openEntry(workspace, "German Tank");
    EXPECT_EQ(openUnit(workspace)->longName, "Newer");
    openEntry(workspace, "German Truck");
    EXPECT_EQ(openUnit(workspace)->longName, "Whole");
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    EXPECT_EQ(captions(), Names{"Unsaved changes"}) << "its file is the one that was to be replaced";
}

TEST_F(WorkspaceTest, SomeOfTheChangedFilesAreSavedOrDiscarded) {
    for (const char* name : {"German Tank", "German Truck"}) {
        openEntry(workspace, name);
        change(name);
    }
    chooseCategory(workspace, Category::Weapons);
    openEntry(workspace, "Gun");
    change("WEAPON_X");
    using Places = std::vector<std::size_t>;
    ASSERT_EQ(unsavedRecords(workspace).size(), 3U);
    EXPECT_TRUE(saveChosen(workspace, Places{1}));
    EXPECT_NE(folder.read("Game\\" + Tank).find("German Tank"), std::string::npos);
    ASSERT_EQ(unsavedRecords(workspace).size(), 2U);
    MessageRecorder::answer({Answer::No, Answer::Yes});
    discardChosen(workspace, Places{0, 1});
    EXPECT_EQ(unsavedRecords(workspace).size(), 2U);
    discardChosen(workspace, Places{0, 1});
    EXPECT_EQ(captions(), (Names{"Discard changes", "Discard changes"}));
    EXPECT_TRUE(unsavedRecords(workspace).empty());
    EXPECT_EQ(folder.read("Game\\Data\\Vehicles\\German Truck.txt"), tankText());
    const Names backups = files("Game\\Backups\\Data\\");
    ASSERT_EQ(backups.size(), 3U) << "what was replaced, and what was given up";
    EXPECT_NE(folder.read(backups[1]).find("German Truck"), std::string::npos);
    EXPECT_NE(folder.read(backups[2]).find("WEAPON_X"), std::string::npos);
    undoChange(workspace);
    EXPECT_TRUE(workspace.open.isUnsaved());
    for (const std::string& name : files("Game\\Backups\\Data\\Weapons\\")) {
        ASSERT_TRUE(systemFiles().remove(folder.path() + name));
    }
    std::filesystem::remove(folder.nativePath("Game\\Backups\\Data\\Weapons"));
    // What cannot be kept is not given up, and why a save failed is known to the sheet.
    folder.write("Game\\Backups\\Data\\Weapons", "no folder");
    workspace.backups = {};
    MessageRecorder::answer({});
    discardChanges(workspace);
    EXPECT_EQ(captions(), Names{"Couldn't keep the unsaved changes"});
    EXPECT_TRUE(workspace.open.isUnsaved());
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Failed);
    EXPECT_NE(workspace.open.saveFailure.find("could not be kept"), std::string::npos);
}

TEST_F(WorkspaceTest, WhatAHandMadeWeaponLosesIsAskedFor) {
    const std::string gun = "Game\\Data\\Weapons\\Gun.txt";
    folder.write(
        gun,
        "<weapon>//by hand\n<name>WEAPON_X</name><type>WEAPON_RIFLE</type><colour>red</colour></weapon>");
    chooseCategory(workspace, Category::Weapons);
    openEntry(workspace, "Gun");
    change("WEAPON_Y");
    MessageRecorder::answer({Answer::Cancel});
    EXPECT_EQ(duplicateRecord(workspace, "Gun 2"), "") << "asks, too";
    EXPECT_EQ(captions(), Names{"Hand-made file"});
    MessageRecorder::answer({Answer::Cancel, Answer::Ok});
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Failed);
    EXPECT_NE(folder.read(gun).find("by hand"), std::string::npos);
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    EXPECT_EQ(captions(), (Names{"Hand-made file", "Hand-made file"}));
    EXPECT_NE(MessageRecorder::shown()[0].text.find("colour"), std::string::npos);
    change("WEAPON_Z");
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    EXPECT_EQ(captions().size(), 2U) << "before the first save only";
}

TEST_F(WorkspaceTest, NamesThatNoFileCanHaveAreRefusedWithTheReason) {
    const std::string longName = "German " + std::string(300, 'x');
    for (const auto& [name, reason] : {std::pair("", "A name must be entered"),
                                       {"German.", "Ilegal characters in the filename"},
                                       {" German", "A name cannot begin or end with a blank"},
                                       {"German ", "A name cannot begin or end with a blank"},
                                       {"nul", "nul is the system's name for a device"},
                                       {"COM7", "COM7 is the system's name for a device"},
                                       {longName.c_str(), "The path of the file would have"},
                                       {"COM0", "The filename must begin"},
                                       {"German CON", ""}}) {
        const NameCheck refusal = createUnit(workspace, name, "NATIONALITY_GERMAN");
        EXPECT_EQ(refusal.value_or("").find(reason), 0U) << name;
        EXPECT_EQ(refusal.has_value(), *reason != '\0');
    }
}

} // namespace
} // namespace varrocade::tests
