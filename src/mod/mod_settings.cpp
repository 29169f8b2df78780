#include "mod/mod_settings.h"

#include "data/format/file_text.h"
#include "data/format/numbers.h"
#include "data/format/tag_tree.h"

namespace varrocade {

namespace {

constexpr std::string_view ModElement = "mod";
constexpr std::string_view NameElement = "name";
constexpr std::string_view AuthorElement = "author";
constexpr std::string_view CommentElement = "comment";
constexpr std::string_view YearsElement = "years";
constexpr std::string_view FirstElement = "first";
constexpr std::string_view LastElement = "last";

} // namespace

ModSettings readModSettings(std::string_view fileContent) {
    ModSettings settings;
    TagTree tree;
    tree.parse(fileContent);
    const std::vector<TagNode>& nodes = tree.nodes();
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        const TagNode& node = nodes[i];
        const std::string_view parent = nodes[node.parent].name;
        if (parent == ModElement && node.name == NameElement) {
            settings.name = node.text;
        } else if (parent == ModElement && node.name == AuthorElement) {
            settings.author = node.text;
        } else if (parent == ModElement && node.name == CommentElement) {
            settings.comment = node.text;
        } else if (parent == YearsElement && node.name == FirstElement) {
            settings.firstYear = toInteger(node.text);
        } else if (parent == YearsElement && node.name == LastElement) {
            settings.lastYear = toInteger(node.text);
        }
    }
    return settings;
}

std::string modSettingsText(const ModSettings& settings) {
    FileText out;
    out.open(0, ModElement);
    out.line(1, NameElement, settings.name);
    out.lineIfGiven(1, AuthorElement, settings.author);
    out.lineIfGiven(1, CommentElement, settings.comment);
    out.open(1, YearsElement);
    out.line(2, FirstElement, settings.firstYear);
    out.line(2, LastElement, settings.lastYear);
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
