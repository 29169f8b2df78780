#pragma once
// The words of the weapon enumerations in forms: what people call them, and in brackets what files do.

#include "data/codec.h"
#include "weapons/weapon_record.h"

#include <span>

namespace varrocade {

template <>
struct FormWords<WeaponType> {
    static std::span<const FormWord<WeaponType>> words();
};
template <>
struct FormWords<AmmoFlavour> {
    static std::span<const FormWord<AmmoFlavour>> words();
};
template <>
struct FormWords<HeatEra> {
    static std::span<const FormWord<HeatEra>> words();
};
template <>
struct FormWords<GuidanceMode> {
    static std::span<const FormWord<GuidanceMode>> words();
};
template <>
struct FormWords<ReloadMode> {
    static std::span<const FormWord<ReloadMode>> words();
};

} // namespace varrocade
