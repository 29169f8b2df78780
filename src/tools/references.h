#pragma once
// What records name by its name: weapons, pictures, sounds, flags, nationalities. Found by looping over the
// fields, so that a new field that refers to something is looked at everywhere.

#include "data/each_field.h"
#include "data/field.h"
#include "data/unit/unit_record.h"
#include "mod/mod_record.h"
#include "weapons/weapon_record.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

namespace varrocade {

enum class ReferenceKind : std::uint8_t {
    Weapon,
    Picture,
    Uniform, ///< a picture of a man, of his portrait or of ranks
    Sound,
    Flag,        ///< two pictures that follow from a nationality: the static and the animated one
    Nationality, ///< no file answers it
    Unit         ///< in the equipment lists of a mod; told by no visit here
};

/// A name that stands in a record. All texts are good until the visitor returns.
struct Reference {
    ReferenceKind kind = ReferenceKind::Weapon;
    FieldId field = nullptr;       ///< that the name stands in
    FieldPath path = {};           ///< of that field in the record, such as "vehicle.turret[2].image_view"
    std::string_view written = {}; ///< as the record has it; empty where the record leaves it to the game
    /// What the game looks for, without folder and ending: other than what is written for a default uniform,
    /// which is the nation's, and for a flag.
    std::string_view name = {};
    std::span<const ImageSource> folders = {}; ///< where it is looked for, in this order
    std::string_view ending = {};              ///< of the file, such as ".png"
};

using ReferenceVisit = std::function<void(const Reference&)>;

/// Visits what a record names, in the order of its fields. What its file does not store is left out, and so
/// is what is empty, unless the game puts a picture of its own there.
void forEachReference(const SquadRecord& unit, const ReferenceVisit& visit);
void forEachReference(const WeaponRecord& weapon, const ReferenceVisit& visit);
void forEachReference(const ModSettings& settings, const ReferenceVisit& visit);

/// Visits what the game takes by itself, whatever the files name: each nation's flags and the uniforms of its
/// crews.
void forEachGameReference(const ReferenceVisit& visit);

/// The folders that pictures of units and weapons are looked for in, each once.
std::span<const std::string_view> pictureFolders();

} // namespace varrocade
