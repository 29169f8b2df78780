#include "editors/unit/uniform_form.h"

#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "editors/unit/description_rows.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace varrocade {

namespace {

constexpr FormShape<SquadRecord> UniformShape = {.rows = description_rows::Uniforms};

constexpr double PictureSide = 100; ///< of the square that each picture is fitted into
constexpr double PictureGap = 16;
constexpr double CaptionHeight = 44;

struct UniformPicture {
    std::string caption;
    std::string name; ///< without ".png"
    std::span<const ImageSource> sources;
};

/// The picture that a name stands for: the nation's own one where none is named.
std::string meantPicture(std::string_view name, std::string_view national) {
    return std::string(name.empty() || isDefaultImage(name) ? national : imageNameOf(name));
}

std::vector<UniformPicture> picturesOf(const SquadRecord& unit) {
    const NationalUniform* found = findNationalUniform(unit.nationality);
    const NationalUniform national = found != nullptr ? *found : NationalUniform{};
    const UniformPicture ranks{"Ranks", meantPicture(unit.uniformRanks, national.ranks),
                               image_sources::UniformRanks};
    if (unit.namedUniform) {
        return {{"Uniform", meantPicture(unit.uniformName, national.profile), image_sources::Uniform}, ranks};
    }
    return {{"Profile", meantPicture(unit.uniformProfile, national.profile), image_sources::UniformProfile},
            {"Game", meantPicture(unit.uniformGame, national.game), image_sources::UniformGame},
            ranks};
}

std::optional<PictureItem> foundPicture(const UniformPicture& picture, std::span<const std::string> bases,
                                        PictureSizes& sizes) {
    for (const ImageSource& source : picture.sources) {
        for (const std::string& base : bases) {
            const std::string path =
                base + std::string(source.folder) + picture.name + std::string(ImageEnding);
            if (const auto size = picture.name.empty() ? std::nullopt : sizes.sizeOf(path)) {
                const double scale = PictureSide / std::max({size->width, size->height, 1});
                return PictureItem{path, {}, size->width * scale, size->height * scale};
            }
        }
    }
    return std::nullopt;
}

} // namespace

const FormShape<SquadRecord>& uniformShape() {
    return UniformShape;
}

DrawList uniformPictures(const SquadRecord& unit, std::span<const std::string> bases, PictureSizes& sizes) {
    DrawList list;
    Point centre{PictureSide / 2, PictureSide / 2};
    for (const UniformPicture& picture : picturesOf(unit)) {
        if (auto found = foundPicture(picture, bases, sizes)) {
            found->centre = centre;
            list.items.emplace_back(std::move(*found));
        } else {
            const std::string label =
                picture.name.empty() ? "None" : "Missing: " + picture.name + std::string(ImageEnding);
            list.items.emplace_back(PlaceholderItem{label, centre, PictureSide, PictureSide});
        }
        list.items.emplace_back(LabelItem{picture.caption, {centre.x, -4}, PictureSide});
        centre.x += PictureSide + PictureGap;
    }
    list.least = {0, -CaptionHeight};
    list.greatest = {centre.x - PictureSide / 2 - PictureGap, PictureSide};
    return list;
}

} // namespace varrocade
