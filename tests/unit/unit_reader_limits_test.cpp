// What a unit file holds beyond what its record can take, and what is said about it.

#include "data/reading/unit_reader.h"
#include "platform/messages.h"
#include "test_support.h"

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

using Lines = std::vector<std::string>;

struct ReadUnit {
    SquadRecord record;
    Diagnostics diagnostics;
};

ReadUnit readWithDiagnostics(std::string_view content) {
    ReadUnit read;
    read.record = readUnit(content, "unit", read.diagnostics);
    return read;
}

const std::string FullMan =
    "<man><job>JOB_DRIVER</job><language>xx</language><body_armour>yes</body_armour>"
    "<weapon><type>LEAK</type></weapon><ammo><for>LEAK</for><rounds>9</rounds></ammo></man>";
const std::string FullTurret =
    "<turret><width>9</width><diameter>9</diameter><image_view>LEAK</image_view><rotate_left>9</rotate_left>"
    "<AA>yes</AA><armour><front>9@9</front><top>9</top></armour>"
    "<smoke_discharger><angle>9</angle><ammo>9</ammo></smoke_discharger>"
    "<weapon><type>LEAK</type><offsetX>9</offsetX></weapon><ammo><for>LEAK</for><rounds>9</rounds></ammo>" +
    FullMan + "</turret>";
const std::string FullGun =
    "<atgun><image_view_gun>LEAK</image_view_gun><mass>9</mass><moveable>no</moveable>"
    "<rotate_left>9</rotate_left><weapon><type>LEAK</type></weapon>"
    "<ammo><for>LEAK</for><rounds>9</rounds></ammo></atgun>";

} // namespace

TEST(UnitLimits, LeaveOutWhatFindsNoRoomWithAllItHolds) {
    struct Case {
        std::string before;
        std::string entry; ///< a line that finds room `lines` times
        std::size_t lines;
        std::string tooMany;
        std::string after;
        std::string complaint;
    };
    const std::string man = "<man><weapon></weapon><ammo></ammo></man>";
    const std::string turret = "<turret><armour></armour><smoke_discharger></smoke_discharger>"
                               "<weapon></weapon><ammo></ammo>" +
                               man + "</turret>";
    const std::vector<Case> cases = {
        {"<squad><vehicle>", turret, 13, FullTurret, "</vehicle></squad>", "more than 13 components"},
        {"<squad>", man, 13, FullMan, "</squad>", "more than 13 infantrymen"},
        {"<squad><hmg><weapon></weapon><ammo></ammo></hmg>", man, 13, FullMan, "</squad>",
         "more than 13 infantrymen"},
        {"<squad><availability>", "<data></data>", 255,
         "<data><month>9</month><year>9</year><number>9</number></data>", "</availability></squad>",
         "more than 255 availability points"},
        {"<squad><commonness><1941Q4>9</1941Q4>", "<1942Q1>5</1942Q1><1942Q2>6</1942Q2>", 127,
         "<1942Q3>7</1942Q3>", "</commonness></squad>", "more than 255 availability points"},
        {"<squad>", "<mortar><weapon></weapon><ammo></ammo></mortar>", 1, FullGun, "</squad>",
         "a second heavy weapon"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.before + c.entry);
        const std::string most = c.before + "\n" + repeated(c.entry + "\n", c.lines);
        const ReadUnit full = readWithDiagnostics(most + c.after);
        EXPECT_EQ(full.diagnostics, Diagnostics());
        const ReadUnit tooFull = readWithDiagnostics(most + c.tooMany + "\n" + c.after);
        EXPECT_TRUE(tooFull.record == full.record);
        EXPECT_EQ(
            debuggerLines(tooFull.diagnostics),
            Lines({"ERROR: unit: line " + std::to_string(c.lines + 2) + ": " + c.complaint + ": left out"}));
    }
}

TEST(UnitLimits, CallUnknownElementsOfEveryHeavyWeaponAMortar) {
    const std::string line =
        "\xF0\x9F\x92\xA5 ERROR: Game: createSquadOnSide() Unknown tag <%s> in <mortar>...</mortar>";
    for (const std::string weapon : {"mortar", "hmg", "atgun", "recoilless_rifle"}) {
        const ReadUnit read = readWithDiagnostics(
            "<squad><" + weapon + "><crew>2</crew><mass>5</mass><type>x</type></" + weapon + "></squad>");
        EXPECT_EQ(debuggerLines(read.diagnostics), Lines({line, line})) << weapon;
        EXPECT_EQ(read.record.heavyWeapon.value().mass, 5);
    }
    const std::string elsewhere =
        "<squad><x></x><man><y>1</y></man><vehicle><hull><z></z></hull></vehicle></squad>";
    EXPECT_EQ(readWithDiagnostics(elsewhere).diagnostics, Diagnostics());
}

TEST(UnitLimits, BoundTheDiagnostics) {
    const std::string content =
        "<squad><hmg>" + repeated("<x></x>", 1000) + "</hmg>" + repeated("<hmg></hmg>", 1000) + "</squad>";
    EXPECT_EQ(readWithDiagnostics(content).diagnostics.size(), 100U);
}

TEST(UnitLoading, ReadsTheCategorysFolderAndTellsWhatCannotBeOpened) {
    const TemporaryFolder folder;
    for (const auto& [category, name] : {std::pair(Category::Vehicles, "Vehicles"),
                                         {Category::AtGuns, "AT Guns"},
                                         {Category::Infantry, "Infantry"},
                                         {Category::Aircraft, "Aircraft"}}) {
        folder.write("Data\\" + std::string(name) + "\\One.txt", "<squad><description><comment>" +
                                                                     std::string(name) +
                                                                     "</comment></description></squad>");
        const LoadedUnit loaded = loadUnit(systemFiles(), folder.path(), category, "One");
        ASSERT_TRUE(loaded.record) << name;
        EXPECT_EQ(loaded.record->fileName, "One");
        EXPECT_EQ(loaded.record->comment, name);
    }
    const LoadedUnit missing = loadUnit(systemFiles(), folder.path(), Category::AtGuns, "Missing gun");
    EXPECT_FALSE(missing.record);
    EXPECT_EQ(missing.failure.path, folder.path() + "Data\\AT Guns\\Missing gun.txt");
    EXPECT_NE(missing.failure.reason, "");
}

} // namespace varrocade::tests
