#include "data/reading/unit_reader.h"

#include "data/unit/enumerations.h"
#include "test_support.h"

#include <utility>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// A content in the elements of a path such as "squad/vehicle".
std::string within(std::string_view path, std::string_view content) {
    if (path.empty()) {
        return std::string(content);
    }
    const std::string name(takePart(path, "/"));
    return "<" + name + ">" + within(path, content) + "</" + name + ">";
}

SquadRecord readWithin(std::string_view path, std::string_view content) {
    return readUnitText(within(path, content));
}

bool areReadAlike(std::string_view path, std::string_view one, std::string_view other) {
    return path.starts_with("weapon")
               ? readWeaponText(within(path, one)) == readWeaponText(within(path, other))
               : readWithin(path, one) == readWithin(path, other);
}

} // namespace

TEST(UnitReader, StartsFromTheDefaults) {
    SquadRecord record;
    record.fileName = "unit";
    EXPECT_TRUE(readUnitText("") == record);
    EXPECT_TRUE(readUnitText("<squad></squad>") == record);
    record.vehicle.emplace().exhaustPipes.resize(1);
    record.vehicle->components.resize(1);
    record.vehicle->components[0].kind = ComponentKind::Turret;
    record.vehicle->components[0].crew.resize(1);
    const std::string_view parts =
        "<drive><exhaust_pipe></exhaust_pipe></drive><turret><man></man><armour></armour></turret>";
    EXPECT_TRUE(readWithin("squad/vehicle", parts) == record);
}

TEST(Readers, TakeOneContentForAnother) {
    for (const TextCase& c : textCases("readings.txt")) {
        std::string_view what = c.heading;
        std::string_view paths = takePart(what, ": ");
        do {
            const std::string_view path = takePart(paths, " ");
            std::string_view contents = c.text;
            std::string_view meanings = c.expected;
            while (!contents.empty() || !meanings.empty()) {
                const std::string_view content = takePart(contents, "\n");
                const std::string_view meaning = takePart(meanings, "\n");
                EXPECT_TRUE(areReadAlike(path, content, meaning)) << path << ' ' << content;
                EXPECT_EQ(areReadAlike(path, content, ""), meaning.empty()) << path << ' ' << content;
            }
        } while (!paths.empty());
    }
}

TEST(UnitReader, TakesKnownQualities) {
    for (const std::string_view name : qualityNames()) {
        EXPECT_EQ(readWithin("squad/description/quality", name).quality,
                  name == "QUALITY_RAW" ? "QUALITY_UNTRAINED" : name);
    }
}

TEST(UnitReader, NotesOlderAvailability) {
    EXPECT_TRUE(readWithin("squad/commonness/1942Q1", "0").convertedAvailability);
    EXPECT_FALSE(readWithin("squad/commonness/old", "5").convertedAvailability);
}

TEST(UnitReader, NormalisesAnglesOfAircraftWeapons) {
    using Case = std::pair<std::string_view, int>;
    for (const auto& [text, angle] :
         {Case{"0", 0}, Case{"180", 180}, Case{"-180", -180}, Case{"181", -179}, Case{"-181", 179},
          Case{"359", -1}, Case{"360", 0}, Case{"540", 180}, Case{"-540", -180}, Case{"-900", -180},
          Case{"2147483647", 127}, Case{"-2147483648", -128}}) {
        const SquadRecord record = readWithin("aircraft/armament/weapon/offset_angle", text);
        EXPECT_EQ(record.aircraft.value().weapons.at(0).offsetAngle, angle) << text;
    }
}

} // namespace varrocade::tests
