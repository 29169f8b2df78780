#pragma once
// Which pictures have more pixels than the game needs. It shows a centimetre as a pixel, and a vehicle's
// pictures at one scale, the one at which the hull's picture is as long as the hull of the data file. So the
// pictures of a vehicle can be scaled together only, and with them those of each vehicle that shares one.

#include "tools/pictures/game_pictures.h"

#include <cstddef>
#include <span>
#include <unordered_map>
#include <vector>

namespace varrocade {

/// Pictures that must be scaled by one factor.
struct PictureSet {
    std::vector<const AssetFile*> files;
    double factor = 1; ///< below 1 where they are larger than the game needs and may be scaled
};

/// Collects what all units make of their pictures. The greatest need counts.
class PictureSets {
public:
    explicit PictureSets(GamePictures& pictures) : pictures_(pictures) {}

    void add(const SquadRecord& unit);

    /// The sets that can be scaled. Those are left as they are in which a picture is used by something whose
    /// size no file tells, or belongs to the game while a mod is worked on, or is less than a fiftieth too
    /// large, or would shrink so far that the data file must be wrong.
    [[nodiscard]] std::vector<PictureSet> scalable();

private:
    struct Member {
        const AssetFile* file = nullptr;
        std::size_t parent = 0;
        double need = 0;      ///< of the whole set, as share of the pixels; counts at the root
        bool isFixed = false; ///< the same
    };

    std::size_t memberOf(const AssetFile& file);
    std::size_t rootOf(std::size_t member);
    std::size_t unite(std::size_t a, std::size_t b);
    void addVehicle(const VehicleRecord& vehicle);

    GamePictures& pictures_;
    std::vector<Member> members_;
    std::unordered_map<const AssetFile*, std::size_t> byFile_;
};

/// The size of a picture scaled by a factor, in whole pixels.
PictureSize scaledSize(PictureSize size, double factor);

} // namespace varrocade
