// Thumbnails of 2,000 vehicles with five pictures each, against what decoding their pictures and encoding the
// thumbnails and sheets takes by itself, and on two threads against one.

#include "benchmarks.h"

#include "pictures/png_codec.h"
#include "platform/file_operations.h"
#include "platform/safe_save.h"
#include "tools/pictures/canvas.h"
#include "tools/pictures/thumbnails.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace varrocade::benchmarks {

namespace {

constexpr std::size_t PictureCount = 40; ///< of each kind; vehicles share them, as the disk's cache does

/// A picture as artists draw them: an outline, plates of one colour, grain.
std::string drawnPicture(int width, int height, unsigned seed) {
    std::mt19937 random(seed);
    Picture picture = emptyPicture({width, height});
    std::uniform_int_distribution<int> grain(-6, 6);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double fromMiddle = std::hypot((2.0 * x - width) / width, (2.0 * y - height) / height);
            if (fromMiddle > 1.2) {
                continue;
            }
            const int plate = static_cast<int>(seed) % 40 + 20 * ((x / 40 + y / 60) % 3);
            const std::array<int, 3> colour = {90 + plate, 95 + plate, 60 + plate};
            std::uint8_t* pixel = picture.samples.data() + static_cast<std::ptrdiff_t>(4) * (y * width + x);
            for (std::size_t i = 0; i < colour.size(); ++i) {
                pixel[i] = static_cast<std::uint8_t>(colour.at(i) + grain(random));
            }
            pixel[3] = 255;
        }
    }
    return writePng(picture);
}

std::string vehicleText(std::size_t number) {
    const std::string picture = std::to_string(number % PictureCount) + ".png";
    std::string text = "<squad><description><nationality>NATIONALITY_" +
                       std::string(number % 2 == 0 ? "GERMAN" : "RUSSIAN") +
                       "</nationality></description><vehicle><hull><length>600</length><image_view>" +
                       picture + "</image_view></hull>";
    for (int i = 0; i < 4; ++i) {
        text += "<turret><offsetY>" + std::to_string(100 - 60 * i) + "</offsetY><offset_angle>" +
                std::to_string(30 * i) + "</offset_angle><rotate_left>90</rotate_left><image_view>" +
                picture + "</image_view></turret>";
    }
    return text + "</vehicle></squad>";
}

/// A game folder, gone with it.
class GameOnDisk {
public:
    GameOnDisk() {
        std::random_device random;
        folder_ =
            std::filesystem::temp_directory_path() / ("varrocade-thumbnails-" + std::to_string(random()));
        const std::filesystem::path pictures = folder_ / "Images" / "Units" / "Vehicles";
        for (std::size_t i = 0; i < PictureCount; ++i) {
            const auto seed = static_cast<unsigned>(i);
            write(pictures / "Hulls" / (std::to_string(i) + ".png"), drawnPicture(300, 600, seed));
            write(pictures / "Turrets" / (std::to_string(i) + ".png"), drawnPicture(180, 360, seed + 1000));
        }
        for (std::size_t i = 0; i < ThumbnailCount; ++i) {
            write(folder_ / "Data" / "Vehicles" / ("Vehicle " + std::to_string(i) + ".txt"), vehicleText(i));
        }
    }
    GameOnDisk(const GameOnDisk&) = delete;
    GameOnDisk& operator=(const GameOnDisk&) = delete;
    ~GameOnDisk() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    [[nodiscard]] std::string base() const { return folder_.string() + "\\"; }

private:
    static void write(const std::filesystem::path& path, const std::string& content) {
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
    }
    std::filesystem::path folder_;
};

const GameOnDisk& game() {
    static const GameOnDisk onDisk;
    return onDisk;
}

std::string output() {
    return game().base() + "Thumbnails\\";
}

void makeThumbnails(unsigned threads) {
    ThumbnailPlan plan;
    plan.start({game().base()}, {});
    runJob(plan);
    if (!writeThumbnails(plan, output(), threads).empty()) {
        std::abort();
    }
}

/// Reads and decodes the pictures of each vehicle; encodes and writes again what was made of them.
void codeOnly() {
    ThumbnailPlan plan;
    plan.start({game().base()}, {});
    runJob(plan);
    std::string content;
    const auto readBack = [&](const std::string& name) {
        readWholeFile(output() + name, content);
        return readPng(content).picture;
    };
    static const std::vector<Picture> made = [&] {
        std::vector<Picture> pictures;
        for (const PlannedThumbnail& thumbnail : plan.thumbnails()) {
            pictures.push_back(readBack(thumbnailFile(thumbnail)));
        }
        for (const PlannedSheet& sheet : plan.sheets()) {
            pictures.push_back(readBack(sheetFile(sheet)));
        }
        return pictures;
    }();
    for (std::size_t i = 0; i < made.size(); ++i) {
        if (i < plan.thumbnails().size()) {
            for (const PictureItem& item : plan.thumbnails()[i].pictures) {
                readWholeFile(item.path, content);
                if (readPng(content).picture.samples.empty()) {
                    std::abort();
                }
            }
        }
        if (saveFile(systemFiles(), output() + "again.png", writePng(made[i]))) {
            std::abort();
        }
    }
}

} // namespace

ContestResult thumbnailContest(std::size_t rounds) {
    return contest(
        rounds, [] { makeThumbnails(1); }, codeOnly);
}

ContestResult thumbnailThreadContest(std::size_t rounds) {
    return contest(
        rounds, [] { makeThumbnails(1); }, [] { makeThumbnails(2); }, WallClock());
}

} // namespace varrocade::benchmarks
