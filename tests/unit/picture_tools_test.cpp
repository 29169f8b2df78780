// What goes over all pictures of a game: making them smaller, and thumbnails.

#include "cli/command_line.h"
#include "made_png.h"
#include "pictures/png_reduction.h"
#include "test_support.h"
#include "tools/pictures/canvas.h"
#include "tools/pictures/picture_reduction.h"
#include "tools/pictures/thumbnails.h"

#include <algorithm>
#include <chrono>
#include <map>

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view RedPixel = "\xFF\0\0\xFF"sv;
constexpr std::string_view BluePixel = "\0\0\xFF\xFF"sv;
const std::string Vehicles = "Images\\Units\\Vehicles\\";

std::string tank(std::string_view hull, int length, std::string_view turret) {
    return "<squad><description><nationality>NATIONALITY_GERMAN</nationality></"
           "description><vehicle><hull><length>" +
           std::to_string(length) + "</length><image_view>" + std::string(hull) + ".png</image_view></hull>" +
           "<turret><offsetY>20</offsetY><diameter>40</diameter><image_view>" + std::string(turret) +
           ".png</image_view></turret></vehicle></squad>";
}

class PictureTools : public testing::Test {
protected:
    void hull(std::string_view name, std::uint32_t width, std::uint32_t height) const {
        folder.write("Game\\" + Vehicles + "Hulls\\" + std::string(name) + ".png",
                     plainPng(width, height, RedPixel));
    }
    void turret(std::string_view name, std::uint32_t side) const {
        folder.write("Game\\" + Vehicles + "Turrets\\" + std::string(name) + ".png",
                     plainPng(side, side, BluePixel));
    }
    void vehicle(std::string_view name, const std::string& content) const {
        folder.write("Game\\Data\\Vehicles\\" + std::string(name) + ".txt", content);
    }
    void otherFolders() const {
        for (const Category category : AllCategories) {
            folder.write("Game\\Data\\" + std::string(categoryName(category)) + "\\note.doc", "");
        }
    }
    /// The pictures that are to be scaled, and to which width.
    std::map<std::string, int> scaledWidths(const ReductionOptions& options, bool inMod = false) {
        plan.start({game, inMod ? folder.path() + "Mod\\" : ""}, options);
        while (plan.step()) {
        }
        std::map<std::string, int> widths;
        for (const ReductionSet& set : plan.sets()) {
            for (const PictureToReduce& picture : set) {
                if (picture.wanted != picture.size) {
                    widths[picture.below.substr(Vehicles.size())] = picture.wanted.width;
                }
            }
        }
        return widths;
    }

    TemporaryFolder folder;
    std::string game = folder.path() + "Game\\";
    ReductionPlan plan;
};

TEST_F(PictureTools, ScaleAVehiclesPicturesTogetherToTheGreatestNeed) {
    using Widths = std::map<std::string, int>;
    otherFolders();
    hull("Big", 100, 200);
    turret("Own", 60);
    vehicle("German Big", tank("BIG", 100, "own"));
    EXPECT_EQ(scaledWidths({.scalesDown = true}), (Widths{{"Hulls\\Big.png", 50}, {"Turrets\\Own.png", 30}}));
    EXPECT_EQ(scaledWidths({}), Widths{}) << "nobody asked for it";
    // Another vehicle needs the turret at eight tenths, so the hulls of both go with it.
    hull("Other", 100, 200);
    vehicle("German Other", tank("Other", 160, "Own"));
    const Widths together{{"Hulls\\Big.png", 80}, {"Hulls\\Other.png", 80}, {"Turrets\\Own.png", 48}};
    EXPECT_EQ(scaledWidths({.scalesDown = true}), together);
    EXPECT_EQ(scaledWidths({.vehicle = "german big", .scalesDown = true}), together);
    EXPECT_TRUE(plan.isVehicleFound());
    // A mod may not touch the game's turret, and leaves its own hull as large then.
    folder.write("Mod\\" + Vehicles + "Hulls\\Big.png", plainPng(100, 200, RedPixel));
    EXPECT_EQ(scaledWidths({.scalesDown = true}, true), Widths{});
    ASSERT_EQ(plan.sets().size(), 1U);
    // What shows an unknown size somewhere else stays.
    hull("Typo", 100, 200);
    vehicle("German Typo", tank("Typo", 1, "None"));
    folder.write("Game\\Images\\Units\\Image-Gun.png", plainPng(300, 600, RedPixel));
    vehicle("German Generic", tank("Image-Gun", 300, "None"));
    EXPECT_EQ(scaledWidths({.scalesDown = true}).size(), 4U);
    folder.write("Game\\Data\\AT Guns\\German Gun.txt",
                 "<squad><atgun><image_view_gun>Image-Gun.png</image_view_gun></atgun></squad>");
    EXPECT_EQ(scaledWidths({.scalesDown = true}), together);
    folder.write("Game\\Data\\Vehicles\\German Folder.txt\\in", "");
}

TEST_F(PictureTools, WritesASetWholeOrNotAtAll) {
    otherFolders();
    hull("Big", 100, 200);
    turret("Own", 60);
    vehicle("German Big", tank("Big", 100, "Own"));
    scaledWidths({.scalesDown = true});
    ASSERT_EQ(plan.sets().size(), 1U);
    std::vector<ReducedPicture> set = reduceSet(plan.sets()[0]);
    const std::vector<ReducedPicture> good = set;
    const std::string own = "Game\\" + Vehicles + "Turrets\\Own.png";
    const std::string big = "Game\\" + Vehicles + "Hulls\\Big.png";
    folder.write(own, plainPng(61, 61, BluePixel));
    BackupKeeper backups;
    EXPECT_TRUE(writeReducedSet(systemFiles(), backups, game, set));
    EXPECT_EQ(folder.read(big), good[0].former) << "has what it held";
    EXPECT_TRUE(std::all_of(set.begin(), set.end(), [](const ReducedPicture& each) {
        return each.outcome == ReductionOutcome::Failed;
    }));
    folder.write(own, good[1].former);
    set = good;
    EXPECT_FALSE(writeReducedSet(systemFiles(), backups, game, set));
    EXPECT_EQ(readPng(folder.read(big)).picture.size, (PictureSize{50, 100}));
    EXPECT_EQ(readPng(folder.read(own)).picture.size, (PictureSize{30, 30}));
    // A set of which one picture cannot be read keeps its pixels.
    folder.write(own, "damaged");
    std::vector<ReducedPicture> rest = reduceSet(
        {{folder.path() + big, "a", {50, 100}, {25, 50}}, {folder.path() + own, "b", {30, 30}, {15, 15}}});
    EXPECT_NE(rest[0].outcome, ReductionOutcome::Scaled);
    EXPECT_EQ(rest[0].reason, "not scaled, since \"b\" is no PNG file");
    EXPECT_EQ(rest[1].reason, "is no PNG file");
}

TEST_F(PictureTools, OfAWindowAreMadeSmallerBesideItAndNobodyWaitsForADroppedOne) {
    otherFolders();
    hull("Big", 100, 200);
    hull("Small", 10, 20);
    vehicle("German Big", tank("Big", 100, "None"));
    ReductionJob job;
    job.start({game}, {.scalesDown = true});
    double share = 0;
    while (job.step()) {
        if (const JobProgress progress = job.progress(); progress.workTotal > 0) {
            EXPECT_GE(progress.share(), share);
            EXPECT_EQ(progress.total, 2U);
            share = progress.share();
        }
    }
    EXPECT_EQ(job.progress().share(), 1);
    ASSERT_EQ(job.results().size(), 2U);
    scaledWidths({.scalesDown = true});
    EXPECT_EQ(job.results()[0][0].content, reduceSet(plan.sets()[0])[0].content);

    const std::string large = plainPng(1500, 1500, RedPixel);
    folder.write("Game\\" + Vehicles + "Hulls\\Small.png", large);
    const auto start = std::chrono::steady_clock::now();
    job.start({game}, {.scalesDown = true});
    while (job.progress().name.find("Small") == std::string::npos || job.progress().share() < 0.01) {
        job.step();
    }
    EXPECT_LT(job.progress().share(), 0.5) << "of a picture that is nearly all the work";
    job.start({game}, {});
    EXPECT_EQ(job.progress().workTotal, 0U);
    int stops = 0;
    const PngReduction stopped = recompressedPng(large, [&](double) { return ++stops < 2; });
    EXPECT_EQ(stops, 3) << "the second search is not begun in earnest";
    EXPECT_TRUE(stopped.content.empty() && stopped.failure.empty());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

int run(std::initializer_list<std::string> arguments, std::string& printed) {
    const std::vector<std::string> list(arguments);
    testing::internal::CaptureStdout();
    const int status = cli::runCommandLine(list);
    printed = testing::internal::GetCapturedStdout();
    return status;
}

TEST_F(PictureTools, OfTheCommandLineWriteOnlyWhenAsked) {
    otherFolders();
    hull("Big", 100, 200);
    turret("Own", 60);
    vehicle("German Big", tank("Big", 100, "Own"));
    const std::string before = folder.read("Game\\" + Vehicles + "Hulls\\Big.png");
    std::string printed;
    EXPECT_EQ(run({"report", "reduce", game, "--scale-down"}, printed), cli::Done);
    EXPECT_NE(printed.find("Hulls\\Big.png\t100x200\t50x100\t" + std::to_string(before.size())),
              std::string::npos)
        << printed;
    EXPECT_EQ(folder.read("Game\\" + Vehicles + "Hulls\\Big.png"), before);
    EXPECT_EQ(run({"report", "reduce", game, "--unit", "German Big", "--write"}, printed), cli::Done);
    const std::string after = folder.read("Game\\" + Vehicles + "Hulls\\Big.png");
    EXPECT_LT(after.size(), before.size());
    EXPECT_TRUE(samePngPixels(before, after));
    const std::vector<std::string> files = folder.files();
    EXPECT_EQ(
        std::count_if(files.begin(), files.end(),
                      [](const std::string& file) { return file.find("Backups") != std::string::npos; }),
        2);
    EXPECT_EQ(run({"report", "reduce", game, "--unit", "Nobody"}, printed), cli::CouldNot);
    EXPECT_EQ(run({"report", "thumbnails", game, "--fit", "0"}, printed), cli::CouldNot);
    EXPECT_EQ(run({"report", "thumbnails", game, "--fit", "64"}, printed), cli::Done);
    const Picture small = readPng(folder.read("Game\\Thumbnails\\German\\German Big.png")).picture;
    EXPECT_EQ(small.size, (PictureSize{64, 64}));
    // The hull is 50 by 100 cm: 32 by 64 pixels in the middle of the square, its turret a little to the
    // front.
    const auto pixel = [&](int x, int y) {
        const auto at = small.samples.begin() + (std::ptrdiff_t{y} * 64 + x) * 4;
        return std::string(at, at + 4);
    };
    EXPECT_EQ(pixel(20, 50), RedPixel);
    EXPECT_EQ(pixel(32, 20), BluePixel);
    EXPECT_EQ(pixel(32, 50), RedPixel);
    EXPECT_EQ(pixel(8, 32), std::string(4, '\0'));
    EXPECT_GE(readPng(folder.read("Game\\Thumbnails\\German.png")).picture.size.width, 110);
}

TEST_F(PictureTools, MakeThumbnailsInStepsAndTellWhatFails) {
    otherFolders();
    hull("Big", 100, 200);
    turret("Own", 60);
    vehicle("German Big", tank("Big", 200, "Own"));
    vehicle("German Bare", tank("None", 200, "None"));
    folder.write("Game\\" + Vehicles + "Turrets\\Bad.png", plainPng(9, 9, BluePixel).substr(0, 60));
    vehicle("German Bad", tank("Big", 200, "Bad"));
    ThumbnailJob job({game}, {.scale = 50}, folder.path() + "Out\\");
    std::size_t steps = 1;
    while (job.step()) {
        ++steps;
        EXPECT_LE(job.progress().done, job.progress().total);
    }
    EXPECT_EQ(steps, 5U) << "three files, two pictures";
    EXPECT_EQ(job.failures().size(), 2U);
    // At 50 pixels a metre: the hull is 100 by 200 cm.
    EXPECT_EQ(readPng(folder.read("Out\\German\\German Big.png")).picture.size, (PictureSize{50, 100}));
    const std::vector<std::string> files = folder.files();
    EXPECT_EQ(std::count_if(files.begin(), files.end(),
                            [](const std::string& file) { return file.find("Out") == 0; }),
              3);
}

TEST(Canvas, LaysHalfTransparentPicturesOverAnother) {
    Pixmap canvas = emptyPixmap({3, 3});
    std::fill(canvas.pixels.begin(), canvas.pixels.begin() + 3, 0xFF0000FF);
    Picture half = emptyPicture({2, 2});
    for (std::size_t i = 0; i < half.samples.size(); i += 4) {
        half.samples[i] = 200;
        half.samples[i + 3] = 128;
    }
    layOver(canvas, premultiplied(half), {.width = 2, .height = 2, .angle = 90}, 2, 1);
    EXPECT_EQ(canvas.at(0, 0), 0xFF0000FFU);
    EXPECT_EQ(canvas.at(1, 0), 0xFF64007FU);
    EXPECT_EQ(canvas.at(1, 1), 0x80640000U);
    EXPECT_EQ(canvas.at(0, 2), 0U);
    const Picture back = straightened(canvas);
    EXPECT_EQ(back.samples[19], 128);
    EXPECT_NEAR(back.samples[16], 200, 1);
    // Between two pixels it covers half of each.
    Pixmap dot = emptyPixmap({3, 1});
    layOver(dot, {1, 1, {0xFFFFFFFF}}, {.width = 1, .height = 1}, 1, 0.5);
    EXPECT_NEAR(static_cast<int>(dot.at(0, 0) >> 24U), 127, 2);
    EXPECT_NEAR(static_cast<int>(dot.at(1, 0) >> 24U), 127, 2);
    EXPECT_EQ(brokenText("Panzer V Panther", 60), (std::vector<std::string>{"Panzer V", "Panther"}));
    EXPECT_GT(brokenText("Unbreakablewordthatislong", 60).size(), 1U);
}

} // namespace
} // namespace varrocade::tests
