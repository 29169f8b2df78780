#include "editors/vehicle/armour_form.h"

#include "data/unit/plate_rows.h"
#include "resources/resource.h"
#include "view/drawing/armour_sketch.h"

#include <cmath>

namespace varrocade {

namespace {

using Armour = ArmourRecord;

constexpr NumberRange Thickness = {.least = 0, .greatest = 100000};
constexpr NumberRange Angle = {.least = 0, .greatest = 90};
constexpr int NumbersPerPlate = 3;

constexpr auto OtherFields = std::to_array<FormField<Armour>>({
    {IDC_FRONT_SPACED, "Front spaced", &Armour::frontSpaced, {.zeroForOtherTexts = true}},
    {IDC_SIDE_SPACED, "Side spaced", &Armour::sideSpaced, {.zeroForOtherTexts = true}},
    {IDC_REAR_SPACED, "Rear spaced", &Armour::rearSpaced, {.zeroForOtherTexts = true}},
    {IDC_TOP, "Top", &Armour::top, Thickness},
});

/// A thickness that may be left open.
struct OptionalRow {
    int control;
    int givenControl;
    std::string_view name;
    std::int32_t Armour::*member;
    bool turretOnly;
};

constexpr auto OptionalRows = std::to_array<OptionalRow>({
    {IDC_BOTTOM, IDC_BOTTOM_GIVEN, "Bottom", &Armour::bottom, false},
    {IDC_MANTLET, IDC_MANTLET_GIVEN, "Mantlet", &Armour::mantlet, true},
});

constexpr auto PlateFields = std::to_array<FormField<ArmourPlate>>({
    {0, "thickness", &ArmourPlate::thickness, Thickness},
    {1, "angle", &ArmourPlate::angle, Angle},
});

int firstControl(std::size_t plate) {
    return IDC_PLATES + NumbersPerPlate * static_cast<int>(plate);
}

std::optional<FormError> readPlate(FormPort& port, std::size_t index, ArmourPlate& plate) {
    for (const FormField<ArmourPlate>& row : PlateFields) {
        FormField<ArmourPlate> field = row;
        const std::string label = std::string(ArmourPlateRows[index].label) + " " + std::string(row.label);
        field.control += firstControl(index);
        field.label = label;
        if (auto error = readForm<ArmourPlate>(port, std::span(&field, 1), plate)) {
            return error;
        }
    }
    return std::nullopt;
}

} // namespace

std::string effectiveText(const ArmourPlate& plate) {
    const auto thickness = effectiveThickness(plate);
    return thickness ? std::to_string(std::lround(*thickness)) + " mm" : "-";
}

void fillArmourForm(FormPort& port, const ArmourRecord& armour, bool isTurret) {
    for (std::size_t i = 0; i < ArmourPlateRows.size(); ++i) {
        const ArmourPlate& plate = armour.*ArmourPlateRows[i].member;
        port.setText(firstControl(i), std::to_string(plate.thickness));
        port.setText(firstControl(i) + 1, std::to_string(plate.angle));
        port.setText(firstControl(i) + 2, effectiveText(plate));
    }
    fillForm<Armour>(port, OtherFields, armour);
    for (const OptionalRow& row : OptionalRows) {
        const std::int32_t value = armour.*row.member;
        port.setChecked(row.givenControl, value >= 0);
        port.setText(row.control, value >= 0 ? std::to_string(value) : "");
    }
    enableGiven(port, isTurret);
}

void enableGiven(FormPort& port, bool isTurret) {
    for (const OptionalRow& row : OptionalRows) {
        const bool isPossible = isTurret || !row.turretOnly;
        port.setEnabled(row.givenControl, isPossible);
        port.setEnabled(row.control, isPossible && port.isChecked(row.givenControl));
    }
}

std::optional<FormError> readArmourForm(FormPort& port, ArmourRecord& armour, bool isTurret) {
    Armour copy = armour;
    for (std::size_t i = 0; i < ArmourPlateRows.size(); ++i) {
        if (auto error = readPlate(port, i, copy.*ArmourPlateRows[i].member)) {
            return error;
        }
    }
    if (auto error = readForm<Armour>(port, OtherFields, copy)) {
        return error;
    }
    for (const OptionalRow& row : OptionalRows) {
        if (row.turretOnly && !isTurret) {
            continue;
        }
        if (!port.isChecked(row.givenControl)) {
            copy.*row.member = ArmourNotGiven;
            continue;
        }
        const FormField<Armour> field{row.control, row.name, row.member, Thickness};
        if (auto error = readForm<Armour>(port, std::span(&field, 1), copy)) {
            return error;
        }
    }
    armour = copy;
    return std::nullopt;
}

void followPlates(FormPort& port, ArmourRecord& armour) {
    for (std::size_t i = 0; i < ArmourPlateRows.size(); ++i) {
        ArmourPlate plate = armour.*ArmourPlateRows[i].member;
        const bool isTaken = !readPlate(port, i, plate);
        if (isTaken) {
            armour.*ArmourPlateRows[i].member = plate;
        }
        port.setText(firstControl(i) + 2, isTaken ? effectiveText(plate) : "?");
    }
}

void mirrorLeftToRight(ArmourRecord& armour) {
    armour.upperRight = armour.upperLeft;
    armour.lowerRight = armour.lowerLeft;
}

void makeSidesAlike(ArmourRecord& armour) {
    armour.upperRight = armour.lowerLeft = armour.lowerRight = armour.upperLeft;
}

} // namespace varrocade
