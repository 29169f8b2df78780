#include "editors/vehicle/component_list.h"

#include "resources/resource.h"

#include <array>

namespace varrocade {

/// In the order of the list.
template <>
struct FormWords<ComponentKind> {
    static constexpr auto Table =
        std::to_array<FormWord<ComponentKind>>({{ComponentKind::Superstructure, "Superstructure"},
                                                {ComponentKind::FixedWeapon, "Fixed Weapon"},
                                                {ComponentKind::Turret, "Turret"}});
    static constexpr std::span<const FormWord<ComponentKind>> words() { return Table; }
};

namespace {

constexpr auto KindField = field_row::choice(&NewComponent::kind, "", "Type", nullptr);
constexpr auto NewComponentRows = std::to_array<FormRow<NewComponent>>({{IDC_COMPONENT_KIND, KindField}});
constexpr FormShape<NewComponent> NewComponentShape = {.rows = NewComponentRows};

} // namespace

const FormShape<NewComponent>& newComponentShape() {
    return NewComponentShape;
}

std::string newComponentName(const NewComponent& component) {
    return Codec<ComponentKind>::textOf(component.kind, {});
}

void addComponent(VehicleRecord& vehicle, ComponentKind kind) {
    ComponentRecord& component = vehicle.components.emplace_back();
    component.kind = kind;
    component.armour.bottom = 0;
    component.armour.mantlet = 0;
}

bool canMoveUp(const VehicleRecord& vehicle, std::size_t index) {
    return index > 0 && index < vehicle.components.size();
}

bool canMoveDown(const VehicleRecord& vehicle, std::size_t index) {
    return index + 1 < vehicle.components.size();
}

} // namespace varrocade
