#include "editors/squad/rotor_list.h"

#include "data/unit_fields.h"
#include "resources/resource.h"

#include <array>

namespace varrocade {

namespace {

constexpr auto RotorRows = std::to_array<FormRow<RotorBladesRecord>>({
    {IDC_VIEW_IMAGE, field::RotorImage},
    {IDC_OFFSET_X, field::RotorOffsetX},
    {IDC_OFFSET_Y, field::RotorOffsetY},
    {IDC_DIAMETER, field::RotorDiameter},
    {IDC_CLOCKWISE, field::Clockwise},
});

std::string rotorLine(std::size_t place, const RotorBladesRecord& rotor) {
    return std::to_string(place) + ". " + (rotor.image.empty() ? "(no picture)" : rotor.image.str()) + " (" +
           std::to_string(rotor.offsetX) + ", " + std::to_string(rotor.offsetY) + ")" +
           (rotor.clockwise ? "" : ", anticlockwise");
}

/// Rotors on both sides turn against each other.
void mirrorRotor(RotorBladesRecord& rotor) {
    rotor.offsetX = -rotor.offsetX;
    rotor.clockwise = !rotor.clockwise;
}

std::optional<FormError> withoutPicture(const RotorBladesRecord& rotor) {
    if (!rotor.image.empty()) {
        return std::nullopt;
    }
    return FormError{refusedInput(field::RotorImage, "Choose a picture"), IDC_VIEW_IMAGE};
}

} // namespace

const ListShape<RotorBladesRecord>& rotorShape() {
    static const ListShape<RotorBladesRecord> shape{.form = {.rows = RotorRows},
                                                    .line = rotorLine,
                                                    .mirror = mirrorRotor,
                                                    .blank = {},
                                                    .incomplete = withoutPicture};
    return shape;
}

} // namespace varrocade
