#include "tools/renaming/name_edit.h"

#include "data/each_field.h"
#include "data/format/source_map.h"
#include "data/format/texts.h"
#include "data/reading/unit_reader.h"
#include "data/reading/unit_rules.h"
#include "data/writing/unit_writers.h"
#include "mod/each_mod_field.h"
#include "mod/mod_text.h"
#include "mod/mod_text_edit.h"
#include "mod/text_document.h"
#include "tools/checks/engine/file_findings.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_rules.h"

#include <algorithm>
#include <concepts>

namespace varrocade {

namespace {

/// False where the record has not all of the values.
template <typename Record>
bool setNames(Record& record, std::span<const NameEdit> edits) {
    std::size_t count = 0;
    forEachField(record, [&](const FieldPlace& place, auto& value) {
        if constexpr (std::convertible_to<decltype(value), std::string_view>) {
            for (const NameEdit& edit : edits) {
                if (place.path == edit.path) {
                    value = edit.to;
                    ++count;
                }
            }
        }
    });
    return count == edits.size();
}

/// The names in their places; nothing where one does not stand in the text as the record has it, as those
/// that older files have coded otherwise. `lines` become those of the edits, as far as they are found.
std::optional<std::string> editedInPlace(std::string_view content, const ElementTable& elements,
                                         std::span<const NameEdit> edits, std::vector<std::size_t>& lines) {
    TagTree tree;
    tree.parse(content);
    const SourceMap places(tree, content);
    const auto paths = pathsOfElements(tree, elements);
    const TextDocument document(content);
    TextEdits replacements;
    bool isWhole = true;
    lines.assign(edits.size(), 0);
    for (std::size_t i = 0; i < edits.size(); ++i) {
        const auto node = paths.find(edits[i].path);
        if (node == paths.end()) {
            isWhole = false;
            continue;
        }
        lines[i] = places.placeOfText(tree.nodes()[node->second]).line;
        std::string text(tree.nodes()[node->second].text);
        const std::size_t at = loweredText(text).find(loweredText(edits[i].from));
        if (at == std::string::npos) {
            isWhole = false;
            continue;
        }
        text.replace(at, edits[i].from.size(), edits[i].to);
        for (const TextRange& piece : document.textPiecesOf(node->second)) {
            replacements.replace(piece, std::move(text));
            text.clear();
        }
    }
    return isWhole ? std::optional(replacements.applied(content, {0, content.size()})) : std::nullopt;
}

/// Takes the text that is read as the wanted record: in its place, or as the writer lays it out.
template <typename Record, typename Read, typename Write>
std::optional<EditedText> editRecord(std::string_view content, const ElementTable& elements,
                                     std::span<const NameEdit> edits, Read read, Write write) {
    Record wanted = read(content);
    if (!setNames(wanted, edits)) {
        return std::nullopt;
    }
    EditedText result;
    if (auto text = editedInPlace(content, elements, edits, result.lines); text && read(*text) == wanted) {
        result.text = std::move(*text);
        return result;
    }
    const std::optional<std::string> text = write(wanted);
    if (!text || read(*text) != wanted) {
        return std::nullopt;
    }
    result.text = *text;
    result.isAnew = true;
    return result;
}

} // namespace

std::optional<EditedText> editNames(Category category, std::string_view content, std::string_view name,
                                    std::span<const NameEdit> edits) {
    Diagnostics ignored;
    if (category == Category::Weapons) {
        return editRecord<WeaponRecord>(
            content, weapon_rules::elements(), edits,
            [&](std::string_view text) { return readWeapon(text, name, ignored); },
            [](const WeaponRecord& weapon) { return std::optional(weaponFileText(weapon)); });
    }
    return editRecord<SquadRecord>(
        content, unit_rules::elements(), edits,
        [&](std::string_view text) { return readUnit(text, name, ignored); },
        [&](const SquadRecord& unit) { return unitFileText(category, unit); });
}

std::optional<EditedText> editModNames(std::string_view content, std::span<const NameEdit> edits) {
    ModSettings wanted = readModSettings(content);
    if (!setNames(wanted, edits)) {
        return std::nullopt;
    }
    EditedText result{.text = editedModText(content, wanted),
                      .lines = std::vector<std::size_t>(edits.size(), 0)};
    return readModSettings(result.text) == wanted ? std::optional(std::move(result)) : std::nullopt;
}

} // namespace varrocade
