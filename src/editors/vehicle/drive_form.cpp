#include "editors/vehicle/drive_form.h"

#include "data/unit/engine_table.h"
#include "data/unit/unit_consistency.h"
#include "data/unit_fields.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>

namespace varrocade {

/// Where an engine can stand.
template <>
struct FormWords<EngineMount> {
    static constexpr auto Table = std::to_array<FormWord<EngineMount>>(
        {{EngineMount::Rear, "Rear"}, {EngineMount::Middle, "Middle"}, {EngineMount::Front, "Front"}});
    static constexpr std::span<const FormWord<EngineMount>> words() { return Table; }
};

namespace {

using Vehicle = VehicleRecord;

constexpr auto DriveRows = std::to_array<FormRow<Vehicle>>({
    {IDC_ENGINE, field::EngineName},
    {IDC_HORSEPOWER, field::Horsepower},
    {IDC_RELIABILITY, field::Reliability},
    {IDC_ENGINE_MOUNT, field::MountOfEngine},
    {IDC_RPM_IDLE, field::IdleRevolutions},
    {IDC_RPM_LIMIT, field::RevolutionLimit},
    {IDC_FORWARD_GEARS, field::ForwardGears},
    {IDC_REVERSE_GEARS, field::ReverseGears},
    {IDC_STEERING, field::Steering},
    {IDC_SMOKE_SCREEN, field::SmokeScreen},
});

std::optional<FormError> checkRevolutions(const Vehicle& former, Vehicle& read) {
    const bool isTouched =
        read.revolutionLimit != former.revolutionLimit || read.idleRevolutions != former.idleRevolutions;
    if (const auto finding = revolutionsFinding(read); finding && isTouched) {
        return FormError{*finding, IDC_RPM_LIMIT};
    }
    return std::nullopt;
}

constexpr FormShape<Vehicle> DriveShape = {.rows = DriveRows, .check = checkRevolutions};

} // namespace

const FormShape<VehicleRecord>& driveShape() {
    return DriveShape;
}

std::vector<std::string> engineNames() {
    std::vector<std::string> names;
    for (const EngineRow& row : engineTable()) {
        names.emplace_back(row.name);
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
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
