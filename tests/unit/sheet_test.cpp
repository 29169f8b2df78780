// What data sheets say of files of the sample, and how they are laid out.

#include "data/reading/unit_reader.h"
#include "notebook_device.h"
#include "test_support.h"
#include "view/painting/armour_painter.h"
#include "view/painting/sheet_painter.h"
#include "view/sheet/data_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varrocade::tests {
namespace {

std::string joined(const std::vector<std::string>& cells) {
    std::string line;
    for (const std::string& cell : cells) {
        line += (cell.empty() ? "-" : cell) + " | ";
    }
    line.replace(line.size() - 3, 3, "\n");
    return line;
}

/// The figures and words of a sheet, a line each.
std::string sheetText(const DataSheet& sheet) {
    std::string text = joined({sheet.title.text, sheet.title.subtitle, sheet.comment});
    for (const SheetSection& section : sheet.sections) {
        text += "[" + section.heading.text + "]\n";
        for (const SheetPair& pair : section.pairs) {
            text += pair.label + ": " + pair.value + "\n";
        }
        for (const SheetTable& table : section.tables) {
            for (const SheetRow& row : table.rows) {
                text += joined(row.cells) + (row.detail.empty() ? "" : "  " + row.detail + "\n");
            }
        }
        for (const SheetNote& note : section.notes) {
            text += note.text + "\n";
        }
    }
    text.pop_back();
    // The files of cases are ASCII.
    std::replace(text.begin(), text.end(), '\xB0', '*');
    return text;
}

const WeaponCatalogue& sampleCatalogue() {
    static const WeaponCatalogue catalogue = [] {
        WeaponCatalogue loaded;
        loaded.load(SampleBase);
        return loaded;
    }();
    return catalogue;
}

TEST(DataSheet, SaysWhatTheFilesOfTheSampleHold) {
    for (const TextCase& one : textCases("sheets.txt")) {
        const auto& files = sampleFiles();
        const auto file = std::find_if(files.begin(), files.end(),
                                       [&](const SampleFile& sample) { return sample.name == one.heading; });
        ASSERT_NE(file, files.end()) << one.heading;
        // Of a weapon the case names who uses it: nobody, or not known yet.
        const bool isKnown = one.text != "unknown users";
        const std::optional<std::vector<std::string>> users =
            isKnown ? std::optional(std::vector<std::string>()) : std::nullopt;
        const DataSheet sheet = file->category == Category::Weapons
                                    ? weaponSheet(readWeaponText(file->content), {}, users)
                                    : unitSheet(readUnitText(file->content), {}, sampleCatalogue());
        EXPECT_EQ(sheetText(sheet), one.expected) << one.heading;
    }
}

TEST(DataSheet, OfAWeaponListsProblemsAndUsers) {
    const auto problems = std::to_array<SheetProblem>({{{.message = "a weapon without a type"}}});
    const std::string text =
        sheetText(weaponSheet({}, problems, std::vector<std::string>{"Vehicles: Tiger", "Aircraft: Il-2"}));
    EXPECT_NE(text.find("[Problems of the file]\nA weapon without a type.\n"), std::string::npos) << text;
    EXPECT_NE(text.find("[Ammunition]\nNone.\n"), std::string::npos) << text;
    EXPECT_TRUE(text.ends_with("[Used by]\nVehicles: Tiger\nAircraft: Il-2")) << text;
}

SquadRecord sampleUnit(std::string_view name) {
    for (const SampleFile& file : sampleFiles()) {
        if (file.name == name) {
            return readUnitText(file.content);
        }
    }
    ADD_FAILURE() << name;
    return {};
}

/// The pixels of the longest piece of a text that has no place to be broken at.
int longestPiece(const std::string& text) {
    std::size_t longest = 0;
    std::size_t start = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        if (i == text.size() || std::string_view(" _\n").find(text[i]) != std::string_view::npos) {
            longest = std::max(longest, i - start);
            start = i + 1;
        }
    }
    return 6 * static_cast<int>(longest);
}

bool overlap(const PixelRect& a, const PixelRect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

/// No word is broken or cut, nothing is written over anything else.
void expectReadable(const std::vector<NotebookDevice::Words>& texts, int width, const std::string& name) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const NotebookDevice::Words& words = texts[i];
        EXPECT_GE(words.place.right - words.place.left, longestPiece(words.text))
            << name << ": " << words.text;
        EXPECT_TRUE(words.text.empty() || (words.place.left >= 0 && words.place.right <= width))
            << name << ": " << words.text;
        for (std::size_t j = i + 1; j < texts.size(); ++j) {
            EXPECT_FALSE(overlap(words.place, texts[j].place) && !words.text.empty() &&
                         !texts[j].text.empty())
                << name << ": " << words.text << " and " << texts[j].text << " at " << width;
        }
    }
}

TEST(SheetPainter, KeepsAllFilesWithinTheirAreaAndFindsTheirParts) {
    for (const int width : {383, 591, 700}) {
        for (const SampleFile& file : sampleFiles()) {
            const DataSheet sheet = file.category == Category::Weapons
                                        ? weaponSheet(readWeaponText(file.content), {}, {})
                                        : unitSheet(readUnitText(file.content), {}, sampleCatalogue());
            NotebookDevice device;
            const SheetLayout layout =
                paintSheet(device, {0, 0, width, 900}, sheet, {.bases = {"mod\\", "game\\"}});
            expectReadable(device.texts, width, file.name);
            for (const NotebookDevice::Words& words : device.texts) {
                EXPECT_LE(words.place.bottom, layout.height) << file.name << ": " << words.text;
            }
            for (const SheetPlace& one : layout.places) {
                EXPECT_LE(one.place.right, width - 14) << file.name;
                const PixelPoint inside{one.place.left, one.place.bottom - 1};
                EXPECT_TRUE(one.place.top >= one.place.bottom || sheetPartAt(layout, 0, inside)) << file.name;
            }
        }
    }
}

TEST(SheetPainter, ShowsFlagTimelineAndWhatIsSelected) {
    const DataSheet sheet = unitSheet(sampleUnit("German Panzer VI Tiger Ausf E"), {}, sampleCatalogue());
    const UnitPart gun{PartKind::Weapon, 1, 0};
    NotebookDevice plain;
    NotebookDevice device;
    const std::vector<std::string> bases = {"game\\"};
    paintSheet(plain, {0, 0, 600, 900}, sheet, {.bases = bases});
    const SheetLayout layout =
        paintSheet(device, {0, 0, 600, 900}, sheet, {.bases = bases, .scroll = 50, .selected = gun});
    EXPECT_EQ(device.pictures.at(0), "game\\Images\\Flags\\Static\\german.png");
    EXPECT_EQ(device.timelines.size(), 1U);
    EXPECT_TRUE(plain.fills.empty());
    ASSERT_EQ(device.fills.size(), 1U);
    const PixelPoint inside{device.fills[0].left + 10, device.fills[0].top + 1};
    EXPECT_EQ(sheetPartAt(layout, 50, inside), gun);
    EXPECT_EQ(sheetPartAt(layout, 50, {30, layout.headHeight - 1}), UnitPart{PartKind::Details})
        << "the title";
    EXPECT_EQ(sheetPartAt(layout, 0, {30, layout.height + 1}), UnitPart{});
}

TEST(SheetPainter, BreaksLongNamesOfFilesBehindUnderscores) {
    const DataSheet sheet{
        .sections = {{.heading = {"Missing"}, .notes = {{"uniform_american_1944_profile.png"}}}}};
    NotebookDevice device;
    paintSheet(device, {0, 0, 160, 900}, sheet, {});
    EXPECT_EQ(device.texts.back().text, "uniform_american_1944_\nprofile.png");
}

TEST(ArmourPainter, DrawsPlatesAsThickAsTheyAre) {
    ArmourRecord armour;
    armour.upperFront = {160, 0};
    armour.lowerFront = {32, 0};
    armour.upperRear = {0, 0};
    NotebookDevice device;
    paintPlates(device, {0, 0, 300, 100}, sideSketch(armour), "front", 192);
    EXPECT_EQ(device.texts.size(), 1U) << "no figures beside plates";
    ASSERT_EQ(device.lines.size(), 2U);
    EXPECT_EQ(device.lines[0].width, 10);
    EXPECT_EQ(device.lines[1].width, 2);
    EXPECT_LT(device.lines[0].to.y, device.lines[1].to.y) << "the upper plate";
}

} // namespace
} // namespace varrocade::tests
