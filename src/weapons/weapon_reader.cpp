#include "data/element_table.h"
#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "data/tag_rules.h"
#include "data/unit/image_names.h"
#include "platform/file_operations.h"
#include "weapons/weapon_elements.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"
#include "weapons/weapon_rules.h"

#include <algorithm>
#include <array>
#include <concepts>

namespace varrocade {

namespace {

namespace we = weapon_element;
namespace wf = weapon_field;
using tag_rules::judge;
using tag_rules::set;
using tag_rules::targetOf;

/// Only the name of an element and that of the one around it count; for what stands in a `type` in an `ammo`
/// the next one too.
enum class Place : std::uint8_t { Unknown, Weapon, Dimensions, Shoot, Magazine, Usage, Ammo, AmmoType };

/// What the walk is filling. `ammoType` is null until the first entry, and while one that found no room is
/// passed.
struct Reading : TagReading {
    using Place = varrocade::Place;
    using File = WeaponRecord;

    WeaponRecord& weapon;
    AmmoTypeRecord* ammoType = nullptr;
};

using Rule = tag_rules::Rule<Reading>;

/// Cuts the last four characters of a name that holds ".png" or ".PNG" anywhere; other cases stay.
std::string_view withoutPngEnding(std::string_view text) {
    const bool hasEnding =
        text.find(ImageEnding) != std::string_view::npos || text.find(".PNG") != std::string_view::npos;
    return hasEnding ? text.substr(0, text.size() - ImageEnding.size()) : text;
}

WeaponRecord* target(Reading& reading, const WeaponRecord*) {
    return &reading.weapon;
}
AmmoTypeRecord* target(Reading& reading, const AmmoTypeRecord*) {
    return reading.ammoType;
}

template <const auto& F>
void setImage(Reading& reading, std::string_view text) {
    if (auto* object = targetOf<F>(reading)) {
        F.of(*object) = withoutPngEnding(text);
    }
}

/// "yes" sets a flag; other texts leave it as it is.
template <const auto& F>
void setFlag(Reading& reading, std::string_view text) {
    if (auto* object = targetOf<F>(reading); object != nullptr && text == tag_rules::Yes) {
        F.of(*object) = true;
    }
}

/// A known word sets the member; other texts leave it as it is.
template <const auto& F, auto ValueOfWord>
void setWord(Reading& reading, std::string_view text) {
    auto* object = targetOf<F>(reading);
    if (const auto value = ValueOfWord(text); value && object != nullptr) {
        F.of(*object) = *value;
    }
}

void setType(Reading& reading, std::string_view text) {
    const WeaponType type = weaponTypeOf(text);
    WeaponRecord* weapon = targetOf<wf::Type>(reading);
    if (type != WeaponType::None) {
        weapon->type = type;
        return;
    }
    if (reading.findings != nullptr) {
        reading.findings->addAtText(*reading.node, {.key = finding_key::UnknownWeaponType,
                                                    .severity = Severity::Error,
                                                    .field = std::string(we::Type),
                                                    .message = quoted(text) + " is not a weapon type",
                                                    .subject = weapon->name});
    }
}

/// The low 8 bits, as the game keeps them.
void setNumberOfBarrels(Reading& reading, std::string_view text) {
    constexpr std::uint32_t lowByte = 0xFF;
    targetOf<wf::NumberOfBarrels>(reading)->numberOfBarrels =
        static_cast<std::uint8_t>(static_cast<std::uint32_t>(toInteger(text)) & lowByte);
}

void setMuzzleFlash(Reading& reading, std::string_view text) {
    WeaponRecord* weapon = targetOf<wf::MuzzleFlash>(reading);
    if (text == "yes" || text == "no") {
        weapon->muzzleFlash = text == "yes";
    }
}

void setCapacity(Reading& reading, std::string_view text) {
    targetOf<wf::Capacity>(reading)->magazineCapacity =
        std::max<std::int16_t>(1, toClamped<std::int16_t>(text));
}

void setFlavour(Reading& reading, std::string_view text) {
    if (AmmoTypeRecord* ammoType = targetOf<wf::Flavour>(reading)) {
        ammoType->flavour = flavourOf(text);
        judge(reading, ammoType->flavour != AmmoFlavour::None);
    }
}

void addAmmoType(Reading& reading, std::string_view) {
    std::vector<AmmoTypeRecord>& types = reading.weapon.ammoTypes;
    reading.ammoType = nullptr;
    if (types.size() < MaxAmmoTypes) {
        reading.ammoType = &types.emplace_back();
        tag_rules::noteEntry(reading);
        return;
    }
    tag_rules::reportLeftOut(reading, "more than 255 ammunition types");
}

/// An element that sets one field.
template <const auto& F>
constexpr Rule rule(Place in, Rule::Action action = set<Reading, F>) {
    return {in, F.element, Place::Unknown, action, tag_rules::FieldList<F>};
}

using P = Place;

constexpr auto Rules = std::to_array<Rule>({
    // These mean the same wherever they stand.
    {P::Unknown, we::Weapon, P::Weapon},
    {P::Unknown, we::Dimensions, P::Dimensions},
    {P::Unknown, we::Shoot, P::Shoot},
    {P::Unknown, we::Magazine, P::Magazine},
    {P::Unknown, we::Usage, P::Usage},
    {P::Unknown, we::Ammo, P::Ammo},

    rule<wf::Comments>(P::Weapon),
    rule<wf::Name>(P::Weapon),
    rule<wf::Type>(P::Weapon, setType),
    rule<wf::Calibre>(P::Dimensions),
    rule<wf::BarrelLength>(P::Dimensions),
    rule<wf::NumberOfBarrels>(P::Dimensions, setNumberOfBarrels),
    rule<wf::ShootSound>(P::Shoot),
    rule<wf::TracerImage>(P::Shoot, setImage<wf::TracerImage>),
    rule<wf::MuzzleFlash>(P::Shoot, setMuzzleFlash),
    rule<wf::Range>(P::Shoot),
    rule<wf::RateOfFire>(P::Shoot),
    rule<wf::Reload>(P::Shoot, setWord<wf::Reload, reloadModeOf>),
    rule<wf::Capacity>(P::Magazine, setCapacity),
    rule<wf::SingleShot>(P::Magazine, setFlag<wf::SingleShot>),
    rule<wf::EjectClipSound>(P::Magazine),
    rule<wf::ReloadSound>(P::Magazine),
    rule<wf::Period>(P::Usage),
    rule<wf::Countries>(P::Usage),

    {P::Ammo, we::Type, P::AmmoType, addAmmoType},
    rule<wf::Flavour>(P::AmmoType, setFlavour),
    rule<wf::Era>(P::AmmoType, setWord<wf::Era, heatEraOf>),
    rule<wf::Speed>(P::AmmoType),
    rule<wf::Mass>(P::AmmoType),
    rule<wf::HighExplosive>(P::AmmoType),
    rule<wf::ExplodeIn>(P::AmmoType),
    rule<wf::Guided>(P::AmmoType, setWord<wf::Guided, guidanceModeOf>),
    rule<wf::SmokeTrail>(P::AmmoType, setFlag<wf::SmokeTrail>),
    rule<wf::ExplodeSound>(P::AmmoType),
    rule<wf::AmmoTracerImage>(P::AmmoType, setImage<wf::AmmoTracerImage>),
    rule<wf::AmmoName>(P::AmmoType),
});

const tag_rules::RuleTable<Reading>& weaponRules() {
    static const auto table = [] {
        tag_rules::RuleTable<Reading> rules;
        rules.add(Rules);
        return rules;
    }();
    return table;
}

Place visitNode(Reading& reading, Place parent, const TagNode& node, bool& hasRule) {
    return tag_rules::apply(weaponRules(), reading, parent, node, hasRule);
}

} // namespace

WeaponRecord weapon_rules::readTree(const TagTree& tree, std::string_view fileName, ReaderFindings* findings,
                                    ReadingTrace* trace) {
    WeaponRecord weapon;
    weapon.fileName = fileName;
    Reading reading{{.tree = tree, .findings = findings, .trace = trace}, weapon};
    tag_rules::walk(reading, visitNode);
    return weapon;
}

const ElementTable& weapon_rules::elements() {
    static const ElementTable table(weaponRules());
    return table;
}

bool weapon_rules::isElement(std::string_view name) {
    return weaponRules().knows(name);
}

WeaponRecord readWeapon(std::string_view fileContent, std::string_view fileName, Diagnostics& diagnostics) {
    TagTree tree;
    return readWeapon(tree, fileContent, fileName, diagnostics);
}

WeaponRecord readWeapon(TagTree& tree, std::string_view fileContent, std::string_view fileName,
                        Diagnostics& diagnostics) {
    tree.parse(fileContent);
    ReaderFindings findings(diagnostics, fileName, tree, fileContent);
    return weapon_rules::readTree(tree, fileName, &findings, nullptr);
}

std::optional<WeaponRecord> readWeaponFile(const std::string& path, std::string_view fileName,
                                           Diagnostics& diagnostics) {
    std::string content;
    if (!readWholeFile(path, content)) {
        return std::nullopt;
    }
    return readWeapon(content, fileName, diagnostics);
}

LoadedWeapon loadWeapon(FileOperations& files, std::string_view base, std::string_view fileName) {
    LoadedWeapon loaded;
    const std::string path = dataFilePath(base, Category::Weapons, fileName);
    if (files.read(path, loaded.content)) {
        loaded.record = readWeapon(loaded.content, fileName, loaded.diagnostics);
    } else {
        loaded.failure = {path, files.lastError()};
    }
    return loaded;
}

} // namespace varrocade
