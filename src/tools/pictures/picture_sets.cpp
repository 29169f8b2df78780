#include "tools/pictures/picture_sets.h"

#include "data/unit_fields.h"
#include "tools/references.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

constexpr double LargestFactor = 0.98;
/// No picture has that many times the pixels that it needs; a hull's length was mistyped.
constexpr double SmallestFactor = 0.05;

} // namespace

PictureSize scaledSize(PictureSize size, double factor) {
    const auto scaled = [factor](std::int32_t side) {
        return std::max(1, static_cast<std::int32_t>(std::lround(side * factor)));
    };
    return {scaled(size.width), scaled(size.height)};
}

void PictureSets::add(const SquadRecord& unit) {
    if (unit.vehicle) {
        addVehicle(*unit.vehicle);
    }
    forEachReference(unit, [this](const Reference& reference) {
        const bool isDrawn =
            reference.field == &field::ViewImage || reference.field == &field::DestroyedImage;
        if (reference.kind != ReferenceKind::Picture || isDrawn) {
            return;
        }
        if (const AssetFile* file = pictures_.files().find(reference)) {
            members_[rootOf(memberOf(*file))].isFixed = true;
        }
    });
}

void PictureSets::addVehicle(const VehicleRecord& vehicle) {
    std::optional<std::size_t> set;
    for (const bool isDestroyed : {false, true}) {
        DrawOptions options = GamePictures::drawOptions();
        options.showDestroyed = isDestroyed;
        for (const DrawItem& item : drawVehicle(vehicle, options, pictures_).items) {
            const auto* picture = std::get_if<PictureItem>(&item);
            const AssetFile* file = picture != nullptr ? pictures_.fileOf(picture->path) : nullptr;
            const auto size = file != nullptr ? pictures_.sizeOf(picture->path) : std::nullopt;
            if (!size) {
                continue;
            }
            const std::size_t member = rootOf(memberOf(*file));
            members_[member].need = std::max(members_[member].need, picture->width / size->width);
            set = set ? unite(*set, member) : member;
        }
    }
}

std::vector<PictureSet> PictureSets::scalable() {
    const bool isInMod = !pictures_.files().bases().mod.empty();
    for (std::size_t i = 0; i < members_.size(); ++i) {
        if (isInMod && !members_[i].file->isOfMod) {
            members_[rootOf(i)].isFixed = true;
        }
    }
    std::vector<PictureSet> sets;
    std::unordered_map<std::size_t, std::size_t> setOfRoot;
    for (std::size_t i = 0; i < members_.size(); ++i) {
        const Member& root = members_[rootOf(i)];
        if (root.isFixed || root.need < SmallestFactor || root.need > LargestFactor) {
            continue;
        }
        const auto [place, isNew] = setOfRoot.try_emplace(rootOf(i), sets.size());
        if (isNew) {
            sets.push_back({{}, root.need});
        }
        sets[place->second].files.push_back(members_[i].file);
    }
    return sets;
}

std::size_t PictureSets::memberOf(const AssetFile& file) {
    const auto [place, isNew] = byFile_.try_emplace(&file, members_.size());
    if (isNew) {
        members_.push_back({&file, members_.size()});
    }
    return place->second;
}

std::size_t PictureSets::rootOf(std::size_t member) {
    while (members_[member].parent != member) {
        members_[member].parent = members_[members_[member].parent].parent;
        member = members_[member].parent;
    }
    return member;
}

std::size_t PictureSets::unite(std::size_t a, std::size_t b) {
    Member& kept = members_[rootOf(a)];
    Member& joined = members_[rootOf(b)];
    kept.need = std::max(kept.need, joined.need);
    kept.isFixed = kept.isFixed || joined.isFixed;
    joined.parent = kept.parent;
    return kept.parent;
}

} // namespace varrocade
