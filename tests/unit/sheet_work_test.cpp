// A spreadsheet that is imported beside open records, and the dialogs' words about imports and smaller
// pictures.

#include "app/workspace/record/sheet_work.h"
#include "editors/reports/import_form.h"
#include "editors/reports/reduction_form.h"
#include "workspace_fixture.h"

namespace varrocade::tests {
namespace {

class SheetWork : public WorkspaceTest {
protected:
    [[nodiscard]] std::unique_ptr<SheetImport> imported(std::string_view sheet) const {
        auto import = std::make_unique<SheetImport>(sheet, "Vehicles.csv", gameFolders(workspace));
        runJob(*import);
        return import;
    }
    [[nodiscard]] std::string longNameInFile(const std::string& name) const {
        return readUnitText(folder.read("Game\\Data\\Vehicles\\" + name + ".txt")).longName.str();
    }
};

TEST_F(SheetWork, ImportIsOneStepThatUndoTakesBack) {
    openFile(workspace, "German Tank");
    const auto import = imported("Vehicles\tLong name\nGerman Tank\tA\nGerman Truck\tB\n");
    EXPECT_TRUE(unsavedAmong(workspace, import->files()).empty());
    ASSERT_FALSE(import->write(*workspace.files, workspace.backups));
    noteImport(workspace, *import);
    EXPECT_EQ(openUnit(workspace)->longName.str(), "A") << "what is open is read again";
    EXPECT_EQ(lastStepName(workspace), "Import spreadsheet");

    // What was done since comes first; what was not saved since is not overwritten.
    change("C");
    EXPECT_EQ(lastStepName(workspace), "Name");
    EXPECT_EQ(unsavedAmong(workspace, import->files()), std::vector<std::size_t>{0});
    EXPECT_FALSE(takeReplacedBack(workspace, workspace.fileSteps.back()));
    EXPECT_EQ(captions(), Names{"Couldn't undo: Import spreadsheet"});
    undoLast(workspace);
    folder.write("Game\\Data\\Vehicles\\German Truck.txt", tankText("D"));
    undoLast(workspace);
    EXPECT_EQ(captions().size(), 2U) << "another program has changed one of them";
    EXPECT_EQ(longNameInFile("German Tank"), "A") << "all or nothing";
    folder.write("Game\\Data\\Vehicles\\German Truck.txt", import->files()[1].after);
    undoLast(workspace);
    EXPECT_EQ(longNameInFile("German Tank"), "");
    EXPECT_EQ(longNameInFile("German Truck"), "");
    EXPECT_EQ(openUnit(workspace)->longName.str(), "");
    EXPECT_FALSE(canUndoLast(workspace));
}

TEST_F(SheetWork, CancelledImportGivesTheFilesBackWhatTheyHeld) {
    const auto import = imported("Vehicles\tLong name\nGerman Tank\tA\nGerman Truck\tB\n");
    FileReplacementJob job(*workspace.files, workspace.backups, import->base(), import->files());
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(job.step());
    }
    EXPECT_EQ(job.progress().done, 3U);
    EXPECT_EQ(job.progress().name, "Data\\Vehicles\\German Truck.txt");
    EXPECT_EQ(longNameInFile("German Tank"), "A");
    job.putBack();
    EXPECT_EQ(longNameInFile("German Tank"), "");
    EXPECT_TRUE(job.failures().empty());
}

TEST_F(SheetWork, DialogTellsWhatWouldChangeAndWhatIsRefused) {
    struct Case {
        std::string_view sheet;
        std::string_view summary;
        std::size_t notes;
        bool canWrite;
    };
    constexpr std::array<Case, 4> cases = {{
        {"Vehicles\tLong name\tWeight [kg]\nGerman Tank\tA\t1\nGerman Truck\t\t2\n",
         "3 values of 2 files would change. What the files hold now is kept in the folder Backups.", 0, true},
        {"Vehicles\tLong name\nGerman Tank\t\n", "Nothing would change: the sheet says what the files hold.",
         0, false},
        {"Vehicles\tWeight [kg]\tMine\nGerman Tank\theavy\tx\nGerman Truck\t2\t\n",
         "Nothing can be written: 1 refusal, below. Mend the sheet and import it again.", 2, false},
        {"A\tB\n", "Nothing can be written: 1 refusal, below. Mend the sheet and import it again.", 1, false},
    }};
    for (const Case& c : cases) {
        const auto import = imported(c.sheet);
        EXPECT_EQ(importSummary(*import), c.summary);
        EXPECT_EQ(importNotes(*import).size(), c.notes) << c.sheet;
        EXPECT_EQ(canWrite(*import), c.canWrite) << c.sheet;
    }
    const auto import = imported(cases[2].sheet);
    EXPECT_EQ(importNotes(*import)[0][0], "2");
    EXPECT_TRUE(importNotes(*import)[0][1].starts_with("refused: German Tank: \"Weight [kg]\""));
    const std::string table = importTable(*import);
    EXPECT_TRUE(table.starts_with("Line\tFile\tColumn\tNow\tIn the sheet\r\n3\tGerman Truck\tWeight [kg]\t"))
        << table;
}

TEST(ReductionForm, AsksForWholeSetsAndTellsWhichPixelsChange) {
    using enum ReductionOutcome;
    const ReducedSets sets = {
        {{"p", "Images\\a.png", Scaled, {20, 10}, {10, 5}, 3000, 1000, "new", "old"},
         {"q", "b.png", Scaled, {4, 4}, {2, 2}, 200, 100, "new", "old"}},
        {{"r", "c.png", Unchanged, {1, 1}, {1, 1}, 70, 70}},
        {{"s", "d.png", Recompressed, {9, 9}, {9, 9}, 500, 400, "new", "old"}},
        {{"t", "e.png", Failed, {9, 9}, {9, 9}, 500, 500, "", "", "is no PNG file"}},
    };
    const std::vector<ReductionRow> rows = reductionRows(sets);
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0].cells,
              (decltype(rows[0].cells){"a.png", "20 x 10 > 10 x 5", "3,000", "1,000", "scaled", "Images\\"}));
    EXPECT_EQ(rows[4].cells[4], "failed: is no PNG file");
    EXPECT_EQ(reductionSummary(sets),
              "3 of 5 pictures can be smaller: 1,500 bytes in the place of 3,700, 59 % less. 1 failed.");
    EXPECT_EQ(reductionSummary({}, {.count = 2, .bytesBefore = 1000, .bytesAfter = 999}),
              "2 pictures were written: 999 bytes in the place of 1,000, less than 1 % less.");
    EXPECT_EQ(reductionSummary({sets[1]}), "None of 1 picture can be smaller.");
    EXPECT_EQ(setsToWrite(sets, rows), (std::vector<std::size_t>{0, 2}));
    const std::vector<std::size_t> one = setsToWrite(sets, std::span(rows).subspan(1, 2));
    EXPECT_EQ(one, std::vector<std::size_t>{0}) << "with the pictures that it is written with";
    EXPECT_EQ(reductionQuestion(sets, one),
              "2 pictures will take 1,100 bytes in the place of 3,200, 65 % less.\n\n2 pictures are scaled: "
              "their pixels "
              "change. What the files hold now is kept in the folder Backups.\n\nWrite them?");
    const std::array<std::size_t, 1> recompressed = {2};
    EXPECT_TRUE(reductionQuestion(sets, recompressed).ends_with("Write it?"));
    EXPECT_NE(reductionQuestion(sets, recompressed).find("No pixel changes. "), std::string::npos);
}

} // namespace
} // namespace varrocade::tests
