#include "editors/vehicle/armour_form.h"

#include "data/each_field.h"
#include "data/unit_fields.h"
#include "resources/resource.h"
#include "view/drawing/armour_sketch.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

using Component = ComponentRecord;

struct OfArmour {
    static auto& in(auto& component) { return component.armour; }
};

template <const auto& Plate>
struct OfPlate {
    static auto& in(auto& component) { return Plate.of(component.armour); }
};

/// A plate has a thickness, an angle and, for reading only, the effective thickness.
constexpr int ControlsPerPlate = 3;
constexpr std::size_t RowsPerPlate = 2;

constexpr int firstControl(std::size_t plate) {
    return IDC_PLATES + ControlsPerPlate * static_cast<int>(plate);
}

template <const auto& Plate>
constexpr FormRow<Component> thicknessRow(std::size_t plate) {
    return {firstControl(plate), OfPlate<Plate>(), field::PlateThickness, {.of = Plate.label}};
}

template <const auto& Plate>
constexpr FormRow<Component> angleRow(std::size_t plate) {
    return {firstControl(plate) + 1, OfPlate<Plate>(), field::PlateAngle, {.of = Plate.label}};
}

/// The plates' rows come first, in the order of `field::Plates`.
constexpr auto ArmourRows = std::to_array<FormRow<Component>>({
    thicknessRow<field::UpperFront>(0),
    angleRow<field::UpperFront>(0),
    thicknessRow<field::LowerFront>(1),
    angleRow<field::LowerFront>(1),
    thicknessRow<field::UpperLeft>(2),
    angleRow<field::UpperLeft>(2),
    thicknessRow<field::UpperRight>(3),
    angleRow<field::UpperRight>(3),
    thicknessRow<field::LowerLeft>(4),
    angleRow<field::LowerLeft>(4),
    thicknessRow<field::LowerRight>(5),
    angleRow<field::LowerRight>(5),
    thicknessRow<field::UpperRear>(6),
    angleRow<field::UpperRear>(6),
    thicknessRow<field::LowerRear>(7),
    angleRow<field::LowerRear>(7),
    {IDC_FRONT_SPACED, OfArmour(), field::FrontSpaced},
    {IDC_SIDE_SPACED, OfArmour(), field::SideSpaced},
    {IDC_REAR_SPACED, OfArmour(), field::RearSpaced},
    {IDC_TOP, OfArmour(), field::Top},
    {IDC_BOTTOM, OfArmour(), field::Bottom, {.givenBy = IDC_BOTTOM_GIVEN}},
    {IDC_MANTLET,
     OfArmour(),
     field::Mantlet,
     {.kinds = Holders::of(Holder::Turret), .givenBy = IDC_MANTLET_GIVEN}},
});

constexpr FormShape<Component> ArmourShape = {
    .rows = ArmourRows, .holder = [](const Component& component) { return holderOf(component.kind); }};

} // namespace

const FormShape<ComponentRecord>& armourShape() {
    return ArmourShape;
}

int controlOfPlate(FieldId field) {
    for (std::size_t i = 0; i < field::Plates.size(); ++i) {
        if (field == field::Plates[i]) {
            return firstControl(i);
        }
    }
    return 0;
}

std::string effectiveText(const ArmourPlate& plate) {
    const auto thickness = effectiveThickness(plate);
    return thickness ? std::to_string(std::lround(*thickness)) + " mm" : "-";
}

void followPlates(FormPort& port, ComponentRecord& component) {
    const Component former = component;
    readPossible(port, ArmourShape, component);
    for (std::size_t i = 0; i < field::Plates.size(); ++i) {
        const auto rows = ArmourShape.rows.subspan(RowsPerPlate * i, RowsPerPlate);
        const bool isTaken = std::none_of(rows.begin(), rows.end(), [&](const FormRow<Component>& row) {
            Component copy = former;
            return row.read(port, copy).has_value();
        });
        port.setText(firstControl(i) + 2,
                     isTaken ? effectiveText(field::Plates[i]->of(component.armour)) : "?");
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
