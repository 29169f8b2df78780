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

std::string FieldPath::text() const {
    std::array<const Step*, MostSteps> steps{};
    std::size_t count = 0;
    for (const Step* step = last_; step != nullptr; step = step->around) {
        steps.at(count++) = step;
    }
    std::string text;
    while (count > 0) {
        const Step& step = *steps.at(--count);
        text += text.empty() ? "" : ".";
        text += step.name;
        if (step.number > 0) {
            text += '[';
            text += std::to_string(step.number);
            text += ']';
        }
    }
    return text;
}

KeptPath::KeptPath(FieldPath path) {
    for (const FieldPath::Step* step = path.last_; step != nullptr; step = step->around) {
        steps_.at(count_++) = {step->name.data(), step->number};
    }
}

bool FieldPath::operator==(std::string_view text) const {
    const auto take = [&text](char c) {
        const bool is = text.ends_with(c);
        text.remove_suffix(is ? 1 : 0);
        return is;
    };
    for (const Step* step = last_; step != nullptr; step = step->around) {
        if (step->number > 0) {
            bool is = take(']');
            for (std::size_t rest = step->number; is && rest > 0; rest /= 10) {
                is = take(static_cast<char>('0' + rest % 10));
            }
            if (!is || !take('[')) {
                return false;
            }
        }
        if (!text.ends_with(step->name)) {
            return false;
        }
        text.remove_suffix(step->name.size());
        if (step->around != nullptr && !take('.')) {
            return false;
        }
    }
    return text.empty();
}

} // namespace varrocade
