#include "mod/mod_settings.h"

#include "data/field_text.h"
#include "data/tag_rules.h"
#include "mod/mod_fields.h"

#include <array>

namespace varrocade {

namespace {

namespace mf = mod_field;

constexpr std::string_view ModElement = "mod";
constexpr std::string_view YearsElement = "years";

/// As in weapon files, only the names of an element and of the one around it count.
enum class ModPlace : std::uint8_t { Unknown, Mod, Years };

struct ModReading : TagReading {
    using Place = ModPlace;
    using File = ModSettings;

    ModSettings& settings;
};

ModSettings* target(ModReading& reading, const ModSettings*) {
    return &reading.settings;
}

using ModRule = tag_rules::Rule<ModReading>;

template <const auto& F>
constexpr ModRule modRule(ModPlace in) {
    return {in, F.element, ModPlace::Unknown, tag_rules::set<ModReading, F>};
}

constexpr auto ModRules = std::to_array<ModRule>({
    {ModPlace::Unknown, ModElement, ModPlace::Mod},
    {ModPlace::Unknown, YearsElement, ModPlace::Years},
    modRule<mf::Name>(ModPlace::Mod),
    modRule<mf::Author>(ModPlace::Mod),
    modRule<mf::Comment>(ModPlace::Mod),
    modRule<mf::FirstYear>(ModPlace::Years),
    modRule<mf::LastYear>(ModPlace::Years),
});

ModPlace visitSetting(ModReading& reading, ModPlace parent, const TagNode& node, bool& hasRule) {
    static const auto table = [] {
        tag_rules::RuleTable<ModReading> rules;
        rules.add(ModRules);
        return rules;
    }();
    return tag_rules::apply(table, reading, parent, node, hasRule);
}

} // namespace

ModSettings readModSettings(std::string_view fileContent) {
    ModSettings settings;
    TagTree tree;
    tree.parse(fileContent);
    ModReading reading{{.tree = tree}, settings};
    tag_rules::walk(reading, visitSetting);
    return settings;
}

std::string modSettingsText(const ModSettings& settings) {
    using field_text::lines;
    FileText out;
    out.open(0, ModElement);
    lines(out, 1, settings, mf::Name, mf::Author, mf::Comment);
    out.open(1, YearsElement);
    lines(out, 2, settings, mf::FirstYear, mf::LastYear);
    out.close(1, YearsElement);
    out.close(0, ModElement);
    return out.take();
}

ModSettings loadModSettings(const std::string& modFolder) {
    std::string content;
    return readWholeFile(modFolder + std::string(ModFileName), content) ? readModSettings(content)
                                                                        : ModSettings{};
}

std::optional<FileFailure> saveModSettings(FileOperations& files, const std::string& modFolder,
                                           const ModSettings& settings) {
    return saveFile(files, modFolder + std::string(ModFileName), modSettingsText(settings));
}

} // namespace varrocade
