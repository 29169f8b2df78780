#include "editors/vehicle/component_form.h"

#include "data/format/numbers.h"
#include "data/unit/elements.h"
#include "data/unit/image_names.h"
#include "data/unit/unit_consistency.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varrocade {

namespace {

using Component = ComponentRecord;
using Field = FormField<Component>;

constexpr std::int32_t FullCircle = 360;
constexpr int DegreesDecimals = 1;

constexpr auto SizeFields = std::to_array<Field>({
    {IDC_WIDTH, "Width", &Component::width},
    {IDC_LENGTH, "Length", &Component::length},
    {IDC_HEIGHT, "Height", &Component::height},
});
constexpr auto TurretSizeFields = std::to_array<Field>({
    {IDC_DIAMETER, "Diameter", &Component::diameter},
    {IDC_HEIGHT, "Height", &Component::height},
});
constexpr auto OffsetFields = std::to_array<Field>({
    {IDC_OFFSET_X, "OffsetX", &Component::offsetX},
    {IDC_OFFSET_Y, "OffsetY", &Component::offsetY},
    {IDC_OFFSET_Z, "OffsetZ", &Component::offsetZ},
});
constexpr auto TraverseFields = std::to_array<Field>({
    {IDC_ROTATE_LEFT, "Rotate Left", &Component::rotateLeft},
    {IDC_ROTATE_RIGHT, "Rotate Right", &Component::rotateRight},
    {IDC_OFFSET_ANGLE, "Offset Angle", &Component::offsetAngle},
});
constexpr auto SightFields = std::to_array<Field>({
    {IDC_ANTI_AIRCRAFT, "Can shoot aircraft", &Component::antiAircraft},
    {IDC_NIGHT_VISION, "Infrared night vision", &Component::nightVision},
});

struct ComponentImage {
    int control;
    std::string_view label; ///< for messages
    Text Component::*member;
};

constexpr auto Images = std::to_array<ComponentImage>({
    {IDC_VIEW_IMAGE, "Image", &Component::viewImage},
    {IDC_DESTROYED_IMAGE, "Destroyed", &Component::destroyedImage},
});

bool hasDestroyedImage(ComponentKind kind) {
    return kind != ComponentKind::Superstructure;
}

void fillImages(FormPort& port, const Component& component) {
    for (const ComponentImage& image : Images) {
        if (image.control == IDC_VIEW_IMAGE || hasDestroyedImage(component.kind)) {
            port.setLimit(image.control, Text::MaxLength);
            port.setText(image.control, component.*image.member);
        }
    }
}

std::optional<ComponentFormError> readImages(FormPort& port, Component& component) {
    for (const ComponentImage& image : Images) {
        if (image.control == IDC_VIEW_IMAGE || hasDestroyedImage(component.kind)) {
            const std::string name = port.text(image.control);
            if (auto error = valueError(image.control, image.label, name)) {
                return ComponentFormError{error->control, error->message, "Error"};
            }
            component.*image.member = imageNameOf(name);
        }
    }
    return std::nullopt;
}

std::optional<ComponentFormError> readFields(FormPort& port, std::span<const Field> fields,
                                             Component& component) {
    if (auto error = readForm<Component>(port, fields, component)) {
        return ComponentFormError{error->control, error->message, "Error"};
    }
    return std::nullopt;
}

/// Where a refusal stands in the dialog, and what the caption of its box is.
struct RefusalPlace {
    std::string_view field;
    int control;
    std::string_view caption;
};

constexpr std::string_view RotateSpeedCaption = "Rotate speed";

constexpr auto RefusalPlaces = std::to_array<RefusalPlace>({
    {element::RotateLeft, IDC_ROTATE_LEFT, "Rotate angles"},
    {element::RotateRight, IDC_ROTATE_RIGHT, "Rotate angles"},
    {element::OffsetAngle, IDC_OFFSET_ANGLE, "Offset angle"},
    {element::OffsetZ, IDC_OFFSET_Z, "Error"},
    {element::RotateTime, IDC_ROTATE_SPEED, RotateSpeedCaption},
});

std::optional<ComponentFormError> refusalOf(const std::optional<Finding>& finding) {
    if (!finding) {
        return std::nullopt;
    }
    const auto place = std::find_if(RefusalPlaces.begin(), RefusalPlaces.end(),
                                    [&](const RefusalPlace& row) { return row.field == finding->field; });
    return ComponentFormError{place->control, finding->message, std::string(place->caption)};
}

/// A speed that was not touched keeps its time to the second.
std::optional<ComponentFormError> readRotateSpeed(FormPort& port, Component& component) {
    const std::string text = port.text(IDC_ROTATE_SPEED);
    if (component.rotateTime > 0 && text == rotateSpeedText(component.rotateTime)) {
        return std::nullopt;
    }
    if (text.find_first_not_of(" \t+-.0123456789") != std::string::npos) {
        return ComponentFormError{IDC_ROTATE_SPEED, "\"Rotate speed\" must be a number",
                                  std::string(RotateSpeedCaption)};
    }
    const auto time = rotateTimeOf(text);
    if (time == 0) {
        return ComponentFormError{IDC_ROTATE_SPEED,
                                  "The rotate speed must be at most 360 degrees per second: the file counts "
                                  "the seconds for a full circle",
                                  std::string(RotateSpeedCaption)};
    }
    component.rotateTime = time.value_or(0);
    return refusalOf(rotateTimeFinding(component));
}

std::optional<ComponentFormError> readTurret(FormPort& port, Component& turret) {
    turret.limitedTraverse = port.isChecked(IDC_LIMITED_TRAVERSE);
    if (turret.limitedTraverse) {
        if (auto error = readFields(port, TraverseFields, turret)) {
            return error;
        }
        if (auto error = refusalOf(traverseFinding(turret))) {
            return error;
        }
    }
    if (auto error = readFields(port, TurretSizeFields, turret)) {
        return error;
    }
    if (auto error = readFields(port, OffsetFields, turret)) {
        return error;
    }
    if (auto error = readRotateSpeed(port, turret)) {
        return error;
    }
    return readFields(port, SightFields, turret);
}

std::optional<ComponentFormError> readFixedWeapon(FormPort& port, Component& weapon) {
    if (auto error = readFields(port, TraverseFields, weapon)) {
        return error;
    }
    if (auto error = refusalOf(traverseFinding(weapon))) {
        return error;
    }
    if (auto error = readFields(port, OffsetFields, weapon)) {
        return error;
    }
    if (auto error = refusalOf(offsetHeightFinding(weapon))) {
        return error;
    }
    if (auto error = readRotateSpeed(port, weapon)) {
        return error;
    }
    return readFields(port, SightFields, weapon);
}

std::optional<ComponentFormError> readKind(FormPort& port, Component& component) {
    switch (component.kind) {
    case ComponentKind::Hull:
        return readFields(port, SizeFields, component);
    case ComponentKind::Superstructure:
        if (auto error = readFields(port, SizeFields, component)) {
            return error;
        }
        return readFields(port, OffsetFields, component);
    case ComponentKind::Turret:
        return readTurret(port, component);
    case ComponentKind::FixedWeapon:
        break;
    }
    return readFixedWeapon(port, component);
}

} // namespace

std::string rotateSpeedText(std::int32_t rotateTime) {
    std::string text;
    appendFixed(text, rotateTime > 0 ? static_cast<double>(FullCircle) / rotateTime : 0.0, DegreesDecimals);
    return text;
}

std::optional<std::int32_t> rotateTimeOf(std::string_view speed) {
    const double value = toReal(speed);
    if (!(value > 0)) {
        return std::nullopt;
    }
    constexpr double secondsOfDay = 86400;
    return static_cast<std::int32_t>(std::lround(std::min(FullCircle / value, secondsOfDay)));
}

void fillComponentForm(FormPort& port, const ComponentRecord& component) {
    fillImages(port, component);
    fillForm<Component>(port, OffsetFields, component);
    switch (component.kind) {
    case ComponentKind::Hull:
    case ComponentKind::Superstructure:
        fillForm<Component>(port, SizeFields, component);
        return;
    case ComponentKind::Turret:
        fillForm<Component>(port, TurretSizeFields, component);
        port.setChecked(IDC_LIMITED_TRAVERSE, component.limitedTraverse);
        break;
    case ComponentKind::FixedWeapon:
        break;
    }
    fillForm<Component>(port, TraverseFields, component);
    fillForm<Component>(port, SightFields, component);
    port.setText(IDC_ROTATE_SPEED, rotateSpeedText(component.rotateTime));
    if (component.kind == ComponentKind::Turret) {
        enableTraverse(port);
    }
}

void enableTraverse(FormPort& port) {
    const bool isLimited = port.isChecked(IDC_LIMITED_TRAVERSE);
    for (const Field& field : TraverseFields) {
        port.setEnabled(field.control, isLimited);
    }
}

std::optional<ComponentFormError> readComponentForm(FormPort& port, ComponentRecord& component) {
    Component copy = component;
    if (auto error = readKind(port, copy)) {
        return error;
    }
    if (auto error = readImages(port, copy)) {
        return error;
    }
    component = std::move(copy);
    return std::nullopt;
}

} // namespace varrocade
