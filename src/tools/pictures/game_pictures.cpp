#include "tools/pictures/game_pictures.h"

#include "data/unit/image_names.h"

namespace varrocade {

const AssetFile* GamePictures::fileOf(const std::string& path) {
    const std::size_t folderEnd = path.find_last_of('\\') + 1;
    const std::string_view name = imageNameOf(std::string_view(path).substr(folderEnd));
    return files_.find(std::string_view(path).substr(0, folderEnd), name, ImageEnding);
}

std::optional<PictureSize> GamePictures::sizeOf(const std::string& path) {
    const AssetFile* file = fileOf(path);
    if (file == nullptr) {
        return std::nullopt;
    }
    const auto [place, isNew] = sizes_.try_emplace(file);
    if (isNew) {
        place->second = readPngSize(file->path());
    }
    return place->second;
}

DrawOptions GamePictures::drawOptions() {
    return {.bases = {std::string()}, .showMarks = false};
}

} // namespace varrocade
