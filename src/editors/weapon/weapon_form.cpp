#include "editors/weapon/weapon_form.h"

#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "editors/weapon/weapon_words.h"
#include "resources/resource.h"
#include "weapons/ammo_words.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_kinds.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

namespace wf = weapon_field;
using Weapon = WeaponRecord;
using Ammo = AmmoTypeRecord;

/// The value of an enumeration that a control shows; `otherwise` while it shows none.
template <typename Enum>
Enum shownValue(FormPort& port, int control, Enum otherwise) {
    Enum value = otherwise;
    Codec<Enum>::take(port.text(control), {}, value);
    return value;
}

/// Whether the file carries a field of the weapon whose type the form shows.
template <const auto& F>
bool weaponCarries(FormPort& port, const Weapon& weapon) {
    return F.isStoredBy(holderOf(shownValue(port, IDC_WD_TYPE, weapon.type)));
}

/// The same of ammunition, by its flavour and the weapon's type.
template <const auto& F>
bool ammoCarries(FormPort& port, const Ammo& ammo) {
    return F.isStoredBy(holderOf(shownValue(port, IDC_WD_FLAVOUR, ammo.flavour)),
                        holderOf(shownValue(port, IDC_WD_TYPE, WeaponType::None)));
}

/// A number that is kept as the file will print it, so that the record is what its file says.
struct PrintedReal : Codec<float> {
    static Refusal take(std::string_view text, const CodecTerms& terms, float& value) {
        if (auto refusal = Codec::take(text, terms, value)) {
            return refusal;
        }
        // No file needs a zero with a sign.
        value = value == 0 ? 0.0F : toFloat(textOf(value, terms));
        return std::nullopt;
    }
};

template <const auto& F>
constexpr RowTerms<Weapon> OfWeapon = {.enabledWhen = weaponCarries<F>};
template <const auto& F>
constexpr RowTerms<Ammo> OfAmmo = {.enabledWhen = ammoCarries<F>};

constexpr auto WeaponDataRows = std::to_array<FormRow<Weapon>>({
    {IDC_WD_NAME, wf::Name},
    {IDC_WD_TYPE, wf::Type},
    {IDC_WD_CALIBRE, wf::Calibre, OfWeapon<wf::Calibre>, PrintedReal()},
    {IDC_WD_BARREL_LENGTH, wf::BarrelLength, OfWeapon<wf::BarrelLength>},
    {IDC_WD_BARRELS, wf::NumberOfBarrels, OfWeapon<wf::NumberOfBarrels>},
    {IDC_WD_RANGE, wf::Range},
    {IDC_WD_RATE_OF_FIRE, wf::RateOfFire},
    {IDC_WD_RELOAD, wf::Reload},
    {IDC_WD_CAPACITY, wf::Capacity, OfWeapon<wf::Capacity>},
    {IDC_WD_SINGLE_SHOT, wf::SingleShot, OfWeapon<wf::SingleShot>},
    {IDC_WD_MUZZLE_FLASH, wf::MuzzleFlash},
    {IDC_WD_TRACER, wf::TracerImage},
    {IDC_WD_SHOOT_SOUND, wf::ShootSound},
    {IDC_WD_RELOAD_SOUND, wf::ReloadSound, OfWeapon<wf::ReloadSound>},
    {IDC_WD_EJECT_SOUND, wf::EjectClipSound, OfWeapon<wf::EjectClipSound>},
    {IDC_WD_COMMENTS, wf::Comments},
    {IDC_WD_PERIOD, wf::Period},
    {IDC_WD_COUNTRIES, wf::Countries},
});

constexpr auto AmmoTypeRows = std::to_array<FormRow<Ammo>>({
    {IDC_WD_FLAVOUR, wf::Flavour},
    {IDC_WD_AMMO_NAME, wf::AmmoName, {.label = "Ammunition name"}},
    {IDC_WD_ERA, wf::Era, OfAmmo<wf::Era>},
    {IDC_WD_SPEED, wf::Speed, OfAmmo<wf::Speed>, PrintedReal()},
    {IDC_WD_MASS, wf::Mass, {}, PrintedReal()},
    {IDC_WD_EXPLOSIVE, wf::HighExplosive, OfAmmo<wf::HighExplosive>, PrintedReal()},
    {IDC_WD_FUSE, wf::ExplodeIn, {}, PrintedReal()},
    {IDC_WD_GUIDANCE, wf::Guided},
    {IDC_WD_SMOKE_TRAIL, wf::SmokeTrail},
    {IDC_WD_AMMO_TRACER, wf::AmmoTracerImage, {.label = "Tracer of the ammunition"}},
    {IDC_WD_EXPLODE_SOUND, wf::ExplodeSound},
});

/// "2. APCBC  PzGr 39/42"
std::string ammoTypeLine(std::size_t place, const Ammo& ammo) {
    const std::string flavour = flavourWord(nameOf(ammo.flavour));
    return std::to_string(place) + ". " + flavour + (ammo.name.empty() ? "" : "  " + ammo.name);
}

constexpr FormShape<Weapon> WeaponDataShape = {.rows = WeaponDataRows};

template <typename Record>
std::string notCarried(FormPort& port, const FormShape<Record>& shape, const Record& record,
                       std::string_view whose) {
    std::string labels;
    for (const FormRow<Record>& row : shape.rows) {
        if (row.terms.enabledWhen != nullptr && !row.terms.enabledWhen(port, record)) {
            labels += (labels.empty() ? "" : ", ") + row.label();
        }
    }
    return labels.empty() ? labels : "Not in the file of this " + std::string(whose) + ": " + labels + ".";
}

} // namespace

const FormShape<WeaponRecord>& weaponDataShape() {
    return WeaponDataShape;
}

const ListShape<AmmoTypeRecord>& ammoTypeShape() {
    static const ListShape<Ammo> shape = {
        .form = {.rows = AmmoTypeRows}, .line = ammoTypeLine, .most = MaxAmmoTypes, .blank = {}};
    return shape;
}

void AmmoTypeModel::add() {
    insert(startingAmmo(weapon_.type));
}

std::string namePrefixNote(std::string_view name, WeaponType type) {
    const bool fits = typeOfWeaponName(name) == type;
    return fits || type == WeaponType::None ? std::string()
                                            : "Names of this type begin with " + namePrefixOf(type);
}

std::vector<std::string> offeredFlavours(WeaponType type, bool all) {
    std::vector<std::string> offered;
    const std::span<const AmmoFlavour> fitting = flavoursOf(type);
    for (const AmmoFlavour flavour : fitting) {
        offered.push_back(Codec<AmmoFlavour>::textOf(flavour, {}));
    }
    for (const FormWord<AmmoFlavour>& word : FormWords<AmmoFlavour>::words()) {
        if (all && std::find(fitting.begin(), fitting.end(), word.value) == fitting.end()) {
            offered.emplace_back(word.word);
        }
    }
    return offered;
}

std::string weaponNotCarried(FormPort& port, const WeaponRecord& weapon) {
    return notCarried(port, WeaponDataShape, weapon, "type");
}

std::string ammoNotCarried(FormPort& port, const AmmoTypeRecord& ammo) {
    return notCarried(port, ammoTypeShape().form, ammo, "type and flavour");
}

std::vector<std::string> listedEntries(std::string_view text) {
    std::vector<std::string> entries;
    while (!text.empty()) {
        const std::size_t comma = std::min(text.find(','), text.size());
        if (const std::string_view entry = trimmed(text.substr(0, comma)); !entry.empty()) {
            entries.emplace_back(entry);
        }
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return entries;
}

std::string withEntry(std::string_view text, std::string_view entry, bool isIn) {
    const std::vector<std::string> entries = listedEntries(text);
    const auto isMeant = [entry](std::string_view other) { return equalsIgnoringCase(other, entry); };
    const bool wasIn = std::any_of(entries.begin(), entries.end(), isMeant);
    if (wasIn == isIn) {
        return std::string(text);
    }
    if (isIn) {
        return std::string(text) + (entries.empty() ? "" : ", ") + std::string(entry);
    }
    std::string rest;
    for (bool isFirst = true; !text.empty();) {
        const std::size_t comma = std::min(text.find(','), text.size());
        const std::string_view piece = text.substr(0, comma);
        if (!isMeant(trimmed(piece))) {
            rest += isFirst ? std::string(trimmed(piece)) : "," + std::string(piece);
            isFirst = false;
        }
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return rest;
}

std::vector<std::string> checkListEntries(std::span<const std::string> known, std::string_view text) {
    std::vector<std::string> entries(known.begin(), known.end());
    for (std::string& entry : listedEntries(text)) {
        const bool isThere = std::any_of(entries.begin(), entries.end(), [&](const std::string& other) {
            return equalsIgnoringCase(other, entry);
        });
        if (!isThere) {
            entries.push_back(std::move(entry));
        }
    }
    return entries;
}

std::vector<std::string> knownCountries() {
    std::vector<std::string> countries;
    for (const std::string_view name : nationalityNames()) {
        countries.push_back(displayName(name, NationalityPrefix));
    }
    return countries;
}

} // namespace varrocade
