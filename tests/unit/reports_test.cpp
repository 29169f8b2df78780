// The reports over a game or a mod.

#include "data/unit/enumerations.h"
#include "made_png.h"
#include "pictures/png_codec.h"
#include "test_support.h"
#include "tools/reports/duplicate_files.h"
#include "tools/reports/missing_voices.h"
#include "tools/reports/png_usage.h"
#include "tools/reports/unused_files.h"
#include "tools/voices.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

constexpr std::string_view ReportTank =
    "<squad><description><nationality>NATIONALITY_DUTCH</nationality></"
    "description><vehicle><hull><image_view>"
    "Tiger.png</image_view><image_destroyed>gone.png</image_destroyed><man><job>JOB_LOADER</job></man></hull>"
    "<turret><weapon><type>WEAPON_KWK</type></weapon></turret></vehicle></squad>";
constexpr std::string_view Gun =
    "<weapon><name>WEAPON_KWK</name><shoot><sound_shoot>boom</sound_shoot></shoot></weapon>";

/// A game, and a mod with what each check looks for.
class ModFolder : public TemporaryFolder {
public:
    ModFolder() {
        const Picture clear = emptyPicture({20, 20});
        write("Game\\Images\\Units\\Vehicles\\Hulls\\tiger.png", "same");
        write("Game\\Images\\Units\\Vehicles\\Turrets\\pixels.png", writePng(clear));
        write("Game\\Data\\Vehicles\\Dutch Old.txt", ReportTank);
        write("Game\\Data\\Weapons\\Kwk.txt", Gun);
        write("Game\\Sounds\\Voices\\nl_loaded.wav", "");
        write("Mod\\Mod.txt", "");
        write("Mod\\Data\\Vehicles\\Dutch Tank.txt", ReportTank);
        write("Mod\\Data\\Vehicles\\dutch old.txt", "// the same\n" + std::string(ReportTank));
        write("Mod\\Data\\Weapons\\Unused.txt", "<weapon><name>WEAPON_X</name></weapon>");
        write("Mod\\Images\\Units\\Vehicles\\Hulls\\TIGER.png", "same");
        write("Mod\\Images\\Units\\Vehicles\\Turrets\\Pixels.png", writeSmallestPng(clear));
        write("Mod\\Images\\Flags\\Static\\dutch.png", "");
        write("Mod\\Sounds\\Boom.wav", "");
        write("Mod\\Sounds\\silence.wav", "");
        write("Mod\\Sounds\\Voices\\nl_dutch_wounded.wav", "");
    }
    [[nodiscard]] GameFolders folders() const { return {path() + "Game\\", path() + "Mod\\"}; }
};

/// "below: reason" a row, with the users of those that have some.
std::string rowsOf(ModCheck& check) {
    runJob(check);
    EXPECT_EQ(check.progress().done, check.progress().total);
    std::string text;
    for (const ModCheckRow& row : check.rows()) {
        text += row.below + ": " + row.reason.substr(0, row.reason.find(" the game's own"));
        for (const ReferenceUser& user : row.users) {
            text += ", " + user.name;
        }
        text += '\n';
    }
    return text;
}

TEST(Reports, FindWhatAModDoesNotNeed) {
    const ModFolder folder;
    DuplicateFiles duplicates(folder.folders());
    EXPECT_EQ(rowsOf(duplicates),
              "Images\\Units\\Vehicles\\Hulls\\TIGER.png: byte for byte, Vehicles: dutch old, Vehicles: "
              "Dutch Tank\nImages\\Units\\Vehicles\\Turrets\\Pixels.png: pixel for "
              "pixel\nData\\Vehicles\\dutch old.txt: value for value, Vehicles: dutch old\n");
    UnusedFiles unused(folder.folders());
    const std::string reason = rowsOf(unused);
    EXPECT_EQ(reason,
              "Images\\Units\\Vehicles\\Turrets\\Pixels.png: no unit, no weapon and no nation shows this "
              "picture\nSounds\\silence.wav: no weapon and no aircraft makes this sound\n"
              "Data\\Weapons\\Unused.txt: no unit carries this weapon, Weapons: Unused\n");

    EXPECT_EQ(recycleQuestion({unused.rows().front()}),
              "This file would be moved to the recycle bin:\n\n    Images\\Units\\"
              "Vehicles\\Turrets\\Pixels.png\n\nMove it?");

    const auto recycle = [&](const std::vector<std::string>& paths) {
        RecycleJob job(systemFiles(), folder.folders().mod, paths);
        runJob(job);
        EXPECT_EQ(job.moved().size() + job.failures().size(), paths.size());
        return job.failures();
    };
    const std::vector<std::string> before = folder.files();
    const std::vector<std::string> paths = {unused.rows().front().path, folder.folders().program + "Data\\x",
                                            folder.folders().mod + "..\\Game\\Data\\Weapons\\Kwk.txt",
                                            folder.folders().mod + "none.png"};
    const std::vector<FileFailure> failures = recycle(paths);
    ASSERT_EQ(failures.size(), 3U) << "nothing outside the mod's folder is touched";
    EXPECT_EQ(failures[1].reason, "it is not in the mod's folder");

    // Where the mod's folder of weapons is the game's by a link, its files are the game's own.
    std::error_code error;
    std::filesystem::create_directory_symlink(folder.nativePath("Game\\Data\\Weapons"),
                                              folder.nativePath("Mod\\Linked"), error);
    if (!error) {
        const std::vector<FileFailure> linked = recycle({folder.folders().mod + "Linked\\Kwk.txt"});
        ASSERT_EQ(linked.size(), 1U);
        EXPECT_EQ(linked[0].reason, "a folder of its path is a link to another place");
        std::filesystem::remove(folder.nativePath("Mod\\Linked"));
    }
    EXPECT_EQ(folder.files().size(), before.size() - 1);
}

TEST(Reports, NameUsersInOneOrderForAnyNumberOfThreads) {
    const TemporaryFolder folder;
    const auto write = [&](const std::string& name, const std::string& hull, const std::string& turret) {
        folder.write("Data\\" + name + ".txt",
                     "<squad><description><nationality>NATIONALITY_DUTCH</nationality></description><vehicle>"
                     "<hull><image_view>" +
                         hull + "</image_view></hull><turret><image_view>" + turret +
                         "</image_view><weapon><type>WEAPON_KWK</type></weapon></turret></vehicle></squad>");
    };
    std::string users;
    for (const std::string name : {"10", "11", "12", "13", "14", "15"}) {
        // A picture may be named in any letter case.
        write("Vehicles\\" + name, name < "13" ? "TIGER.png" : "tiger.png", name == "15" ? "GONE.png" : "");
        users += "\tVehicles: " + name + "\r\n";
    }
    // One that is missing is called as the first one calls it, whichever thread reads that one.
    write("AT Guns\\20", "", "gone.png");
    write("AT Guns\\21", "", "Gone.png");
    folder.write("Data\\Weapons\\Kwk.txt", Gun);
    folder.write("Images\\Units\\Vehicles\\Hulls\\Tiger.png", "");
    for (const unsigned threads : {1U, 2U, 5U}) {
        PngUsage usage({.program = folder.path()});
        usage.run(threads);
        EXPECT_EQ(usage.files()[1].content,
                  "Images\\Units\\Vehicles\\Hulls\\Tiger.png\r\n" + users +
                      "\r\nNamed, but not there:\r\nImages\\Units\\Vehicles\\Turrets\\GONE.png\r\n"
                      "\tVehicles: 15\r\n\tAT Guns: 20\r\n\tAT Guns: 21\r\n")
            << threads;
        UnusedFiles unused({.program = folder.path() + "none\\", .mod = folder.path()});
        unused.run(threads);
        EXPECT_TRUE(unused.rows().empty()) << "the weapon is known by the name in its file";
    }
}

TEST(Reports, CompareLargePicturesBesideTheWindow) {
    const TemporaryFolder folder;
    Picture large = emptyPicture({1000, 800});
    const std::string below = "Images\\Units\\Vehicles\\Hulls\\";
    // What nearly all programs write of the usual colours is no difference.
    using namespace std::string_literals;
    const std::string plain = writePng(large);
    const std::string usual = std::string(plain).insert(
        33, pngChunk("gAMA", "\0\0\xB1\x8F"s) +
                pngChunk("cHRM", "\0\0\x7A\x26\0\0\x80\x84\0\0\xFA\0\0\0\x80\xE8"
                                 "\0\0\x75\x30\0\0\xEA\x60\0\0\x3A\x98\0\0\x17\x70"s));
    const std::string other = std::string(plain).insert(33, pngChunk("gAMA", "\0\1\0\0"s));
    large.samples.back() = 1;
    const std::string changed = writePng(large);
    for (const auto& [name, content] :
         {std::pair("usual.png", &usual), {"gamma.png", &other}, {"pixel.png", &changed}}) {
        folder.write("Game\\" + below + name, plain);
        folder.write("Mod\\" + below + name, *content);
    }
    const GameFolders folders{folder.path() + "Game\\", folder.path() + "Mod\\"};
    DuplicateFiles duplicates(folders);
    EXPECT_EQ(rowsOf(duplicates), below + "usual.png: pixel for pixel\n");
    // One that is dropped while its thread works.
    DuplicateFiles dropped(folders);
    while (dropped.progress().name != "gamma.png") {
        ASSERT_TRUE(dropped.step());
    }
}

TEST(Reports, FindTheVoicesThatAModLacks) {
    const ModFolder folder;
    MissingVoices voices(folder.folders());
    EXPECT_EQ(
        rowsOf(voices),
        "Sounds\\Voices\\nl_last_round.wav: Dutch men say it, in \"nl\"; nl_dutch_last_round.wav would do, "
        "too, Vehicles: dutch old, Vehicles: Dutch Tank\n"
        "Sounds\\Voices\\nl_under_fire.wav: Dutch men say it, in \"nl\"; nl_dutch_under_fire.wav would do, "
        "too, Vehicles: dutch old, Vehicles: Dutch Tank\n");
    MissingVoices sample({.program = SampleBase});
    runJob(sample);
    for (const ModCheckRow& row : sample.rows()) {
        const std::string name = row.below.substr(VoiceFolder.size());
        EXPECT_FALSE(name.starts_with("de_") || name.starts_with("en_")) << "the sample has these: " << name;
    }
    for (const std::string_view nationality : nationalityNames()) {
        EXPECT_EQ(languageOf(nationality).size(), 2U) << nationality;
    }
    for (const std::string_view job : jobNames()) {
        EXPECT_EQ(callsOf(job).empty(), job == "JOB_NONE") << job;
    }
}

TEST(Reports, ListWhichPicturesAreUsedAndWhichAreNot) {
    const ModFolder folder;
    PngUsage usage(folder.folders());
    runJob(usage);
    const std::vector<ReportFile> files = usage.files();
    EXPECT_EQ(files[0].name, "List Of Unused PNGs.txt");
    EXPECT_EQ(files[0].content, "Images\\Units\\Vehicles\\Turrets\\Pixels.png\r\n");
    EXPECT_EQ(
        files[1].content,
        "Images\\Units\\Vehicles\\Hulls\\TIGER.png\r\n\tVehicles: dutch old\r\n\tVehicles: Dutch Tank\r\n"
        "Images\\Flags\\Static\\dutch.png\r\n\tthe game\r\n\tVehicles: dutch old\r\n\tVehicles: Dutch "
        "Tank\r\n"
        "\r\nNamed, but not there:\r\nImages\\Units\\Vehicles\\Destroyed\\gone.png\r\n\tVehicles: dutch "
        "old\r\n"
        "\tVehicles: Dutch Tank\r\n");
    PngUsage sample({.program = SampleBase});
    runJob(sample);
    EXPECT_TRUE(sample.failures().empty());
    EXPECT_EQ(sample.files()[1].content.find("Named, but not there"), std::string::npos);
}

TEST(Reports, SayHowLongTheyTake) {
    using std::chrono::milliseconds;
    EXPECT_EQ(timeToGoText({0, 100}, milliseconds{9000}), "") << "nothing is known yet";
    EXPECT_EQ(timeToGoText({50, 100}, milliseconds{400}), "");
    EXPECT_EQ(timeToGoText({50, 100}, milliseconds{1000}), "about 1 second to go");
    EXPECT_EQ(timeToGoText({10, 100}, milliseconds{60000}), "about 9 minutes to go");
    EXPECT_EQ(timeToGoText({100, 100}, milliseconds{60000}), "");
}

} // namespace
} // namespace varrocade::tests
