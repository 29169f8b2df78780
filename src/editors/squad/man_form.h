#pragma once
// The fields of a man of a squad, and a change to several men at once, without any window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// The form of one man of a squad on foot.
const FormShape<CrewManRecord>& manShape();

/// What becomes of a flag of several men.
enum class FlagChange : std::uint8_t { Keep, Set, Clear };

/// What becomes of the weapons of several men.
enum class ArmsChange : std::uint8_t { Keep, Give, Exchange, Take };

/// What becomes of their ammunition.
enum class AmmoChange : std::uint8_t { Keep, Give, Take };

template <>
struct FormWords<FlagChange> {
    static std::span<const FormWord<FlagChange>> words();
};
template <>
struct FormWords<ArmsChange> {
    static std::span<const FormWord<ArmsChange>> words();
};
template <>
struct FormWords<AmmoChange> {
    static std::span<const FormWord<AmmoChange>> words();
};

/// A change to several men at once.
struct MenChange {
    FlagChange bodyArmour = FlagChange::Keep;
    FlagChange nightVision = FlagChange::Keep;
    ArmsChange arms = ArmsChange::Keep;
    Text weapon;     ///< that they get, or no longer carry
    Text formerArms; ///< that it takes the place of
    AmmoChange ammunition = AmmoChange::Keep;
    AmmoLoadRecord load; ///< that they get, or whose weapon's ammunition they no longer carry
    bool operator==(const MenChange&) const = default;
};

/// Its form. A change that names no weapon is refused.
const FormShape<MenChange>& menChangeShape();

/// Changes a man. A weapon that takes another's place takes its ammunition over; with a weapon that goes, its
/// ammunition goes. Given ammunition replaces what he has of that weapon and flavour.
void changeMan(CrewManRecord& man, const MenChange& change);

/// The types of the weapons that any of these men carry, each once.
std::vector<std::string> weaponTypesOf(std::span<const CrewManRecord> men);

} // namespace varrocade
