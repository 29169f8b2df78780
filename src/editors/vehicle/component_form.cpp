#include "editors/vehicle/component_form.h"

#include "data/each_field.h"
#include "data/format/numbers.h"
#include "data/unit/unit_consistency.h"
#include "data/unit_fields.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace varrocade {

namespace {

using Component = ComponentRecord;

constexpr std::int32_t FullCircle = 360;
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

/// Where a refusal stands in the dialog, and what the caption of its box is where the dialog's own does not
/// do.
struct RefusalPlace {
    std::string_view field;
    int control;
    std::string_view caption;
};

constexpr auto RefusalPlaces = std::to_array<RefusalPlace>({
    {field::RotateLeft.element, IDC_ROTATE_LEFT, "Rotate angles"},
    {field::RotateRight.element, IDC_ROTATE_RIGHT, "Rotate angles"},
    {field::OffsetAngle.element, IDC_OFFSET_ANGLE, "Offset angle"},
    {field::OffsetZ.element, IDC_OFFSET_Z, {}},
    {field::RotateTime.element, IDC_ROTATE_SPEED, RotateSpeedCaption},
});

template <std::optional<Finding> (*Rule)(const Component&)>
std::optional<FormError> check(const Component& component) {
    const std::optional<Finding> finding = Rule(component);
    if (!finding) {
        return std::nullopt;
    }
    const auto place = std::find_if(RefusalPlaces.begin(), RefusalPlaces.end(),
                                    [&](const RefusalPlace& row) { return row.field == finding->field; });
    return FormError{*finding, place->control, std::string(place->caption)};
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
     {.kinds = field::Turning, .enabledWhen = hasLimits, .check = check<traverseFinding>}},
    {IDC_WIDTH, field::Width, {.kinds = field::Boxes}},
    {IDC_LENGTH, field::Length, {.kinds = field::Boxes}},
    {IDC_DIAMETER, field::Diameter, {.kinds = Turrets}},
    {IDC_HEIGHT, field::Height, {.kinds = Holders::allBut(Holder::FixedWeapon)}},
    {IDC_OFFSET_X, field::OffsetX, {.changedBy = ExceptHull}},
    {IDC_OFFSET_Y, field::OffsetY, {.changedBy = ExceptHull}},
    {IDC_OFFSET_Z, field::OffsetZ, {.changedBy = ExceptHull, .check = check<offsetHeightFinding>}},
    {IDC_ROTATE_SPEED,
     field::RotateTime,
     {.kinds = field::Turning, .caption = RotateSpeedCaption, .check = check<rotateTimeFinding>},
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

void takeOwnFields(ComponentRecord& component, ComponentRecord own) {
    own.armour = component.armour;
    own.smokeDischargers = std::move(component.smokeDischargers);
    own.crew = std::move(component.crew);
    own.weapons = std::move(component.weapons);
    own.ammo = std::move(component.ammo);
    component = std::move(own);
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
