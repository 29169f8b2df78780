#include "data/format/numbers.h"
#include "data/unit/image_names.h"
#include "platform/file_operations.h"
#include "weapons/weapon_elements.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"
#include "weapons/weapon_rules.h"

#include <algorithm>
#include <array>
#include <concepts>

namespace varrocade {

namespace {

namespace we = weapon_element;

/// What the walk is filling. `ammoType` is null until the first entry, and while one that found no room is
/// passed.
struct Reading {
    WeaponRecord& weapon;
    WeaponReadReport& report;
    std::string_view fileContent;
    const TagTree& tree;
    ReadingTrace* trace;
    const TagNode* node = nullptr;
    AmmoTypeRecord* ammoType = nullptr;
};

/// The parent that a rule asks for. Entries of the ammunition are the one place where a grandparent counts.
struct Rule {
    std::string_view parent;
    std::string_view element;
    void (*apply)(Reading& reading, std::string_view text);
};

/// Cuts the last four characters of a name that holds ".png" or ".PNG" anywhere; other cases stay.
std::string_view withoutPngEnding(std::string_view text) {
    const bool hasEnding =
        text.find(ImageEnding) != std::string_view::npos || text.find(".PNG") != std::string_view::npos;
    return hasEnding ? text.substr(0, text.size() - ImageEnding.size()) : text;
}

void convert(std::string_view text, std::string& field) {
    field = text;
}
void convert(std::string_view text, float& field) {
    field = toFloat(text);
}
template <std::integral Integer>
void convert(std::string_view text, Integer& field) {
    field = toClamped<Integer>(text);
}

WeaponRecord* target(Reading& reading, const WeaponRecord*) {
    return &reading.weapon;
}
AmmoTypeRecord* target(Reading& reading, const AmmoTypeRecord*) {
    return reading.ammoType;
}

template <typename Member>
struct MemberOf;
template <typename Record, typename Field>
struct MemberOf<Field Record::*> {
    using Owner = Record;
    using Type = Field;
};

/// The object whose member a rule is about to set.
template <auto Member, ValueKind Kind = kindOfField<typename MemberOf<decltype(Member)>::Type>()>
auto* targetOf(Reading& reading) {
    using Owner = typename MemberOf<decltype(Member)>::Owner;
    const Owner* kind = nullptr;
    auto* object = target(reading, kind);
    if (reading.trace != nullptr && object != nullptr) {
        reading.trace->note<Member>(*object, std::same_as<Owner, WeaponRecord>, Kind);
    }
    return object;
}

void judge(Reading& reading, bool understood) {
    if (reading.trace != nullptr) {
        reading.trace->judge(understood);
    }
}

template <auto Member>
void set(Reading& reading, std::string_view text) {
    if (auto* object = targetOf<Member>(reading)) {
        convert(text, object->*Member);
    }
}

template <auto Member>
void setImage(Reading& reading, std::string_view text) {
    if (auto* object = targetOf<Member, ValueKind::Image>(reading)) {
        object->*Member = withoutPngEnding(text);
    }
}

/// "yes" sets a flag; other texts leave it as it is.
template <auto Member>
void setFlag(Reading& reading, std::string_view text) {
    if (auto* object = targetOf<Member>(reading); object != nullptr && text == "yes") {
        object->*Member = true;
    }
}

/// A known word sets the member; other texts leave it as it is.
template <auto Member, auto ValueOf>
void setWord(Reading& reading, std::string_view text) {
    auto* object = targetOf<Member>(reading);
    if (const auto value = ValueOf(text); value && object != nullptr) {
        object->*Member = *value;
    }
}

void report(Reading& reading, const std::string& line) {
    constexpr std::size_t mostLines = 100;
    if (reading.report.diagnostics.size() < mostLines) {
        reading.report.diagnostics.push_back(line);
    }
}

void setType(Reading& reading, std::string_view text) {
    const WeaponType type = weaponTypeOf(text);
    WeaponRecord* weapon = targetOf<&WeaponRecord::type>(reading);
    if (type != WeaponType::None) {
        weapon->type = type;
        return;
    }
    report(reading, "\xF0\x9F\x92\xA5 ERROR: WeaponDataList: getListEntryForWeapon() unknown <type> in '" +
                        std::string(text) + "'");
    constexpr std::size_t mostBoxes = 3;
    if (!reading.weapon.name.empty() && reading.report.unknownTypes.size() < mostBoxes) {
        reading.report.unknownTypes.emplace_back(text);
    }
}

/// The low 8 bits, as the game keeps them.
void setNumberOfBarrels(Reading& reading, std::string_view text) {
    constexpr std::uint32_t lowByte = 0xFF;
    targetOf<&WeaponRecord::numberOfBarrels>(reading)->numberOfBarrels =
        static_cast<std::uint8_t>(static_cast<std::uint32_t>(toInteger(text)) & lowByte);
}

void setMuzzleFlash(Reading& reading, std::string_view text) {
    WeaponRecord* weapon = targetOf<&WeaponRecord::muzzleFlash>(reading);
    if (text == "yes" || text == "no") {
        weapon->muzzleFlash = text == "yes";
    }
}

void setCapacity(Reading& reading, std::string_view text) {
    targetOf<&WeaponRecord::magazineCapacity>(reading)->magazineCapacity =
        std::max<std::int16_t>(1, toClamped<std::int16_t>(text));
}

void setFlavour(Reading& reading, std::string_view text) {
    if (AmmoTypeRecord* ammoType = targetOf<&AmmoTypeRecord::flavour>(reading)) {
        ammoType->flavour = flavourOf(text);
        judge(reading, ammoType->flavour != AmmoFlavour::None);
    }
}

void addAmmoType(Reading& reading, std::string_view) {
    std::vector<AmmoTypeRecord>& types = reading.weapon.ammoTypes;
    reading.ammoType = nullptr;
    if (types.size() < MaxAmmoTypes) {
        reading.ammoType = &types.emplace_back();
        if (reading.trace != nullptr) {
            reading.trace->noteEntry(reading.node->name, false);
        }
        return;
    }
    if (reading.trace != nullptr) {
        reading.trace->noteLeftOut("more than 255 ammunition types");
    }
    report(reading, "ERROR: " + reading.weapon.fileName + ": line " +
                        std::to_string(reading.tree.lineOf(reading.node->name, reading.fileContent)) +
                        ": more than 255 ammunition types: left out");
}

using Weapon = WeaponRecord;
using Ammo = AmmoTypeRecord;

constexpr auto Rules = std::to_array<Rule>({
    {we::Weapon, we::Comments, set<&Weapon::comments>},
    {we::Weapon, we::Name, set<&Weapon::name>},
    {we::Weapon, we::Type, setType},
    {we::Dimensions, we::Calibre, set<&Weapon::calibre>},
    {we::Dimensions, we::BarrelLength, set<&Weapon::barrelLength>},
    {we::Dimensions, we::NumberBarrels, setNumberOfBarrels},
    {we::Shoot, we::SoundShoot, set<&Weapon::shootSound>},
    {we::Shoot, we::TracerImage, setImage<&Weapon::tracerImage>},
    {we::Shoot, we::MuzzleFlash, setMuzzleFlash},
    {we::Shoot, we::Range, set<&Weapon::range>},
    {we::Shoot, we::Rof, set<&Weapon::rateOfFire>},
    {we::Shoot, we::Reload, setWord<&Weapon::reload, reloadModeOf>},
    {we::Magazine, we::Capacity, setCapacity},
    {we::Magazine, we::SingleShot, setFlag<&Weapon::singleShot>},
    {we::Magazine, we::SoundEjectClip, set<&Weapon::ejectClipSound>},
    {we::Magazine, we::SoundReload, set<&Weapon::reloadSound>},
    {we::Usage, we::Period, set<&Weapon::period>},
    {we::Usage, we::Countries, set<&Weapon::countries>},
    {we::Ammo, we::Type, addAmmoType},
});

/// For what stands in a `type` in an `ammo`.
constexpr auto AmmoTypeRules = std::to_array<Rule>({
    {we::Type, we::Flavour, setFlavour},
    {we::Type, we::Era, setWord<&Ammo::era, heatEraOf>},
    {we::Type, we::Speed, set<&Ammo::speed>},
    {we::Type, we::Mass, set<&Ammo::mass>},
    {we::Type, we::HE, set<&Ammo::highExplosive>},
    {we::Type, we::ExplodeIn, set<&Ammo::explodeIn>},
    {we::Type, we::Guided, setWord<&Ammo::guided, guidanceModeOf>},
    {we::Type, we::SmokeTrail, setFlag<&Ammo::smokeTrail>},
    {we::Type, we::ExplodeSound, set<&Ammo::explodeSound>},
    {we::Type, we::TracerImage, setImage<&Ammo::tracerImage>},
    {we::Type, we::Name, set<&Ammo::name>},
});

/// Applies the rule for a node, if there is one; returns whether there is.
template <typename RuleTable>
bool applyRule(const RuleTable& rules, Reading& reading, std::string_view parent, const TagNode& node) {
    for (const Rule& rule : rules) {
        if (rule.element == node.name && rule.parent == parent) {
            rule.apply(reading, node.text);
            return true;
        }
    }
    return false;
}

/// Whether elements of this name hold others that mean something.
bool isGroup(std::string_view name) {
    return std::any_of(Rules.begin(), Rules.end(), [name](const Rule& rule) { return rule.parent == name; });
}

bool visit(Reading& reading, const TagNode& node) {
    const std::vector<TagNode>& nodes = reading.tree.nodes();
    const TagNode& parent = nodes[node.parent];
    reading.node = &node;
    const bool inAmmoType =
        parent.name == we::Type && parent.parent != TagNode::None && nodes[parent.parent].name == we::Ammo;
    return inAmmoType ? applyRule(AmmoTypeRules, reading, parent.name, node)
                      : applyRule(Rules, reading, parent.name, node);
}

} // namespace

WeaponRecord weapon_rules::readTree(const TagTree& tree, std::string_view fileContent,
                                    std::string_view fileName, WeaponReadReport& report,
                                    ReadingTrace* trace) {
    WeaponRecord weapon;
    weapon.fileName = fileName;
    Reading reading{
        .weapon = weapon, .report = report, .fileContent = fileContent, .tree = tree, .trace = trace};
    const std::vector<TagNode>& nodes = tree.nodes();
    for (std::uint32_t i = 1; i < nodes.size(); ++i) {
        if (trace == nullptr) {
            visit(reading, nodes[i]);
        } else {
            trace->enter(i, nodes[i].parent);
            const bool hasRule = visit(reading, nodes[i]);
            trace->leave(hasRule || isGroup(nodes[i].name));
        }
    }
    return weapon;
}

bool weapon_rules::isElement(std::string_view name) {
    const auto isNamed = [name](const Rule& rule) { return rule.element == name; };
    return isGroup(name) || std::any_of(Rules.begin(), Rules.end(), isNamed) ||
           std::any_of(AmmoTypeRules.begin(), AmmoTypeRules.end(), isNamed);
}

std::string valueText(WeaponType value) {
    return std::string(nameOf(value));
}

std::string valueText(AmmoFlavour value) {
    return std::string(nameOf(value));
}

std::string valueText(HeatEra value) {
    return std::string(nameOf(value));
}

std::string valueText(GuidanceMode value) {
    return value == GuidanceMode::Unguided ? std::string() : std::string(nameOf(value));
}

std::string valueText(ReloadMode value) {
    return value == ReloadMode::None ? std::string() : std::string(nameOf(value));
}

WeaponRecord readWeapon(std::string_view fileContent, std::string_view fileName, WeaponReadReport& report) {
    TagTree tree;
    return readWeapon(tree, fileContent, fileName, report);
}

WeaponRecord readWeapon(TagTree& tree, std::string_view fileContent, std::string_view fileName,
                        WeaponReadReport& report) {
    tree.parse(fileContent);
    return weapon_rules::readTree(tree, fileContent, fileName, report, nullptr);
}

std::optional<WeaponRecord> readWeaponFile(const std::string& path, std::string_view fileName,
                                           WeaponReadReport& report) {
    std::string content;
    if (!readWholeFile(path, content)) {
        return std::nullopt;
    }
    return readWeapon(content, fileName, report);
}

LoadedWeapon loadWeapon(FileOperations& files, std::string_view base, std::string_view fileName) {
    LoadedWeapon loaded;
    const std::string path = dataFilePath(base, Category::Weapons, fileName);
    if (files.read(path, loaded.content)) {
        loaded.record = readWeapon(loaded.content, fileName, loaded.report);
    } else {
        loaded.failure = {path, files.lastError()};
    }
    return loaded;
}

} // namespace varrocade
