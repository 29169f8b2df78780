#include "data/reading/unit_reader.h"

#include "data/finding_text.h"
#include "data/reading/availability_rules.h"
#include "data/reading/unit_rules.h"
#include "data/unit/enumerations.h"

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

Place visit(Reading& reading, Place parent, const TagNode& node, bool& hasRule) {
    const Place place = tag_rules::apply(unit_rules::ruleTable(), reading, parent, node, hasRule);
    if (hasRule) {
        // What an older availability holds is told by its quarters alone.
        hasRule = parent != Place::Commonness;
        return place;
    }
    if (parent == Place::Commonness) {
        unit_rules::addQuarter(reading, node.name, node.text);
    } else if (parent == Place::HeavyWeapon) {
        reportUnknown(reading, node);
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
    ReaderFindings findings(diagnostics, record.fileName.view(), tree, fileContent);
    Reading reading{{.tree = tree, .findings = &findings}, record};
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
