#include "tools/references.h"

#include "data/category.h"
#include "data/each_field.h"
#include "data/format/texts.h"
#include "data/unit/image_names.h"
#include "mod/each_mod_field.h"
#include "weapons/weapon_fields.h"

#include <array>
#include <concepts>
#include <string>

namespace varrocade {

namespace {

constexpr auto SoundFolders = std::to_array<ImageSource>({{SoundFolder}});
constexpr auto StaticFlagFolders = std::to_array<ImageSource>({{image_folder::StaticFlags}});
constexpr auto AnimatedFlagFolders = std::to_array<ImageSource>({{image_folder::AnimatedFlags}});
/// What is not among the wrecks is looked for among the generic pictures, as the other pictures of vehicles.
constexpr auto DestroyedFolders =
    std::to_array<ImageSource>({{image_folder::Destroyed}, {image_folder::Units}});

std::span<const ImageSource> weaponFolders() {
    static const std::string folder = categoryFolder({}, Category::Weapons);
    static const std::array<ImageSource, 1> folders = {{{folder}}};
    return folders;
}

std::span<const ImageSource> foldersOf(const FieldPlace& place) {
    if (&place.field == &field::ViewImage) {
        return place.holder == Holder::Hull ? std::span<const ImageSource>(image_sources::Hull)
                                            : std::span<const ImageSource>(image_sources::Turret);
    }
    return &place.field == &field::DestroyedImage ? std::span<const ImageSource>(DestroyedFolders)
                                                  : place.field.images;
}

/// A uniform's field and what a nation has for it.
struct UniformRow {
    FieldId field;
    std::string_view NationalUniform::*national;
    bool isOfCrewsOnly; ///< squads without a vehicle have no such default
    bool isReplaced;    ///< by a named uniform
};

constexpr auto UniformRows = std::to_array<UniformRow>({
    {&field::UniformProfile, &NationalUniform::profile, true, true},
    {&field::UniformGame, &NationalUniform::game, false, true},
    {&field::UniformRanks, &NationalUniform::ranks, true, false},
    {&field::UniformName, &NationalUniform::game, false, false},
});

const UniformRow* uniformRow(const FieldInfo& field) {
    for (const UniformRow& row : UniformRows) {
        if (row.field == &field) {
            return &row;
        }
    }
    return nullptr;
}

/// Tells of one value after the other what it refers to.
class ReferenceWalk {
public:
    explicit ReferenceWalk(const ReferenceVisit& visit, const SquadRecord* unit = nullptr)
        : visit_(visit), unit_(unit) {}

    template <typename Value>
    void operator()(const FieldPlace& place, const Value& value) {
        if constexpr (std::convertible_to<const Value&, std::string_view>) {
            if (place.isStored()) {
                text(place, std::string_view(value));
            }
        }
    }

private:
    void text(const FieldPlace& place, std::string_view text) {
        switch (place.field.kind) {
        case FieldKind::Weapon:
            tell(ReferenceKind::Weapon, place, text, text, weaponFolders(), DataFileEnding);
            break;
        case FieldKind::Sound:
            tell(ReferenceKind::Sound, place, text, text, SoundFolders, SoundEnding);
            break;
        case FieldKind::Image:
        case FieldKind::Uniform:
            if (const UniformRow* row = uniformRow(place.field); row != nullptr && unit_ != nullptr) {
                uniform(place, *row, text);
            } else {
                tell(ReferenceKind::Picture, place, text, imageNameOf(text), foldersOf(place), ImageEnding);
            }
            break;
        case FieldKind::Nationality:
            nationality(place, text);
            break;
        default:
            break;
        }
    }

    /// What a record leaves open the game takes from its table of nations.
    void uniform(const FieldPlace& place, const UniformRow& row, std::string_view text) {
        const bool isOfName = row.field == &field::UniformName;
        if (isOfName ? !unit_->namedUniform : row.isReplaced && unit_->namedUniform) {
            return;
        }
        std::string_view name = imageNameOf(text);
        if (name.empty() || isDefaultImage(name)) {
            const bool hasDefault = unit_->vehicle || !row.isOfCrewsOnly;
            const NationalUniform* national = hasDefault ? findNationalUniform(unit_->nationality) : nullptr;
            name = national != nullptr ? national->*row.national : std::string_view();
        }
        tell(ReferenceKind::Uniform, place, text, name, place.field.images, ImageEnding);
    }

    void nationality(const FieldPlace& place, std::string_view text) {
        tell(ReferenceKind::Nationality, place, text, text, {}, {});
        if (text.starts_with(NationalityPrefix)) {
            const std::string flag = loweredText(text.substr(NationalityPrefix.size()));
            tell(ReferenceKind::Flag, place, text, flag, StaticFlagFolders, ImageEnding);
            tell(ReferenceKind::Flag, place, text, flag, AnimatedFlagFolders, ImageEnding);
        }
    }

    void tell(ReferenceKind kind, const FieldPlace& place, std::string_view written, std::string_view name,
              std::span<const ImageSource> folders, std::string_view ending) {
        if (!name.empty()) {
            visit_({kind, &place.field, place.path, written, name, folders, ending});
        }
    }

    const ReferenceVisit& visit_;
    const SquadRecord* unit_;
};

} // namespace

void forEachReference(const SquadRecord& unit, const ReferenceVisit& visit) {
    forEachField(unit, ReferenceWalk(visit, &unit));
}

void forEachReference(const WeaponRecord& weapon, const ReferenceVisit& visit) {
    forEachField(weapon, ReferenceWalk(visit));
}

void forEachReference(const ModSettings& settings, const ReferenceVisit& visit) {
    forEachField(settings, ReferenceWalk(visit));
}

void forEachGameReference(const ReferenceVisit& visit) {
    SquadRecord unit;
    unit.vehicle.emplace();
    for (const std::string_view nationality : nationalityNames()) {
        unit.nationality = nationality;
        forEachReference(unit, visit);
    }
}

std::span<const std::string_view> pictureFolders() {
    static constexpr auto folders = std::to_array<std::string_view>(
        {image_folder::Hulls, image_folder::Turrets, image_folder::Destroyed, image_folder::Profiles,
         image_folder::Units, image_folder::Uniforms, image_folder::Tracers, image_folder::StaticFlags,
         image_folder::AnimatedFlags});
    return folders;
}

} // namespace varrocade
