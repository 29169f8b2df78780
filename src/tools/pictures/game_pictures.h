#pragma once
// The pictures of a game and its mod for drawings that nobody looks at: which file a drawing's picture is.

#include "tools/asset_files.h"
#include "view/drawing/draw_list.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace varrocade {

/// Finds pictures as the game's system does, the mod's before the game's, letter case aside. Each folder is
/// listed and each file's header read once.
class GamePictures : public PictureSizes {
public:
    explicit GamePictures(GameFolders folders) : files_(std::move(folders)) {}

    /// The file of a picture that a drawing names by its path below the base folders; null where there is
    /// none.
    const AssetFile* fileOf(const std::string& path);

    std::optional<PictureSize> sizeOf(const std::string& path) override;
    /// Nobody points at anything here.
    bool isSolidAt(const std::string&, double, double) override { return false; }

    [[nodiscard]] AssetFiles& files() { return files_; }

    /// For drawings whose pictures have paths below the base folders, without marks.
    static DrawOptions drawOptions();

private:
    AssetFiles files_;
    std::unordered_map<const AssetFile*, std::optional<PictureSize>> sizes_;
};

} // namespace varrocade
