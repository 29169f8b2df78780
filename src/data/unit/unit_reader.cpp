#include "data/unit/unit_reader.h"

#include "data/unit/enumerations.h"
#include "data/unit/unit_rules.h"

namespace varrocade {

namespace {

using unit_rules::Place;
using unit_rules::Reading;

// As the game prints it: the name is not filled in, and every heavy weapon is called a mortar.
constexpr std::string_view UnknownInHeavyWeapon =
    "\xF0\x9F\x92\xA5 ERROR: Game: createSquadOnSide() Unknown tag <%s> in <mortar>...</mortar>";

Place visit(Reading& reading, Place parent, const TagNode& node) {
    reading.node = &node;
    const unit_rules::Rule* rule = unit_rules::findRule(parent, node.name);
    if (rule == nullptr && parent == Place::Commonness) {
        unit_rules::addQuarter(reading, node.name, node.text);
        return Place::Unknown;
    }
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

Place visitTraced(Reading& reading, Place parent, std::uint32_t index) {
    const TagNode& node = reading.tree.nodes()[index];
    reading.trace->enter(index, node.parent);
    const Place place = visit(reading, parent, node);
    reading.trace->leave(parent != Place::Commonness && unit_rules::findRule(parent, node.name) != nullptr);
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
    const std::vector<TagNode>& nodes = reading.tree.nodes();
    std::vector<Place> places(nodes.size(), Place::Unknown);
    for (std::uint32_t i = 1; i < nodes.size(); ++i) {
        const std::uint32_t parent = nodes[i].parent;
        places[i] = reading.trace == nullptr ? visit(reading, places[parent], nodes[i])
                                             : visitTraced(reading, places[parent], i);
    }
    if (reading.record.aircraft) {
        completeBombs(*reading.record.aircraft);
    }
}

SquadRecord readUnit(std::string_view fileContent, std::string_view fileName, Diagnostics& diagnostics) {
    SquadRecord record;
    record.fileName = fileName;
    TagTree tree;
    tree.parse(fileContent);
    Reading reading{.record = record, .diagnostics = diagnostics, .fileContent = fileContent, .tree = tree};
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

LoadedUnit loadUnit(FileOperations& files, std::string_view base, Category category,
                    std::string_view fileName) {
    LoadedUnit loaded;
    const std::string path = dataFilePath(base, category, fileName);
    if (files.read(path, loaded.content)) {
        loaded.record = readUnit(loaded.content, fileName, loaded.diagnostics);
    } else {
        loaded.failure = {path, files.lastError()};
    }
    return loaded;
}

} // namespace varrocade
