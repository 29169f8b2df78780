#include "editors/vehicle/drive_form.h"

#include "data/unit/engine_table.h"
#include "data/unit/unit_consistency.h"
#include "resources/resource.h"

#include <algorithm>

namespace varrocade {

namespace {

using Vehicle = VehicleRecord;

constexpr auto DriveFields = std::to_array<FormField<Vehicle>>({
    {IDC_ENGINE, "Engine", &Vehicle::engineName},
    {IDC_HORSEPOWER, "Horsepower", &Vehicle::horsepower, NotNegative},
    {IDC_RELIABILITY, "Reliability", &Vehicle::reliability},
    {IDC_RPM_IDLE, "Idle", &Vehicle::idleRevolutions, NotNegative},
    {IDC_RPM_LIMIT, "Limit", &Vehicle::revolutionLimit, NotNegative},
    {IDC_FORWARD_GEARS, "Forwards", &Vehicle::forwardGears, NotNegative},
    {IDC_REVERSE_GEARS, "Reverse", &Vehicle::reverseGears, NotNegative},
    {IDC_STEERING, "Steering", &Vehicle::steering},
    {IDC_SMOKE_SCREEN, "Can make a smoke screen", &Vehicle::smokeScreen},
});

} // namespace

void fillDriveForm(FormPort& port, const VehicleRecord& vehicle) {
    fillForm<Vehicle>(port, DriveFields, vehicle);
    port.setText(IDC_ENGINE_MOUNT, EngineMountNames[static_cast<std::size_t>(vehicle.engineMount)]);
}

std::optional<FormError> readDriveForm(FormPort& port, VehicleRecord& vehicle) {
    Vehicle copy = vehicle;
    if (auto error = readForm<Vehicle>(port, DriveFields, copy)) {
        return error;
    }
    const bool isTouched =
        copy.revolutionLimit != vehicle.revolutionLimit || copy.idleRevolutions != vehicle.idleRevolutions;
    if (const auto finding = revolutionsFinding(copy); finding && isTouched) {
        return FormError{IDC_RPM_LIMIT, finding->message};
    }
    const auto mount =
        std::find(EngineMountNames.begin(), EngineMountNames.end(), port.text(IDC_ENGINE_MOUNT));
    if (mount != EngineMountNames.end()) {
        copy.engineMount = static_cast<EngineMount>(mount - EngineMountNames.begin());
    }
    vehicle = std::move(copy);
    return std::nullopt;
}

void takeEngine(FormPort& port, std::string_view engineName) {
    const auto table = engineTable();
    const auto row = std::find_if(table.begin(), table.end(),
                                  [&](const EngineRow& engine) { return engine.name == engineName; });
    if (row != table.end()) {
        port.setText(IDC_ENGINE, row->name);
        port.setText(IDC_HORSEPOWER, std::to_string(row->horsepower));
    }
}

} // namespace varrocade
