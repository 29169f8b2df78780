#include "editors/vehicle/component_form.h"

#include "data/each_field.h"
#include "data/format/numbers.h"
#include "data/unit_fields.h"
#include "resources/resource.h"

#include <array>
#include <cmath>

namespace varrocade {

namespace {

using Component = ComponentRecord;

constexpr std::int32_t FullCircle = 360;
constexpr std::int32_t HalfCircle = 180;
constexpr int DegreesDecimals = 1;

constexpr auto Turrets = Holders::of(Holder::Turret);
constexpr std::string_view RotateSpeedCaption = "Rotate speed";

/// No element: the limits say it.
constexpr auto LimitedTraverse =
    field_row::flag(&Component::limitedTraverse, "", "Limited traverse", field::Turning);

/// The record counts the seconds of a full circle, people degrees a second.
struct RotateSpeed {
    static std::string textOf(std::int32_t time, const CodecTerms&) { return rotateSpeedText(time); }
    static Refusal take(std::string_view text, const CodecTerms&, std::int32_t& time) {
        if (text.find_first_not_of(" \t+-.0123456789") != std::string::npos) {
            return "\"Rotate speed\" must be a number";
        }
        const auto given = rotateTimeOf(text);
        if (given && *given == 0) {
            return "The rotate speed must be at most 360 degrees per second: the file counts the seconds for "
                   "a full "
                   "circle";
        }
        time = given.value_or(0);
        return std::nullopt;
    }
};

std::optional<FormError> checkRotateSpeed(const Component& component) {
    if (component.rotateTime > 0) {
        return std::nullopt;
    }
    return FormError{.control = IDC_ROTATE_SPEED,
                     .message = "The rotate speed must be greater than zero",
                     .caption = std::string(RotateSpeedCaption)};
}

/// The checks of the angles; a turret's messages name it.
std::optional<FormError> checkTraverse(const Component& component) {
    const bool isTurret = component.kind == ComponentKind::Turret;
    const std::string rotateWho = isTurret ? "The turret rotate" : "The rotate";
    const auto isLimit = [](std::int32_t angle) { return angle >= 0 && angle <= FullCircle; };
    if (!isLimit(component.rotateLeft) || !isLimit(component.rotateRight)) {
        return FormError{.control = isLimit(component.rotateLeft) ? IDC_ROTATE_RIGHT : IDC_ROTATE_LEFT,
                         .message = rotateWho + " left and right angles must be between 0 and 360 degrees",
                         .caption = "Rotate angles"};
    }
    if (component.rotateLeft + component.rotateRight > FullCircle) {
        return FormError{.control = IDC_ROTATE_LEFT,
                         .message = rotateWho + " left and right angles must add up to less that 360 degrees",
                         .caption = "Rotate angles"};
    }
    if (component.offsetAngle < -HalfCircle || component.offsetAngle > HalfCircle) {
        return FormError{.control = IDC_OFFSET_ANGLE,
                         .message = std::string(isTurret ? "The turret offset" : "The offset") +
                                    " angle must be between -180 and 180 degrees",
                         .caption = "Offset angle"};
    }
    return std::nullopt;
}

std::optional<FormError> checkOffsetZ(const Component& component) {
    if (component.kind != ComponentKind::FixedWeapon || component.offsetZ > 0) {
        return std::nullopt;
    }
    return FormError{.control = IDC_OFFSET_Z, .message = "OffsetZ must be greater than zero"};
}

/// A fixed weapon always has limits.
bool hasLimits(FormPort& port, const Component& component) {
    return component.kind == ComponentKind::FixedWeapon || port.isChecked(IDC_LIMITED_TRAVERSE);
}

constexpr auto ExceptHull = Holders::allBut(Holder::Hull);
constexpr auto ExceptSuperstructure = Holders::allBut(Holder::Superstructure);

/// A hull has no offsets, and shows that.
constexpr auto Rows = std::to_array<FormRow<Component>>({
    {IDC_LIMITED_TRAVERSE, LimitedTraverse, {.kinds = Turrets}},
    {IDC_ROTATE_LEFT, field::RotateLeft, {.kinds = field::Turning, .enabledWhen = hasLimits}},
    {IDC_ROTATE_RIGHT, field::RotateRight, {.kinds = field::Turning, .enabledWhen = hasLimits}},
    {IDC_OFFSET_ANGLE,
     field::OffsetAngle,
     {.kinds = field::Turning, .enabledWhen = hasLimits, .check = checkTraverse}},
    {IDC_WIDTH, field::Width, {.kinds = field::Boxes}},
    {IDC_LENGTH, field::Length, {.kinds = field::Boxes}},
    {IDC_DIAMETER, field::Diameter, {.kinds = Turrets}},
    {IDC_HEIGHT, field::Height, {.kinds = Holders::allBut(Holder::FixedWeapon)}},
    {IDC_OFFSET_X, field::OffsetX, {.changedBy = ExceptHull}},
    {IDC_OFFSET_Y, field::OffsetY, {.changedBy = ExceptHull}},
    {IDC_OFFSET_Z, field::OffsetZ, {.changedBy = ExceptHull, .check = checkOffsetZ}},
    {IDC_ROTATE_SPEED,
     field::RotateTime,
     {.kinds = field::Turning, .caption = RotateSpeedCaption, .check = checkRotateSpeed},
     RotateSpeed()},
    {IDC_ANTI_AIRCRAFT, field::AntiAircraft, {.kinds = field::Turning}},
    {IDC_NIGHT_VISION, field::NightVision, {.kinds = field::Turning}},
    {IDC_VIEW_IMAGE, field::ViewImage, {.kinds = field::Boxes, .images = image_sources::Hull}},
    {IDC_VIEW_IMAGE, field::ViewImage, {.kinds = field::Turning, .images = image_sources::Turret}},
    {IDC_DESTROYED_IMAGE, field::DestroyedImage, {.kinds = ExceptSuperstructure}},
});

constexpr FormShape<Component> Shape = {
    .rows = Rows, .holder = [](const Component& component) { return holderOf(component.kind); }};

} // namespace

const FormShape<ComponentRecord>& componentShape() {
    return Shape;
}

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

} // namespace varrocade
