#include "editors/squad/heavy_weapon_form.h"

#include "data/each_field.h"
#include "data/unit/unit_consistency.h"
#include "data/unit_fields.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

using Heavy = HeavyWeaponRecord;

/// No element of its own: the weapon's element is named by it.
constexpr auto HeavyKind = field_row::reference(FieldKind::Choice, &Heavy::kind, "kind", "Kind");

/// No element: the limits say it.
constexpr auto HeavyLimitedTraverse = field_row::flag(&Heavy::limitedTraverse, "", "Limited traverse");

bool isHeavyLimited(FormPort& port, const Heavy&) {
    return port.isChecked(IDC_LIMITED_TRAVERSE);
}

/// Whether the file of the kind that is shown has the field.
template <const auto& F>
bool kindStores(FormPort& port, const Heavy& weapon) {
    return F.isStoredBy(holderOf(shownKind(port, weapon)));
}

template <const auto& F>
constexpr RowTerms<Heavy> OfKind = {.enabledWhen = kindStores<F>};

constexpr auto HeavyWeaponRows = std::to_array<FormRow<Heavy>>({
    {IDC_HEAVY_KIND, HeavyKind},
    {IDC_BASE_IMAGE, field::BaseImage},
    {IDC_GUN_IMAGE, field::GunImage},
    {IDC_PROFILE_IMAGE, field::HeavyProfileImage},
    {IDC_LIMITED_TRAVERSE, HeavyLimitedTraverse},
    {IDC_ROTATE_LEFT, field::HeavyRotateLeft, {.enabledWhen = isHeavyLimited}},
    {IDC_ROTATE_RIGHT, field::HeavyRotateRight, {.enabledWhen = isHeavyLimited}},
    {IDC_HEAVY_MASS, field::Mass, OfKind<field::Mass>},
    {IDC_TRAIL_LENGTH, field::TrailLength, OfKind<field::TrailLength>},
    {IDC_MOVEABLE, field::Moveable},
    {IDC_NIGHT_VISION, field::HeavyNightVision},
    {IDC_ANTI_AIRCRAFT, field::HeavyAntiAircraft, OfKind<field::HeavyAntiAircraft>},
});

/// The limits are held to what a turret's are. What an old file has is no hindrance to other changes.
std::optional<FormError> checkHeavyTraverse(const Heavy& former, Heavy& read) {
    ComponentRecord likeIt;
    likeIt.kind = ComponentKind::FixedWeapon;
    likeIt.rotateLeft = read.rotateLeft;
    likeIt.rotateRight = read.rotateRight;
    const bool isChanged = former.limitedTraverse != read.limitedTraverse ||
                           former.rotateLeft != read.rotateLeft || former.rotateRight != read.rotateRight;
    if (!read.limitedTraverse || !isChanged) {
        return std::nullopt;
    }
    if (auto finding = traverseFinding(likeIt)) {
        const bool isLeft = finding->field == field::HeavyRotateLeft.element;
        return FormError{std::move(*finding), isLeft ? IDC_ROTATE_LEFT : IDC_ROTATE_RIGHT};
    }
    return std::nullopt;
}

constexpr FormShape<Heavy> HeavyWeaponShape = {
    .rows = HeavyWeaponRows,
    .holder = [](const Heavy& weapon) { return holderOf(weapon.kind); },
    .check = checkHeavyTraverse};

struct KindType {
    HeavyWeaponKind kind;
    std::string_view type;
};

/// The first of a kind is the one that it makes.
constexpr auto KindTypes = std::to_array<KindType>({
    {HeavyWeaponKind::Mortar, "TYPE_MORTAR"},
    {HeavyWeaponKind::Hmg, "TYPE_HMG"},
    {HeavyWeaponKind::Hmg, "TYPE_GRENADE_LAUNCHER"},
    {HeavyWeaponKind::AtGun, "TYPE_ATGUN"},
    {HeavyWeaponKind::AtGun, "TYPE_HOWITZER"},
    {HeavyWeaponKind::RecoillessRifle, "TYPE_RECOILLESS_RIFLE"},
});

/// Squads on foot, among whose men any heavy weapon may stand.
constexpr auto FootTypes = std::to_array<std::string_view>(
    {"TYPE_INFANTRY_SECTION", "TYPE_AT_RIFLE", "TYPE_BAZOOKA", "TYPE_FLAMETHROWER"});

} // namespace

std::span<const FormWord<HeavyWeaponKind>> FormWords<HeavyWeaponKind>::words() {
    static constexpr auto kinds =
        std::to_array<FormWord<HeavyWeaponKind>>({{HeavyWeaponKind::Mortar, "Mortar"},
                                                  {HeavyWeaponKind::Hmg, "Heavy machine gun"},
                                                  {HeavyWeaponKind::AtGun, "Anti-tank gun"},
                                                  {HeavyWeaponKind::RecoillessRifle, "Recoilless rifle"}});
    return kinds;
}

const FormShape<HeavyWeaponRecord>& heavyWeaponShape() {
    return HeavyWeaponShape;
}

HeavyWeaponKind shownKind(FormPort& port, const HeavyWeaponRecord& weapon) {
    HeavyWeaponKind kind = weapon.kind;
    Codec<HeavyWeaponKind>::take(port.text(IDC_HEAVY_KIND), {}, kind);
    return kind;
}

std::string heavyWeaponNotStored(FormPort& port, const HeavyWeaponRecord& weapon) {
    return notStoredText(HeavyWeaponShape, holderOf(shownKind(port, weapon)));
}

std::string kindNote(HeavyWeaponKind kind, std::string_view unitType) {
    const bool fits = std::any_of(KindTypes.begin(), KindTypes.end(), [&](const KindType& row) {
        return row.kind == kind && row.type == unitType;
    });
    if (fits || std::find(FootTypes.begin(), FootTypes.end(), unitType) != FootTypes.end()) {
        return {};
    }
    const std::string word = Codec<HeavyWeaponKind>::textOf(kind, {});
    return "Type and kind contradict each other: the unit is of " + std::string(unitType) +
           ", its weapon is of the kind \"" + word + "\", which makes it " + std::string(unitTypeOf(kind)) +
           ".";
}

std::string_view unitTypeOf(HeavyWeaponKind kind) {
    return std::find_if(KindTypes.begin(), KindTypes.end(),
                        [kind](const KindType& row) { return row.kind == kind; })
        ->type;
}

} // namespace varrocade
