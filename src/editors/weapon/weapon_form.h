#pragma once
// The fields of the "Weapon Data" dialog, without any window.

#include "editors/form/list_model.h"
#include "weapons/weapon_record.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The weapon without its ammunition.
const FormShape<WeaponRecord>& weaponDataShape();

/// Its ammunition. The form goes by the type that the weapon's form shows.
const ListShape<AmmoTypeRecord>& ammoTypeShape();

/// The ammunition of a weapon as the list of a dialog; what is added to it suits the weapon's type.
class AmmoTypeModel final : public VectorListModel<AmmoTypeRecord> {
public:
    explicit AmmoTypeModel(WeaponRecord& weapon)
        : VectorListModel(weapon.ammoTypes, ammoTypeShape()), weapon_(weapon) {}
    void add() override;

private:
    WeaponRecord& weapon_;
};

/// What to tell of a name that does not begin as those of its type do, or empty.
std::string namePrefixNote(std::string_view name, WeaponType type);

/// The flavours that a list offers: those that fit the type, and behind them, where `all` is wanted, the
/// others.
std::vector<std::string> offeredFlavours(WeaponType type, bool all);

/// Names what the file of a weapon of the shown type does not carry, or empty.
std::string weaponNotCarried(FormPort& port, const WeaponRecord& weapon);
/// The same of ammunition of the shown flavour.
std::string ammoNotCarried(FormPort& port, const AmmoTypeRecord& ammo);

// ---- lists that are written as texts, with commas between the entries: "WW2, Cold War"

/// The entries of such a text.
std::vector<std::string> listedEntries(std::string_view text);

/// The text with an entry added at its end, or taken out. Everything else stays as it is written.
std::string withEntry(std::string_view text, std::string_view entry, bool isIn);

/// What a check list offers for a text: what is known, and then what else the text has.
std::vector<std::string> checkListEntries(std::span<const std::string> known, std::string_view text);

/// The countries that weapons are listed by: the nationalities of units, in words.
std::vector<std::string> knownCountries();

} // namespace varrocade
