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

std::optional<PictureSize> sizeOf(const CheckedUnit& checked, std::span<const ImageSource> sources,
                                  std::string_view name) {
    const FileIndex::Entry* entry = name.empty() ? nullptr : findPicture(checked.knowledge, sources, name);
    return entry == nullptr ? std::nullopt : checked.knowledge.sizeOf(entry->path);
}

void checkComponent(const CheckedUnit& checked, const ComponentRecord& part, const std::string& path) {
    const bool isHull = part.kind == ComponentKind::Hull;
    const auto whole = sizeOf(checked, isHull ? image_sources::Hull : image_sources::Turret, part.viewImage);
    if (!whole) {
        return;
    }
    if (isHull && part.width > 0 && part.length > 0) {
        const bool isWide = std::abs(whole->width - part.width) > Slack;
        if (isWide || std::abs(whole->height - part.length) > Slack) {
            checked.out.atValue(path + std::string(isWide ? field::Width.element : field::Length.element),
                                {.key = ck::PictureSizeKey,
                                 .message = "the hull is " + std::to_string(part.width) + " x " +
                                            std::to_string(part.length) + " cm, its picture " +
                                            sizeText(*whole) + " pixels",
                                 .value = std::to_string(isWide ? part.width : part.length),
                                 .expected = std::to_string(isWide ? whole->width : whole->height)});
        }
    }
    const auto wreck = sizeOf(checked, image_sources::Destroyed, part.destroyedImage);
    if (wreck && *wreck != *whole) {
        checked.out.atValue(path + std::string(field::DestroyedImage.element),
                            {.key = ck::WreckSize,
                             .message = "the wreck's picture has " + sizeText(*wreck) +
                                        " pixels, that of the " + std::string(elementOf(part.kind)) + " " +
                                        sizeText(*whole),
                             .value = part.destroyedImage.str(),
                             .expected = sizeText(*whole)});
    }
}

} // namespace

void checkPictures(const CheckedUnit& checked) {
    if (checked.unit.vehicle) {
        forEachComponentPath(*checked.unit.vehicle,
                             [&](const ComponentRecord& part, const std::string& path) {
                                 if (part.kind != ComponentKind::Superstructure) {
                                     checkComponent(checked, part, path);
                                 }
                             });
    }
}

} // namespace varrocade
