#include "data/each_field.h"

#include <array>

namespace varrocade {

namespace {

constexpr std::array<std::string_view, 4> ComponentElements = {element::Hull, element::Superstructure,
                                                               element::Turret, element::FixedWeapon};
constexpr std::array<std::string_view, 4> HeavyWeaponElements = {element::Mortar, element::Hmg,
                                                                 element::Atgun, element::RecoillessRifle};

} // namespace

std::string_view elementOf(ComponentKind kind) {
    return ComponentElements.at(static_cast<std::size_t>(kind));
}

std::string_view elementOf(HeavyWeaponKind kind) {
    return HeavyWeaponElements.at(static_cast<std::size_t>(kind));
}

Holder holderOf(ComponentKind kind) {
    return static_cast<Holder>(static_cast<unsigned>(Holder::Hull) + static_cast<unsigned>(kind));
}

Holder holderOf(HeavyWeaponKind kind) {
    return static_cast<Holder>(static_cast<unsigned>(Holder::Mortar) + static_cast<unsigned>(kind));
}

Holder holderOf(const SquadRecord& unit) {
    return unit.aircraft ? Holder::AircraftFile : unit.vehicle ? Holder::VehicleFile : Holder::SquadFile;
}

each_field::Path::Step::Step(Path& path, std::string_view name, std::size_t number)
    : path_(path), length_(path.text_.size()) {
    std::string& text = path.text_;
    if (!text.empty()) {
        text += '.';
    }
    text += name;
    if (number > 0) {
        text += '[';
        text += std::to_string(number);
        text += ']';
    }
}

} // namespace varrocade
