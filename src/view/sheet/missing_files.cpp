#include "view/sheet/missing_files.h"

#include "data/field_files.h"
#include "data/finding_text.h"
#include "data/unit/image_names.h"
#include "weapons/weapon_fields.h"

#include <type_traits>
#include <utility>

namespace varrocade {

Finding missingFileFinding(const FieldPlace& place, std::string_view value) {
    const bool isSound = place.field.kind == FieldKind::Sound;
    return {.key = isSound ? finding_key::MissingSound : finding_key::MissingPicture,
            .field = place.path.text(),
            .message = (isSound ? "the sound " : "the picture ") +
                       quoted(fileNameOfValue(place.field, value)) + " is missing",
            .value = std::string(value)};
}

std::optional<Finding> missingFile(const FieldPlace& place, std::string_view value,
                                   std::span<const std::string> bases) {
    const FieldKind kind = place.field.kind;
    const bool isPicture = kind == FieldKind::Image || kind == FieldKind::Uniform;
    const bool namesFile = kind == FieldKind::Sound || (isPicture && !isDefaultImage(value));
    if (value.empty() || !namesFile || bases.empty() || !fileOfValue(place.field, value, bases).empty()) {
        return std::nullopt;
    }
    return missingFileFinding(place, value);
}

std::vector<Finding> missingFiles(const WeaponRecord& weapon, std::span<const std::string> bases) {
    std::vector<Finding> found;
    forEachField(weapon, [&](const FieldPlace& place, const auto& value) {
        if constexpr (std::is_convertible_v<decltype(value), std::string_view>) {
            if (auto missing = missingFile(place, value, bases)) {
                found.push_back(std::move(*missing));
            }
        }
    });
    return found;
}

} // namespace varrocade
