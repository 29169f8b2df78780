// Nothing is lost: unsaved records, their journal, files that others change, what a cut-off save leaves.

#include "app/workspace/journal.h"
#include "workspace_fixture.h"

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
    ASSERT_EQ(backups.size(), 1U);
    EXPECT_EQ(folder.read(backups[0]), theirs);
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
    EXPECT_EQ(captions(), (Names{"Delete German Tank", "Couldn't delete file"}));
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
    MessageRecorder::answer({Answer::Yes});
    offerUnsavedChanges(workspace);
    EXPECT_EQ(files(vehicles), (Names{vehicles + "German Tank.txt", vehicles + "German Tank.txt.saving me",
                                      vehicles + "German Three.txt", vehicles + "German Truck.txt"}));
    ASSERT_EQ(workspace.aside.size(), 1U);
    openEntry(workspace, "German Truck");
    EXPECT_EQ(openUnit(workspace)->longName, "Whole");
    EXPECT_EQ(saveOpenRecord(workspace), SaveResult::Saved);
    EXPECT_EQ(captions(), Names{"Unsaved changes"}) << "its file is the one that was to be replaced";
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
