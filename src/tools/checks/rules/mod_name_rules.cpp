#include "tools/checks/rules/mod_name_rules.h"

#include "data/category.h"
#include "data/finding_text.h"
#include "data/unit/image_names.h"
#include "mod/each_mod_field.h"
#include "mod/mod_text.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/nearest_name.h"
#include "tools/references.h"

#include <optional>
#include <set>
#include <string>
#include <utility>

namespace varrocade {

namespace {

namespace ck = check_key;

class ModNameCheck {
public:
    ModNameCheck(const CheckKnowledge& knowledge, const TagTree& tree, FileFindings& out)
        : knowledge_(knowledge), tree_(tree), out_(out) {}

    void run(const ModSettings& settings) {
        checkYears(settings);
        forEachReference(settings, [this](const Reference& reference) { checkReference(reference); });
        forEachListedUnit(settings,
                          [this](const std::string&, const ModListedUnit& unit) { checkUnit(unit); });
    }

private:
    /// The elements of a name that have this value, in the order of the file: the mod's own file may hold
    /// anything between them, so that they are found by what they say.
    template <typename Tell>
    void atValues(std::string_view element, std::string_view value, Tell tell) {
        for (const TagNode& node : tree_.nodes()) {
            if (node.name == element && node.childCount == 0 && imageNameOf(node.text) == value) {
                tell(node);
            }
        }
    }

    /// Each wrong value is told at all its places, once.
    bool isNew(std::string_view element, std::string_view value) {
        return told_.emplace(element, value).second;
    }

    void checkYears(const ModSettings& settings) {
        const bool isBackwards = std::pair(settings.lastYear, settings.lastMonth) <
                                 std::pair(settings.firstYear, settings.firstMonth);
        if (isBackwards) {
            atValues(
                mod_field::LastYear.element, std::to_string(settings.lastYear), [&](const TagNode& node) {
                    out_.atText(
                        node, {.key = ck::ModYears,
                               .message = "the war of the mod ends in " + std::to_string(settings.lastMonth) +
                                          "/" + std::to_string(settings.lastYear) + ", before it begins in " +
                                          std::to_string(settings.firstMonth) + "/" +
                                          std::to_string(settings.firstYear)});
                });
        }
    }

    void checkReference(const Reference& reference) {
        // Flags that follow from a nationality are missed by its units.
        const bool isPicture =
            reference.kind == ReferenceKind::Picture || reference.kind == ReferenceKind::Uniform;
        if (!isPicture || reference.written.empty() || isDefaultImage(reference.written) ||
            knowledge_.files.find(reference) != nullptr ||
            !isNew(reference.field->element, reference.written)) {
            return;
        }
        NearestName nearest(reference.written);
        for (const ImageSource& source : reference.folders) {
            nearest.offerAll(knowledge_.files.stems(source.folder, reference.ending));
        }
        atValues(reference.field->element, reference.written, [&](const TagNode& node) {
            out_.atText(node, {.key = finding_key::MissingPicture,
                               .message = "the picture " +
                                          quoted(std::string(reference.written) + std::string(ImageEnding)) +
                                          " is missing",
                               .value = std::string(reference.written),
                               .hint = nearest.hint()});
        });
    }

    void checkUnit(const ModListedUnit& unit) {
        const std::optional<Category> category = categoryOfWord(unit.category);
        if (!category || unit.fileName.empty()) {
            return;
        }
        const std::string folder = categoryFolder({}, *category);
        if (knowledge_.files.find(folder, unit.fileName, DataFileEnding) != nullptr ||
            !isNew(folder, unit.fileName)) {
            return;
        }
        const NearestName nearest =
            NearestName(unit.fileName).offerAll(knowledge_.files.stems(folder, DataFileEnding));
        atValues(mod_field::UnitFile.element, unit.fileName, [&](const TagNode& node) {
            out_.atText(
                node, {.key = ck::MissingUnit,
                       .message = "there is no unit " + quoted(unit.fileName) + " among the " + unit.category,
                       .value = unit.fileName,
                       .expected = "a file in Data/" + std::string(categoryName(*category)) + "/",
                       .hint = nearest.hint()});
        });
    }

    const CheckKnowledge& knowledge_;
    const TagTree& tree_;
    FileFindings& out_;
    std::set<std::pair<std::string, std::string>> told_;
};

} // namespace

void checkModNames(const CheckKnowledge& knowledge, const TagTree& tree, std::string_view content,
                   FileFindings& out) {
    ModNameCheck(knowledge, tree, out).run(readModSettings(content));
}

} // namespace varrocade
