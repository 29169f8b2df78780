#include "app/workspace/names/used_names.h"

#include "data/format/texts.h"
#include "tools/where_used.h"
#include "view/sheet/unit_problems.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

constexpr std::string_view Separator = ": ";

ReferenceVisit collect(std::vector<UsedName>& names) {
    return [&names](const Reference& reference) {
        if (reference.kind == ReferenceKind::Flag) {
            // It follows from the nationality.
            return;
        }
        UsedName name{.kind = reference.kind, .name = std::string(reference.name)};
        const bool isKnown = std::any_of(names.begin(), names.end(), [&](const UsedName& known) {
            return known.kind == name.kind && equalsIgnoringCase(known.name, name.name);
        });
        if (!isKnown) {
            names.push_back(std::move(name));
        }
    };
}

} // namespace

std::vector<UsedName> usedNames(const Record& record) {
    std::vector<UsedName> names;
    if (const auto* weapon = std::get_if<WeaponRecord>(&record)) {
        names.push_back({.kind = ReferenceKind::Weapon, .name = weapon->fileName});
        if (!weapon->name.empty() && !equalsIgnoringCase(weapon->name, weapon->fileName)) {
            names.back().others.push_back(weapon->name);
        }
        forEachReference(*weapon, collect(names));
    } else if (const auto* unit = std::get_if<SquadRecord>(&record)) {
        names.push_back({.kind = ReferenceKind::Unit, .name = unit->fileName.str()});
        forEachReference(*unit, collect(names));
    }
    return names;
}

std::size_t usedNameOf(const std::vector<UsedName>& names, const Record& record, const UnitPart& part) {
    const auto* unit = std::get_if<SquadRecord>(&record);
    if (unit == nullptr || !part) {
        return 0;
    }
    std::optional<UsedName> found;
    const std::string weapon = weaponOf(*unit, part);
    if (!weapon.empty()) {
        found = {.kind = ReferenceKind::Weapon, .name = weapon};
    } else {
        forEachReference(*unit, [&](const Reference& reference) {
            if (!found && isSameShown(partOfField(*unit, reference.path.text()), part)) {
                found = {.kind = reference.kind, .name = std::string(reference.name)};
            }
        });
    }
    const auto place = std::find_if(names.begin(), names.end(), [&](const UsedName& name) {
        return found && name.kind == found->kind && equalsIgnoringCase(name.name, found->name);
    });
    return place == names.end() ? 0 : static_cast<std::size_t>(place - names.begin());
}

std::string textOf(const UsedName& name) {
    return std::string(referenceWord(name.kind)) + std::string(Separator) + name.name;
}

UsedName usedNameOfText(const std::vector<UsedName>& names, std::string_view text) {
    text = trimmed(text);
    const auto known = std::find_if(names.begin(), names.end(), [&](const UsedName& name) {
        return equalsIgnoringCase(textOf(name), text);
    });
    if (known != names.end()) {
        return *known;
    }
    UsedName result{.name = std::string(bareName(text)), .hasKind = false};
    for (const ReferenceKind kind : {ReferenceKind::Weapon, ReferenceKind::Picture, ReferenceKind::Uniform,
                                     ReferenceKind::Sound, ReferenceKind::Nationality, ReferenceKind::Unit}) {
        const std::string prefix = std::string(referenceWord(kind)) + std::string(Separator);
        if (equalsIgnoringCase(text.substr(0, prefix.size()), prefix)) {
            result = {.kind = kind, .name = std::string(bareName(trimmed(text.substr(prefix.size()))))};
        }
    }
    return result;
}

std::optional<RenameKind> renameKindOf(ReferenceKind kind) {
    switch (kind) {
    case ReferenceKind::Weapon:
        return RenameKind::Weapon;
    case ReferenceKind::Picture:
    case ReferenceKind::Uniform:
        return RenameKind::Picture;
    case ReferenceKind::Sound:
        return RenameKind::Sound;
    case ReferenceKind::Unit:
        return RenameKind::Unit;
    case ReferenceKind::Flag:
    case ReferenceKind::Nationality:
        break;
    }
    return std::nullopt;
}

} // namespace varrocade
