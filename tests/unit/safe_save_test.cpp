// Saving: whatever fails, the old file is still there, whole.

#include "data/writing/unit_writers.h"
#include "faulty_files.h"
#include "platform/safe_save.h"
#include "test_support.h"
#include "weapons/weapon_files.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

using Names = std::vector<std::string>;

const std::string UnitFile = "Data\\Infantry\\Squad.txt";
const std::string OldText = "<squad><description><comment>old</comment></description></squad>";

SquadRecord newSquad(std::string_view name = "Squad") {
    SquadRecord record;
    record.fileName = name;
    record.comment = "new";
    return record;
}

SaveOutcome save(FileOperations& files, BackupKeeper& backups, const TemporaryFolder& folder,
                 const SquadRecord& record = newSquad()) {
    return saveUnit(files, backups, folder.path(), Category::Infantry, record);
}

std::size_t count(const Names& names, std::string_view start) {
    return static_cast<std::size_t>(std::count_if(
        names.begin(), names.end(), [&](const std::string& name) { return name.starts_with(start); }));
}

/// Does a save whose first operation fails, then one whose second does, until none fails, each in a folder of
/// its own; returns how many there were.
template <typename Save>
int failEachOperation(Save saveInto) {
    for (int failing = 1; failing < 200; ++failing) {
        SCOPED_TRACE("operation " + std::to_string(failing));
        const TemporaryFolder folder;
        FailingOnce files(failing);
        BackupKeeper backups;
        saveInto(folder, files, backups);
        if (!files.hasFailed()) {
            return failing;
        }
    }
    ADD_FAILURE() << "every operation fails";
    return 0;
}

} // namespace

TEST(Saving, KeepsTheOldFileWhicheverStepFails) {
    const int operations =
        failEachOperation([](const TemporaryFolder& folder, FailingOnce& files, BackupKeeper& backups) {
            folder.write(UnitFile, OldText);
            const SaveOutcome outcome = save(files, backups, folder);
            const bool succeeded = !files.hasFailed();
            EXPECT_EQ(outcome.result, succeeded ? SaveResult::Saved : SaveResult::Failed);
            EXPECT_EQ(outcome.content, succeeded ? folder.read(UnitFile) : "");
            EXPECT_EQ(outcome.failure.path, succeeded ? "" : folder.path() + UnitFile);
            EXPECT_EQ(outcome.failure.reason.empty(), succeeded);
            EXPECT_EQ(folder.read(UnitFile), succeeded ? squadFileText(newSquad()) : OldText);
            // Beside the unit there is at most its backup, and that is whole.
            const Names names = folder.files();
            const std::size_t kept = count(names, "Backups\\Data\\Infantry\\Squad ");
            EXPECT_EQ(names.size(), 1 + kept) << "left something: " << names.back();
            EXPECT_TRUE(kept == 1 || (kept == 0 && !succeeded));
            EXPECT_TRUE(kept == 0 || folder.read(names.front()) == OldText);
        });
    // Folders, the old content, and each of two files created, written in pieces, flushed, closed and put in
    // place.
    EXPECT_GT(operations, 20);
}

TEST(Saving, LeavesNothingBehindWhereThereWasNoFile) {
    failEachOperation([](const TemporaryFolder& folder, FailingOnce& files, BackupKeeper& backups) {
        const SaveOutcome outcome = saveWeapon(files, backups, folder.path(), "W", WeaponRecord());
        EXPECT_EQ(outcome.result, files.hasFailed() ? SaveResult::Failed : SaveResult::Saved);
        EXPECT_EQ(folder.files(), files.hasFailed() ? Names() : Names({"Data\\Weapons\\W.txt"}));
    });
}

TEST(Saving, SaysWhatFailed) {
    const TemporaryFolder folder;
    const std::string path = folder.path() + "file.txt";
    FailingOnce files(1);
    const std::optional<FileFailure> failure = saveFile(files, path, "content");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->path, path);
    EXPECT_EQ(failure->reason, "the disk is full");
    const auto nowhere = saveFile(systemFiles(), folder.path() + "no\\file.txt", "content");
    EXPECT_TRUE(nowhere && !nowhere->reason.empty());
}

TEST(Saving, WritesAnySizeAndStepsOverLeftoversOfAnotherRun) {
    const TemporaryFolder folder;
    folder.write("file.txt.saving", "cut off");
    std::string large;
    for (int i = 0; large.size() < (1U << 20U); ++i) {
        large += std::to_string(i) + "\r\n";
    }
    for (const std::string& content : {std::string("content"), large, std::string()}) {
        FailingOnce files(0);
        EXPECT_FALSE(saveFile(files, folder.path() + "file.txt", content));
        EXPECT_EQ(folder.read("file.txt"), content);
    }
    EXPECT_EQ(folder.read("file.txt.saving"), "cut off");
    EXPECT_EQ(folder.files().size(), 2U);
}

TEST(Saving, DoesNothingForARecordOfAnotherKind) {
    const TemporaryFolder folder;
    BackupKeeper backups;
    for (const Category category : {Category::Vehicles, Category::Aircraft}) {
        EXPECT_EQ(saveUnit(systemFiles(), backups, folder.path(), category, newSquad()).result,
                  SaveResult::NothingToSave);
    }
    EXPECT_TRUE(folder.files().empty());
}

TEST(Backups, HoldEveryContentThatWasReplacedOnce) {
    const TemporaryFolder folder;
    const std::string path = folder.path() + UnitFile;
    const auto kept = [&] { return count(folder.files(), "Backups\\Data\\Infantry\\Squad "); };
    const auto contents = [&] {
        Names texts;
        for (const std::string& name : folder.files()) {
            texts.push_back(name.starts_with("Backups") ? folder.read(name) : "");
        }
        std::erase(texts, "");
        std::sort(texts.begin(), texts.end());
        return texts;
    };
    BackupKeeper backups;
    const auto replace = [&](const std::string& content) {
        EXPECT_FALSE(replaceDataFile(systemFiles(), backups, folder.path(), path, content));
    };
    replace("one");
    EXPECT_EQ(kept(), 0U) << "a new file has no former content";
    for (const char* content : {"two", "one", "two", "two"}) {
        replace(content);
    }
    EXPECT_EQ(contents(), Names({"one", "one", "two", "two"}));
    // Of another run, of another program, of a file with a longer name: each its own.
    backups = {};
    folder.write(UnitFile, "theirs");
    folder.write("Data\\Infantry\\Squad 2.txt", "longer");
    EXPECT_FALSE(backups.keep(systemFiles(), folder.path(), folder.path() + "Data\\Infantry\\Squad 2.txt"));
    replace("three");
    EXPECT_EQ(kept(), 6U);
    EXPECT_EQ(count(folder.files(), "Backups\\Data\\Infantry\\Squad 2 "), 1U);
    folder.write("Backups\\Data\\Infantry\\Squad 2001-01-01 000000.txt", "oldest");
    folder.write("Backups\\Data\\Infantry\\Squad 2002-02-02 old.txt", "no backup");
    for (int i = 0; i < 40; ++i) {
        replace("content " + std::to_string(i));
    }
    const Names all = contents();
    EXPECT_EQ(kept(), 1 + BackupKeeper::MostNewest + 2) << "and the two that are none of its own";
    for (const char* content : {"oldest", "no backup", "longer", "content 38", "content 19"}) {
        EXPECT_NE(std::find(all.begin(), all.end(), content), all.end()) << content;
    }
    EXPECT_EQ(std::find(all.begin(), all.end(), "content 18"), all.end());
}

TEST(Backups, OfAFailedSaveServeTheNext) {
    const TemporaryFolder folder;
    folder.write(UnitFile, OldText);
    BackupKeeper backups;
    SaveResult result = SaveResult::Failed;
    for (int failing = 1; result == SaveResult::Failed; ++failing) {
        ASSERT_LT(failing, 200);
        FailingOnce files(failing);
        result = save(files, backups, folder).result;
    }
    const Names names = folder.files();
    ASSERT_EQ(count(names, "Backups\\"), 1U);
    EXPECT_EQ(folder.read(names.front()), OldText);
    EXPECT_EQ(folder.read(UnitFile), squadFileText(newSquad()));
}

TEST(Folders, AreListedByEnding) {
    const TemporaryFolder folder;
    for (const char* name : {"b.txt", "A.TXT", "c.txtx", "txt", ".txt", "d.png", "sub.txt\\e.txt"}) {
        folder.write(name, "");
    }
    Names names;
    ASSERT_TRUE(listFiles(folder.path(), ".txt", names));
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, Names({".txt", "A.TXT", "b.txt"}));
    EXPECT_FALSE(listFiles(folder.path() + "missing\\", ".txt", names));
    EXPECT_TRUE(isFolder(folder.path() + "sub.txt"));
    EXPECT_FALSE(isFolder(folder.path() + "b.txt"));
    std::string content = "former";
    EXPECT_FALSE(readWholeFile(folder.path() + "sub.txt", content)) << "a folder is no file";
    EXPECT_FALSE(readWholeFile(folder.path() + "missing.txt", content));
    EXPECT_TRUE(readWholeFile(folder.path() + "b.txt", content));
    EXPECT_EQ(content, "");
}

TEST(Folders, AreCreatedWhereMissing) {
    const TemporaryFolder folder;
    EXPECT_FALSE(createFolders(systemFiles(), folder.path() + "a\\b\\c\\"));
    EXPECT_TRUE(isFolder(folder.path() + "a\\b\\c"));
    EXPECT_FALSE(createFolders(systemFiles(), folder.path() + "a\\b\\c\\")) << "existing ones are no failure";
    folder.write("file", "");
    const std::optional<FileFailure> failure = createFolders(systemFiles(), folder.path() + "file\\below\\");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->path, folder.path() + "file\\below");
}

} // namespace varrocade::tests
