#include "data/unit_reader.h"

#include "data/enumerations.h"
#include "data/unit_rules.h"
#include "platform/file_operations.h"
#include "platform/messages.h"

namespace varrocade {

namespace {

using unit_rules::Place;
using unit_rules::Reading;

// As the game prints it: the name is not filled in, and every heavy weapon is called a mortar.
constexpr std::string_view UnknownInHeavyWeapon =
    "\xF0\x9F\x92\xA5 ERROR: Game: createSquadOnSide() Unknown tag <%s> in <mortar>...</mortar>";

Place visit(Reading& reading, Place parent, const TagNode& node) {
    reading.node = &node;
    if (parent == Place::Commonness) {
        unit_rules::addQuarter(reading, node.name, node.text);
        return Place::Unknown;
    }
    const unit_rules::Rule* rule = unit_rules::findRule(parent, node.name);
    if (rule == nullptr) {
        if (parent == Place::HeavyWeapon && reading.heavyWeapon != nullptr) {
            unit_rules::report(reading, UnknownInHeavyWeapon);
        }
        return Place::Unknown;
    }
    if (rule->apply != nullptr) {
        rule->apply(reading, node.text);
    }
    return rule->place;
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

SquadRecord readUnit(std::string_view fileContent, std::string_view fileName, Diagnostics& diagnostics) {
    SquadRecord record;
    record.fileName = fileName;
    TagTree tree;
    tree.parse(fileContent);
    Reading reading{.record = record, .diagnostics = diagnostics, .fileContent = fileContent, .tree = tree};
    const std::vector<TagNode>& nodes = tree.nodes();
    std::vector<Place> places(nodes.size(), Place::Unknown);
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        places[i] = visit(reading, places[nodes[i].parent], nodes[i]);
    }
    if (record.aircraft) {
        completeBombs(*record.aircraft);
    }
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
