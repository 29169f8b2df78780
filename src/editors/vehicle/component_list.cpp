#include "editors/vehicle/component_list.h"

#include "editors/unit/unit_lists.h"
#include "resources/resource.h"

#include <array>
#include <utility>

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

bool canCopy(const VehicleRecord& vehicle, std::size_t index) {
    return index < vehicle.components.size() && vehicle.components[index].kind != ComponentKind::Hull;
}

void copyComponent(VehicleRecord& vehicle, std::size_t index) {
    ComponentRecord copy = vehicle.components[index];
    vehicle.components.push_back(std::move(copy));
}

void mirrorComponent(VehicleRecord& vehicle, std::size_t index) {
    ComponentRecord twin = vehicle.components[index];
    twin.offsetX = mirrored(twin.offsetX);
    twin.offsetAngle = mirrored(twin.offsetAngle);
    std::swap(twin.rotateLeft, twin.rotateRight);
    std::swap(twin.armour.upperLeft, twin.armour.upperRight);
    std::swap(twin.armour.lowerLeft, twin.armour.lowerRight);
    for (WeaponMountRecord& weapon : twin.weapons) {
        weapon.offsetX = mirrored(weapon.offsetX);
        weapon.offsetAngle = mirrored(weapon.offsetAngle);
    }
    for (SmokeDischargerRecord& discharger : twin.smokeDischargers) {
        smokeDischargerShape().mirror(discharger);
    }
    vehicle.components.push_back(std::move(twin));
}

bool canMoveUp(const VehicleRecord& vehicle, std::size_t index) {
    return index > 0 && index < vehicle.components.size();
}

bool canMoveDown(const VehicleRecord& vehicle, std::size_t index) {
    return index + 1 < vehicle.components.size();
}

} // namespace varrocade
