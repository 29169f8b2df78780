#include "data/finding_text.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/rules/name_lookup.h"
#include "tools/checks/rules/unit_rules.h"

#include <cstdlib>

namespace varrocade {

namespace {

namespace ck = check_key;

/// Pixels that a picture may have more or less than the data: a border, or a row lost to rounding.
constexpr std::int32_t Slack = 3;

std::string sizeText(const PictureSize& size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height);
}

struct FoundPicture {
    const AssetFile* file = nullptr;
    std::optional<PictureSize> size = std::nullopt;
};

FoundPicture find(const CheckedUnit& checked, std::span<const ImageSource> sources, std::string_view name) {
    const AssetFile* file = name.empty() ? nullptr : findPicture(checked.knowledge, sources, name);
    return {file, file == nullptr ? std::nullopt : checked.knowledge.sizeOf(*file)};
}

/// "12 pixels to the left and 30 up"
std::string shiftText(const PictureShift& shift) {
    std::string text;
    if (shift.x != 0) {
        text = std::to_string(std::abs(shift.x)) + " pixels to the " + (shift.x < 0 ? "left" : "right");
    }
    if (shift.y != 0) {
        text += (text.empty() ? "" : " and ") + std::to_string(std::abs(shift.y)) +
                (text.empty() ? " pixels " : " ") + (shift.y < 0 ? "up" : "down");
    }
    return text;
}

/// A wreck of the same size that lies beside its whole jumps all the same.
void checkPivot(const CheckedUnit& checked, const ComponentRecord& part, const RulePath& path,
                const AssetFile& whole, const AssetFile& wreck) {
    const PictureShift shift = checked.knowledge.shiftOf(whole, wreck);
    if (shift == PictureShift{}) {
        return;
    }
    const std::string name = part.destroyedImage.str();
    checked.out.atValue(
        path.to(field::DestroyedImage),
        {.key = ck::WreckPivot,
         .message = "the wreck lies beside the " + std::string(elementOf(part.kind)) + " in its picture",
         .value = name,
         .expected = "the same place in both pictures",
         .hint = "move it by about " + shiftText(shift)});
}

void checkComponent(const CheckedUnit& checked, const ComponentRecord& part, const RulePath& path) {
    const bool isHull = part.kind == ComponentKind::Hull;
    const FoundPicture found =
        find(checked, isHull ? image_sources::Hull : image_sources::Turret, part.viewImage);
    const std::optional<PictureSize>& whole = found.size;
    if (!whole) {
        return;
    }
    if (isHull && part.width > 0 && part.length > 0) {
        const bool isWide = std::abs(whole->width - part.width) > Slack;
        if (isWide || std::abs(whole->height - part.length) > Slack) {
            checked.out.atValue(isWide ? path.to(field::Width) : path.to(field::Length),
                                {.key = ck::PictureSizeKey,
                                 .message = "the hull is " + std::to_string(part.width) + " x " +
                                            std::to_string(part.length) + " cm, its picture " +
                                            sizeText(*whole) + " pixels",
                                 .value = std::to_string(isWide ? part.width : part.length),
                                 .expected = std::to_string(isWide ? whole->width : whole->height)});
        }
    }
    const FoundPicture wrecked = find(checked, image_sources::Destroyed, part.destroyedImage);
    const std::optional<PictureSize>& wreck = wrecked.size;
    if (wreck && *wreck != *whole) {
        checked.out.atValue(path.to(field::DestroyedImage),
                            {.key = ck::WreckSize,
                             .message = "the wreck's picture has " + sizeText(*wreck) +
                                        " pixels, that of the " + std::string(elementOf(part.kind)) + " " +
                                        sizeText(*whole),
                             .value = part.destroyedImage.str(),
                             .expected = sizeText(*whole)});
    } else if (wreck && checked.looksIntoPictures) {
        checkPivot(checked, part, path, *found.file, *wrecked.file);
    }
}

} // namespace

void checkPictures(const CheckedUnit& checked) {
    if (checked.unit.vehicle) {
        forEachComponentPath(*checked.unit.vehicle, [&](const ComponentRecord& part, const RulePath& path) {
            if (part.kind != ComponentKind::Superstructure) {
                checkComponent(checked, part, path);
            }
        });
    }
}

} // namespace varrocade
