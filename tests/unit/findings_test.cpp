// What findings say, where they point, and which values of a vehicle do not go together.

#include "data/finding_text.h"
#include "data/reading/unit_reader.h"
#include "data/unit/unit_consistency.h"
#include "test_support.h"
#include "weapons/weapon_files.h"

#include <functional>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

Diagnostics read(Category category, const std::string& content) {
    Diagnostics diagnostics;
    if (category == Category::Weapons) {
        readWeapon(content, "file", diagnostics);
    } else {
        readUnit(content, "file", diagnostics);
    }
    return diagnostics;
}

ComponentRecord component(ComponentKind kind) {
    ComponentRecord component;
    component.kind = kind;
    component.limitedTraverse = true;
    component.offsetZ = 1;
    component.rotateTime = 20;
    return component;
}

} // namespace

TEST(Findings, AreSaidInEachPlacesOwnWay) {
    struct Case {
        Finding finding;
        std::string debugger;
        std::string report;
        std::string people;
    };
    const Finding whole = {.key = finding_key::NoWeapon, .file = "a\\b.txt", .message = "holds no weapon"};
    Finding onLine = {.key = finding_key::NoRoom,
                      .severity = Severity::Error,
                      .file = "gun",
                      .line = 12,
                      .message = "no more"};
    Finding withColumn = onLine;
    withColumn.column = 3;
    withColumn.hint = "did you mean \"less\"?";
    const Finding refusal = {.key = "k", .severity = Severity::Note, .column = 5, .message = "The end?"};
    for (const Case& c :
         {Case{whole, "ERROR: a\\b.txt: line 0: holds no weapon",
               "a\\b.txt: warning: holds no weapon [no-weapon]", "Holds no weapon."},
          Case{onLine, "ERROR: gun: line 12: no more", "gun:12: error: no more [no-room]",
               "Line 12: no more."},
          Case{withColumn, "ERROR: gun: line 12: no more", "gun:12:3: error: no more [no-room]",
               "Line 12: no more (did you mean \"less\"?)."},
          Case{refusal, "ERROR: : line 0: The end?", "note: The end? [k]", "The end?"}}) {
        EXPECT_EQ(debuggerLine(c.finding), c.debugger);
        EXPECT_EQ(reportLine(c.finding), c.report);
        EXPECT_EQ(sentence(c.finding), c.people);
    }
}

TEST(Findings, ShowTheirLineWithACaret) {
    const std::string longLine = std::string(200, 'a') + "X" + std::string(200, 'b');
    const std::string content = "one\r\n\t\ttwo\x01\rthree\n\n" + longLine;
    const LineIndex lines(content);
    for (const auto& [line, column, expected] :
         {std::tuple<std::size_t, std::size_t, std::string>{0, 1, ""},
          {1, 1, "one\n^\n"},
          {1, 0, "one\n"},
          {2, 3, "\t\ttwo?\n\t\t^\n"},
          {3, 99, "three\n     ^\n"},
          {4, 1, "\n^\n"},
          {5, 201, std::string(60, 'a') + "X" + std::string(59, 'b') + "\n" + std::string(60, ' ') + "^\n"},
          {6, 1, "\n^\n"}}) {
        EXPECT_EQ(sourceExcerpt({.line = line, .column = column, .message = "m"}, lines), expected) << line;
    }
}

TEST(Findings, OfReadersPointAtTheirPlace) {
    const std::string men = repeated("<man></man>", 13);
    struct Case {
        Category category;
        std::string content;
        std::string expected;
    };
    const std::vector<Case> cases = {
        {Category::AtGuns, "<squad>\r\n\t<hmg>\r\n\t\t<crew>2</crew></hmg></squad>",
         "file:3:3: error: <crew> \"2\" in <hmg> is not known [unknown-element]"},
        // Comments and broken lines have the file cleaned before it is parsed.
        {Category::AtGuns, "<squad> // c\r<hmg>\r\t<mass>1<\n/mass><x>\n</x></hmg></squad>",
         "file:4:7: error: <x> in <hmg> is not known [unknown-element]"},
        {Category::Infantry, "<squad>" + men + "\n  <man></man></squad>",
         "file:2:3: error: more than 13 infantrymen: left out [no-room]"},
        {Category::Weapons, "<weapon>\n\t<type>WEAPON_BOW</type></weapon>",
         "file:2:8: error: \"WEAPON_BOW\" is not a weapon type [unknown-weapon-type]"},
        {Category::Weapons, "<weapon>\n\t<type></type></weapon>",
         "file:2:2: error: \"\" is not a weapon type [unknown-weapon-type]"},
    };
    for (const Case& c : cases) {
        const Diagnostics found = read(c.category, c.content);
        ASSERT_EQ(found.size(), 1U) << c.content;
        EXPECT_EQ(reportLine(found[0]), c.expected);
    }
    const Finding unknown = read(Category::Weapons, "<weapon><name>N</name><type>T</type></weapon>").at(0);
    EXPECT_EQ(unknown.subject, "N");
    EXPECT_EQ(unknown.value, "T");
}

TEST(Consistency, NamesTheFieldAndWhatIsExpected) {
    struct Case {
        std::function<void(ComponentRecord&)> change;
        std::string ofTurret; ///< key, field, value and what is expected; empty: nothing
        std::string ofFixedWeapon;
    };
    const std::string limits = "traverse-limit rotate_left -1: 0 to 360";
    const std::string sum = "traverse-sum rotate_left 181: at most 180";
    const std::string offset = "offset-angle offset_angle 181: -180 to 180";
    const std::string slow = "no-rotate-time rotate_time 0: at least 1";
    const std::vector<Case> cases = {
        {[](ComponentRecord& c) { c.rotateLeft = c.rotateRight = 180; }, "", ""},
        {[](ComponentRecord& c) { c.rotateLeft = -1; }, limits, limits},
        {[](ComponentRecord& c) { c.rotateRight = 361; }, "traverse-limit rotate_right 361: 0 to 360",
         "traverse-limit rotate_right 361: 0 to 360"},
        {[](ComponentRecord& c) { c.rotateLeft = 181, c.rotateRight = 180; }, sum, sum},
        {[](ComponentRecord& c) { c.rotateLeft = INT32_MAX, c.limitedTraverse = false; }, "",
         "traverse-limit rotate_left 2147483647: 0 to 360"},
        {[](ComponentRecord& c) { c.offsetAngle = -180; }, "", ""},
        {[](ComponentRecord& c) { c.offsetAngle = 181; }, offset, offset},
        {[](ComponentRecord& c) { c.offsetZ = 0; }, "", "offset-height offsetZ 0: at least 1"},
        {[](ComponentRecord& c) { c.rotateTime = 0; }, slow, slow},
    };
    for (const Case& c : cases) {
        for (const auto& [kind, name, expected] :
             {std::tuple(ComponentKind::Turret, "turret", c.ofTurret),
              std::tuple(ComponentKind::FixedWeapon, "fixed_weapon", c.ofFixedWeapon),
              std::tuple(ComponentKind::Hull, "hull", std::string())}) {
            VehicleRecord vehicle;
            vehicle.components = {component(kind), component(ComponentKind::Hull), component(kind)};
            c.change(vehicle.components.back());
            std::string found;
            for (const Finding& finding : vehicleFindings(vehicle)) {
                std::string_view field = finding.field;
                EXPECT_EQ(takePart(field, std::string(name) + "[2]."), "vehicle.");
                found.append(finding.key).append(" ").append(field).append(" ");
                found.append(finding.value).append(": ").append(finding.expected);
            }
            EXPECT_EQ(found, expected) << name;
        }
    }
}

TEST(Consistency, OfTheVehicleAsAWhole) {
    VehicleRecord vehicle;
    vehicle.revolutionLimit = vehicle.idleRevolutions - 1;
    ASSERT_EQ(vehicleFindings(vehicle).size(), 1U);
    EXPECT_EQ(vehicleFindings(vehicle)[0].field, "vehicle.rpm_limit");
    vehicle.components.resize(12);
    EXPECT_FALSE(componentRoomFinding(vehicle));
    vehicle.components.resize(13);
    EXPECT_TRUE(componentRoomFinding(vehicle));
    for (const SampleFile& file : sampleFiles()) {
        const SquadRecord record =
            file.category == Category::Vehicles ? readUnitText(file.content) : SquadRecord();
        for (const Finding& finding : vehicleFindings(record.vehicle.value_or(VehicleRecord()))) {
            ADD_FAILURE() << file.name << ": " << finding.field << ": " << sentence(finding);
        }
    }
}

} // namespace varrocade::tests
