#include "weapons/weapon_fields.h"

#include "weapons/weapon_names.h"

namespace varrocade {

Holder holderOf(WeaponType type) {
    switch (type) {
    case WeaponType::Grenade:
        return Holder::Grenade;
    case WeaponType::Bomb:
        return Holder::Bomb;
    default:
        return Holder::Gun;
    }
}

/// These three smoke flavours have no explosive in the files. The smoke of guns and of artillery has: the
/// game's files rely on it.
Holder holderOf(AmmoFlavour flavour) {
    switch (flavour) {
    case AmmoFlavour::GrenadeSmoke:
    case AmmoFlavour::RpgSmoke:
    case AmmoFlavour::MortarSmoke:
        return Holder::PlainSmoke;
    default:
        return isHeat(flavour) ? Holder::ShapedCharge : Holder::OtherAmmunition;
    }
}

} // namespace varrocade
