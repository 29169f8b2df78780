#include "data/unit/unit_reader.h"

#include "data/finding_text.h"
#include "data/unit/enumerations.h"
#include "data/unit/unit_rules.h"
#include "platform/file_operations.h"
#include "platform/messages.h"

namespace varrocade {

namespace {

using unit_rules::Place;
using unit_rules::Reading;

/// The game tells of unknown elements in heavy weapons only.
void reportUnknown(Reading& reading, const TagNode& node) {
    if (reading.findings != nullptr && reading.heavyWeapon != nullptr) {
        reading.findings->addAtElement(node, {.key = finding_key::UnknownElement,
                                              .severity = Severity::Error,
                                              .message = elementText(node) + " in " +
                                                         tagText(reading.tree.nodes()[node.parent].name) +
                                                         " is not known",
                                              .value = std::string(node.name)});
    }
}

Place visit(Reading& reading, Place parent, const TagNode& node) {
    reading.node = &node;
    const unit_rules::Rule* rule = unit_rules::findRule(parent, node.name);
    if (rule == nullptr && parent == Place::Commonness) {
        unit_rules::addQuarter(reading, node.name, node.text);
        return Place::Unknown;
    }
    if (rule == nullptr) {
        if (parent == Place::HeavyWeapon) {
            reportUnknown(reading, node);
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
    ReaderFindings findings(diagnostics, record.fileName.view(), tree, fileContent);
    Reading reading{.record = record, .tree = tree, .findings = &findings};
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
    for (const Finding& finding : diagnostics) {
        debugLine(debuggerLine(finding));
    }
    return record;
}

} // namespace varrocade
