#include "data/unit/unit_reader.h"

#include "data/unit/enumerations.h"
#include "data/unit/unit_rules.h"
#include "platform/file_operations.h"
#include "platform/messages.h"

namespace varrocade {

namespace {

using unit_rules::Place;
using unit_rules::Reading;

// As the game prints it: the name is not filled in, and every heavy weapon is called a mortar.
constexpr std::string_view UnknownInHeavyWeapon =
    "\xF0\x9F\x92\xA5 ERROR: Game: createSquadOnSide() Unknown tag <%s> in <mortar>...</mortar>";

Place visit(Reading& reading, Place parent, const TagNode& node, bool& hasRule) {
    const Place place = tag_rules::apply(unit_rules::ruleTable(), reading, parent, node, hasRule);
    if (hasRule) {
        // What an older availability holds is told by its quarters alone.
        hasRule = parent != Place::Commonness;
        return place;
    }
    if (parent == Place::Commonness) {
        unit_rules::addQuarter(reading, node.name, node.text);
    } else if (parent == Place::HeavyWeapon && reading.heavyWeapon != nullptr) {
        unit_rules::report(reading, UnknownInHeavyWeapon);
    }
    return place;
}

/// Bombs are of high explosive unless the file says otherwise.
void completeBombs(AircraftRecord& aircraft) {
    for (AmmoLoadRecord& ammo : aircraft.ammo) {
        if (ammo.flavour.empty() && ammo.weaponType.view().starts_with(BombPrefix)) {
            ammo.flavour = FlavourBombHe;
        }
    }
}

} // namespace

void unit_rules::readTree(Reading& reading) {
    tag_rules::walk(reading, visit);
    if (reading.record.aircraft) {
        completeBombs(*reading.record.aircraft);
    }
}

SquadRecord readUnit(std::string_view fileContent, std::string_view fileName, Diagnostics& diagnostics) {
    SquadRecord record;
    record.fileName = fileName;
    TagTree tree;
    tree.parse(fileContent);
    Reading reading{{fileContent, tree}, record, diagnostics};
    unit_rules::readTree(reading);
    return record;
}

std::optional<SquadRecord> readUnitFile(const std::string& path, std::string_view fileName,
                                        Diagnostics& diagnostics) {
    std::string content;
    if (!readWholeFile(path, content)) {
        return std::nullopt;
    }
    return readUnit(content, fileName, diagnostics);
}

std::optional<SquadRecord> loadUnit(std::string_view base, Category category, std::string_view fileName) {
    const std::string path = dataFilePath(base, category, fileName);
    Diagnostics diagnostics;
    std::optional<SquadRecord> record = readUnitFile(path, fileName, diagnostics);
    if (!record) {
        showCouldNotLoad(path);
    }
    for (const std::string& line : diagnostics) {
        debugLine(line);
    }
    return record;
}

} // namespace varrocade
