#include "editors/vehicle/component_list.h"

namespace varrocade {

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
