// What a unit file holds beyond what its record can take, and what is said about it.

#include "data/unit_reader.h"
#include "platform/messages.h"
#include "test_support.h"

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

struct ReadUnit {
    SquadRecord record;
    Diagnostics diagnostics;
};

ReadUnit readWithDiagnostics(std::string_view content) {
    ReadUnit read;
    read.record = readUnit(content, "unit", read.diagnostics);
    return read;
}

/// `before`, the lines of `entry` a number of times, then one entry too many on a line of its own, then
/// `after`.
struct LimitCase {
    const char* what;
    std::string before;
    std::string entry;
    std::size_t limit;
    std::string tooMany;
    std::string after;
    std::string complaint;
};

std::string withEntries(const LimitCase& c, bool withTooMany) {
    return c.before + "\n" + repeated(c.entry + "\n", c.limit) + (withTooMany ? c.tooMany + "\n" : "") +
           c.after;
}

const std::string FullMan =
    "<man><job>JOB_DRIVER</job><language>xx</language><body_armour>yes</body_armour>"
    "<weapon><type>LEAK</type></weapon><ammo><for>LEAK</for><rounds>9</rounds></ammo></man>";
const std::string FullTurret =
    "<turret><width>9</width><diameter>9</diameter><image_view>LEAK</image_view><rotate_left>9</"
    "rotate_left><AA>yes</AA>"
    "<armour><front>9@9</front><top>9</top></armour><smoke_discharger><angle>9</angle><ammo>9</ammo></"
    "smoke_discharger>"
    "<weapon><type>LEAK</type><offsetX>9</offsetX></weapon><ammo><for>LEAK</for><rounds>9</rounds></ammo>" +
    FullMan + "</turret>";
const std::string FullGun =
    "<atgun><image_view_gun>LEAK</image_view_gun><mass>9</mass><moveable>no</moveable>"
    "<rotate_left>9</rotate_left><weapon><type>LEAK</type></weapon>"
    "<ammo><for>LEAK</for><rounds>9</rounds></ammo></atgun>";

} // namespace

TEST(UnitLimits, LeaveOutWhatFindsNoRoomWithAllItHolds) {
    const std::vector<LimitCase> cases = {
        {"components", "<squad><vehicle>",
         "<turret><armour></armour><smoke_discharger></smoke_discharger><weapon></weapon><ammo></ammo>"
         "<man><weapon></weapon><ammo></ammo></man></turret>",
         MaxSquadMembers, FullTurret, "</vehicle></squad>", "more than 13 components"},
        {"infantrymen", "<squad>", "<man><weapon></weapon><ammo></ammo></man>", MaxSquadMembers, FullMan,
         "</squad>", "more than 13 infantrymen"},
        {"infantrymen beside a heavy weapon", "<squad><hmg><weapon></weapon><ammo></ammo></hmg>",
         "<man><ammo></ammo></man>", MaxSquadMembers, FullMan, "</squad>", "more than 13 infantrymen"},
        {"availability points", "<squad><availability>", "<data></data>", MaxAvailabilityPoints,
         "<data><month>9</month><year>9</year><number>9</number></data>", "</availability></squad>",
         "more than 255 availability points"},
        {"a second heavy weapon", "<squad>", "<mortar><weapon></weapon><ammo></ammo></mortar>", 1, FullGun,
         "</squad>", "a second heavy weapon"},
    };
    for (const LimitCase& c : cases) {
        const ReadUnit full = readWithDiagnostics(withEntries(c, false));
        EXPECT_TRUE(full.diagnostics.empty()) << c.what << ": " << full.diagnostics.front();
        const ReadUnit tooFull = readWithDiagnostics(withEntries(c, true));
        EXPECT_TRUE(tooFull.record == full.record) << c.what;
        ASSERT_EQ(tooFull.diagnostics.size(), 1U) << c.what;
        EXPECT_EQ(tooFull.diagnostics[0],
                  "ERROR: unit: line " + std::to_string(c.limit + 2) + ": " + c.complaint + ": left out");
    }
}

TEST(UnitLimits, HoldForQuarterlyAvailabilityToo) {
    std::string content = "<squad><commonness>\n";
    for (std::size_t i = 0; i <= MaxAvailabilityPoints; ++i) {
        const std::string quarter = std::to_string(1000 + i) + "Q1";
        content += "<" + quarter + ">" + std::to_string(1 + i) + "</" + quarter + ">\n";
    }
    const ReadUnit read = readWithDiagnostics(content + "</commonness></squad>");
    EXPECT_EQ(read.record.availability.size(), MaxAvailabilityPoints);
    EXPECT_EQ(read.record.availability.back().number, MaxAvailabilityPoints);
    ASSERT_EQ(read.diagnostics.size(), 1U);
    EXPECT_EQ(read.diagnostics[0], "ERROR: unit: line 257: more than 255 availability points: left out");
}

TEST(UnitLimits, CutLongTexts) {
    const std::string longText(300, 'x');
    const SquadRecord record =
        readUnitText("<squad><description><long_name>" + longText + "</long_name><language>deu</language>" +
                     "<uniform_game>" + longText + ".png</uniform_game></description></squad>");
    EXPECT_EQ(record.longName, longText.substr(0, 255));
    EXPECT_EQ(record.uniformGame, longText.substr(0, 255));
    EXPECT_EQ(record.language, "de");
}

TEST(UnitLimits, CallUnknownElementsOfEveryHeavyWeaponAMortar) {
    const std::string line =
        "\xF0\x9F\x92\xA5 ERROR: Game: createSquadOnSide() Unknown tag <%s> in <mortar>...</mortar>";
    for (const std::string weapon : {"mortar", "hmg", "atgun", "recoilless_rifle"}) {
        const ReadUnit read = readWithDiagnostics(
            "<squad><" + weapon + "><crew>2</crew><mass>5</mass><type>x</type></" + weapon + "></squad>");
        EXPECT_EQ(read.diagnostics, Diagnostics({line, line})) << weapon;
        EXPECT_EQ(read.record.heavyWeapon.value().mass, 5);
    }
    EXPECT_TRUE(readWithDiagnostics(
                    "<squad><x></x><man><y>1</y></man><vehicle><hull><z></z></hull></vehicle></squad>")
                    .diagnostics.empty())
        << "elsewhere unknown elements are passed over silently";
}

TEST(UnitLimits, BoundTheDiagnostics) {
    const std::string content =
        "<squad><hmg>" + repeated("<x></x>", 1000) + "</hmg>" + repeated("<hmg></hmg>", 1000) + "</squad>";
    EXPECT_EQ(readWithDiagnostics(content).diagnostics.size(), 100U);
}

TEST(UnitLoading, ShowsWhichFileCannotBeOpened) {
    const TemporaryFolder folder;
    const MessageRecorder messages;
    EXPECT_FALSE(loadUnit(folder.path(), Category::AtGuns, "Missing gun"));
    ASSERT_EQ(MessageRecorder::shown().size(), 1U);
    const Message& message = MessageRecorder::shown().front();
    EXPECT_EQ(message.caption, "Couldn't load file");
    EXPECT_EQ(message.text, folder.path() + "Data\\AT Guns\\Missing gun.txt" +
                                "\n\nCheck that the filename is made of ASCII characters and not Unicode");
    EXPECT_EQ(message.icon, MessageIcon::Warning);
    EXPECT_EQ(message.buttons, MessageButtons::Ok);
}

TEST(UnitLoading, ReadsTheCategorysFolder) {
    const TemporaryFolder folder;
    const MessageRecorder messages;
    const std::vector<std::pair<Category, std::string>> folders = {{Category::Vehicles, "Vehicles"},
                                                                   {Category::AtGuns, "AT Guns"},
                                                                   {Category::Infantry, "Infantry"},
                                                                   {Category::Aircraft, "Aircraft"}};
    for (const auto& [category, name] : folders) {
        folder.write("Data\\" + name + "\\One.txt",
                     "<squad><description><comment>" + name + "</comment></description></squad>");
        const std::optional<SquadRecord> record = loadUnit(folder.path(), category, "One");
        ASSERT_TRUE(record) << name;
        EXPECT_EQ(record->fileName, "One");
        EXPECT_EQ(record->comment, name);
    }
    EXPECT_TRUE(MessageRecorder::shown().empty());
}

} // namespace varrocade::tests
