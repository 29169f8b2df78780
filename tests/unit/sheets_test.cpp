// Spreadsheets of units, and back.

#include "test_support.h"
#include "tools/reports/png_usage.h"
#include "tools/reports/unit_sheets.h"
#include "tools/sheets/sheet_import.h"

#include <algorithm>
#include <map>

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

using Table = std::vector<std::vector<std::string>>;

Table tableOf(std::string_view file) {
    const Spreadsheet table = readTable(file);
    Table cells = {table.headings};
    for (const TableRow& row : table.rows) {
        cells.push_back(row.cells);
    }
    return cells;
}

/// What importing a sheet comes to: "heading: before > after" a change, "line: message" a refusal or warning.
std::string importOf(const TemporaryFolder& folder, std::string_view sheet, bool isWritten = false) {
    SheetImport import(sheet, "sheet", {folder.path()});
    runJob(import);
    std::string text;
    for (const SheetChange& change : import.changes()) {
        text += change.heading + ": " + change.before + " > " + change.after + "\n";
    }
    for (const Finding& finding : import.findings()) {
        text += std::to_string(finding.line) + ": " + finding.message + "\n";
    }
    if (isWritten && !import.isRefused()) {
        BackupKeeper backups;
        EXPECT_FALSE(import.write(systemFiles(), backups));
    }
    return text;
}

constexpr std::string_view SheetTank =
    "<squad><description><type>TYPE_TANK</type><nationality>NATIONALITY_GERMAN</nationality><long_name>=1+1"
    "</long_name><short_name>6-8</short_name><comment>\"B\xFCgel\"\tund "
    "Haken</comment></description><vehicle>"
    "<attributes><image_profile>p.png</image_profile><weight>57000</weight></attributes><hull><width>370"
    "</width><armour><upper_front>100@9</upper_front></armour></hull><turret><diameter>200</diameter>"
    "<rotate_time>60</rotate_time></turret></vehicle></squad>";

TEST(Sheets, HaveARowAUnitAndSurviveWhatProgramsDoToThem) {
    const TemporaryFolder folder;
    folder.write("Data\\Vehicles\\German Tank.txt", SheetTank);
    folder.write("Data\\Vehicles\\German Car.txt",
                 "<squad><vehicle><hull></hull><turret></turret><turret></turret></vehicle></squad>");
    UnitSheets report({folder.path()});
    runJob(report);
    const std::vector<ReportFile> files = report.files();
    ASSERT_EQ(files.size(), CategoryCount);
    ASSERT_EQ(files[0].name, "Vehicles.csv");
    const Table table = tableOf(files[0].content);
    ASSERT_EQ(table.size(), 3U);
    std::map<std::string, std::string> tank;
    for (std::size_t column = 0; column < table[0].size(); ++column) {
        EXPECT_TRUE(tank.emplace(table[0][column], table[2].at(column)).second) << table[0][column];
    }
    const auto value = [&](std::string_view heading) { return tank.at(std::string(heading)); };
    EXPECT_EQ(value("Vehicles"), "German Tank");
    EXPECT_EQ(value("Long name"), "'=1+1") << "no formula";
    EXPECT_EQ(value("Short name"), "'6-8") << "no date";
    EXPECT_EQ(value("Description"), "\"B\xC3\xBCgel\"\tund Haken");
    EXPECT_EQ(value("Weight [kg]"), "57000");
    EXPECT_EQ(value("Hull 1 armour Upper front thickness [mm]"), "100");
    EXPECT_EQ(value("Hull 1 armour Upper front angle [degrees]"), "9");
    EXPECT_EQ(value("Turret 1 Diameter [cm]"), "200");
    EXPECT_EQ(value("Turret 1 Rotate Left [degrees]"), "") << "it turns all round";
    EXPECT_EQ(value("Turret 1 armour Mantlet [mm]"), "");
    EXPECT_EQ(value("Turret 2 Diameter [cm]"), "") << "the car's";

    std::string lineFeeds = files[0].content;
    std::erase(lineFeeds, '\r');
    std::string plain = files[0].content;
    plain.erase(0, 3);
    std::string turned = "x";
    for (const std::vector<std::string>& row : table) {
        turned += &row == &table.front() ? "" : "y";
        for (const std::string& cell : std::vector<std::string>(row.rbegin(), row.rend())) {
            turned += ";";
            const std::string_view unmarked = withoutMark(cell);
            appendPlainCell(turned, unmarked == "57000" ? "57000.0" : unmarked);
        }
        turned += "\n";
    }
    for (const std::string& sheet : {files[0].content, lineFeeds, plain}) {
        EXPECT_EQ(importOf(folder, sheet, true), "");
    }
    EXPECT_EQ(importOf(folder, turned, true), "2: the column \"x\" is none of the fields and not read\n");
    EXPECT_EQ(folder.read("Data\\Vehicles\\German Tank.txt"), SheetTank);
    EXPECT_EQ(folder.files().size(), 2U);
}

/// All files of a report that as many threads make.
template <typename Report>
std::string madeBy(unsigned threads, const GameFolders& folders) {
    Report report(folders);
    report.run(threads);
    EXPECT_EQ(report.progress().done, report.progress().total);
    std::string all;
    for (const ReportFile& file : report.files()) {
        all += file.name + "\n" + file.content;
    }
    for (const FileFailure& failure : report.failures()) {
        all += failure.path + "\n";
    }
    return all;
}

TEST(Sheets, AreTheSameForAnyNumberOfThreads) {
    // Each unit brings columns that the one before has not, at its beginning, in its middle and at its end.
    const TemporaryFolder folder;
    constexpr std::array<std::string_view, 4> parts = {
        "<hull><exhaust_pipe></exhaust_pipe></hull>", "<turret><weapon></weapon></turret>",
        "<turret><man></man><smoke_discharger></smoke_discharger></turret>",
        "<superstructure><ammo></ammo></superstructure>"};
    for (std::size_t i = 0; i < 16; ++i) {
        std::string text = "<squad>";
        for (std::size_t point = 0; point < i % 5; ++point) {
            text +=
                "<availability><year>1940</year><number>" + std::to_string(i) + "</number></availability>";
        }
        text += "<vehicle>";
        for (std::size_t part = 0; part < parts.size(); ++part) {
            text += (i * 7 >> part) % 2 != 0 ? parts.at((part + i) % parts.size()) : "";
        }
        folder.write("Data\\Vehicles\\" + std::to_string((i * 11) % 16) + ".txt",
                     text + "</vehicle></squad>");
    }
    for (const GameFolders& folders : {GameFolders{folder.path()}, GameFolders{SampleBase}}) {
        const std::string sheets = madeBy<UnitSheets>(1, folders);
        const std::string usage = madeBy<PngUsage>(1, folders);
        for (const unsigned threads : {2U, 3U, 40U}) {
            EXPECT_EQ(madeBy<UnitSheets>(threads, folders), sheets) << threads;
            EXPECT_EQ(madeBy<PngUsage>(threads, folders), usage) << threads;
        }
    }
}

TEST(Sheets, ComeBackAsChangesOrAsRefusals) {
    const TemporaryFolder folder;
    folder.write("Data\\Vehicles\\German Tank.txt", SheetTank);
    struct Case {
        std::string_view heading;
        std::string_view cell;
        std::string_view result;
    };
    const std::string refused = "2: German Tank: ";
    const std::array<Case, 15> cases = {{
        {"Weight [kg]", "56000", "Weight [kg]: 57000 > 56000\n"},
        {"Weight [kg]", "56,5",
         "\"Weight [kg]\" must be a whole number, with a point and without separators of "
         "thousands\n"},
        {"Weight [kg]", "", "\"Weight [kg]\" must be a whole number\n"},
        {"Type", "type_lorry", "Type: TYPE_TANK > TYPE_LORRY\n"},
        {"Type", "tank", "\"Type\" must be one of the game's words, such as TYPE_ARMOURED_CAR\n"},
        {"Long name", "'=2", "Long name: =1+1 > =2\n"},
        {"Long name", "a // b",
         "\"Long name\" must not begin with \"<\" nor contain \"</\" or \"//\": the file could "
         "not hold it\n"},
        {"Long name", "\xE4\xB8\xAD", "\"Long name\" has a character that the game's files cannot hold\n"},
        {"Long name", "\xE2\x82\xAC", "Long name: =1+1 > \x80\n"},
        {"Amphibious", "", ""},
        {"Is amphibious", "Yes", "Is amphibious: no > yes\n"},
        {"Hull 1 armour Upper front angle [degrees]", "91",
         "\"Hull 1 armour Upper front angle [degrees]\" must be a whole number from 0 to 90\n"},
        {"Turret 1 Rotate Left [degrees]", "45", "Turret 1 Rotate Left [degrees]:  > 45\n"},
        {"Turret 1 armour Mantlet [mm]", "120", "Turret 1 armour Mantlet [mm]:  > 120\n"},
        {"Uniform", "Guards",
         "Uniform:  > Guards\n2: German Tank: \"Uniform\": the file would not keep \"Guards\"\n"},
    }};
    for (const Case& c : cases) {
        const std::string sheet =
            "Vehicles\t" + std::string(c.heading) + "\nGerman Tank\t" + std::string(c.cell);
        const std::string result = importOf(folder, sheet);
        EXPECT_EQ(result.starts_with(refused) ? result.substr(refused.size()) : result, c.result) << sheet;
    }
    EXPECT_EQ(importOf(folder, "Vehicles\tTurret 2 Diameter [cm]\nGerman Tank\t1\nNone\t\ngerman tank\t\n"),
              "2: German Tank has no \"Turret 2 Diameter [cm]\" to set\n3: there is no file \"None\"\n"
              "4: \"german tank\" has a row already\n");
    EXPECT_TRUE(importOf(folder, "Name\tType\n").starts_with("0: no column has the names of the files"));
    EXPECT_EQ(folder.read("Data\\Vehicles\\German Tank.txt"), SheetTank) << "nothing was written";
    EXPECT_EQ(
        importOf(folder, "Vehicles\tWeight [kg]\tTurret 1 Rotate Left [degrees]\nGerman Tank\t1\t45", true),
        "Weight [kg]: 57000 > 1\nTurret 1 Rotate Left [degrees]:  > 45\n");
    const std::string written = folder.read("Data\\Vehicles\\German Tank.txt");
    EXPECT_NE(written.find("<weight>1</weight>"), std::string::npos);
    EXPECT_NE(written.find("<rotate_left>45</rotate_left>"), std::string::npos);
    EXPECT_EQ(folder.files().size(), 2U) << "with its backup";
}

} // namespace
} // namespace varrocade::tests
