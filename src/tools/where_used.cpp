#include "tools/where_used.h"

#include "data/format/source_map.h"
#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "data/reading/unit_rules.h"
#include "data/unit/image_names.h"
#include "tools/asset_files.h"
#include "tools/checks/engine/file_findings.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_rules.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

/// Finds the places of uses in one file.
void placeUses(std::string_view content, Category category, std::vector<NameUse>& uses, std::size_t first) {
    TagTree tree;
    tree.parse(content);
    const SourceMap places(tree, content);
    const bool isWeapon = category == Category::Weapons;
    const auto nodes = pathsOfElements(tree, isWeapon ? weapon_rules::elements() : unit_rules::elements());
    for (std::size_t i = first; i < uses.size(); ++i) {
        if (const auto node = nodes.find(uses[i].path); node != nodes.end()) {
            const SourcePlace place = places.placeOfText(tree.nodes()[node->second]);
            uses[i].line = place.line;
            uses[i].column = place.column;
        }
    }
}

} // namespace

std::string_view bareName(std::string_view name) {
    for (const std::string_view ending : {ImageEnding, SoundEnding, DataFileEnding}) {
        if (name.size() > ending.size() &&
            equalsIgnoringCase(name.substr(name.size() - ending.size()), ending)) {
            return name.substr(0, name.size() - ending.size());
        }
    }
    return name;
}

std::string_view referenceWord(ReferenceKind kind) {
    constexpr std::array<std::string_view, 6> words = {"weapon", "picture", "uniform",
                                                       "sound",  "flag",    "nationality"};
    return words[static_cast<std::size_t>(kind)];
}

std::vector<NameUse> usesOfName(const GameFolders& folders, std::string_view name,
                                std::vector<FileFailure>& failures) {
    const std::string_view wanted = bareName(name);
    std::vector<NameUse> uses;
    GameFileWalk walk(listAllFiles(folders, failures));
    walk.run([&](const GameFile& file, std::string_view content) {
        const std::size_t first = uses.size();
        const ReferenceVisit visit = [&](const Reference& reference) {
            // A flag follows from the nationality, which is a use itself.
            const bool isNamed = equalsIgnoringCase(bareName(reference.written), wanted) ||
                                 equalsIgnoringCase(reference.name, wanted);
            if (isNamed && !reference.written.empty() && reference.kind != ReferenceKind::Flag) {
                uses.push_back({.kind = reference.kind,
                                .file = file,
                                .path = reference.path.text(),
                                .written = std::string(reference.written)});
            }
        };
        Diagnostics diagnostics;
        if (file.category == Category::Weapons) {
            forEachReference(readWeapon(content, file.name, diagnostics), visit);
        } else {
            forEachReference(readUnit(content, file.name, diagnostics), visit);
        }
        if (uses.size() > first) {
            placeUses(content, file.category, uses, first);
        }
    });
    failures.insert(failures.end(), walk.failures().begin(), walk.failures().end());
    return uses;
}

} // namespace varrocade
