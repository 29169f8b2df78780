// The sample game holds everything that its files name.

#include "data/format/tag_tree.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "platform/file_operations.h"
#include "test_support.h"
#include "weapons/weapon_catalogue.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <set>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// An element that names a file, within one of the name `parent` or, where that is empty, anywhere. The first
/// row that fits counts.
struct Reference {
    std::string_view element;
    std::string_view parent;
    std::string_view folder;
    std::string_view ending = ".png";
};

constexpr auto References = std::to_array<Reference>({
    {"image_profile", "attributes", "Images\\Units\\Vehicles\\Profiles\\"},
    {"image_view", "hull", "Images\\Units\\Vehicles\\Hulls\\"},
    {"image_view", "", "Images\\Units\\Vehicles\\Turrets\\"},
    {"image_destroyed", "", "Images\\Units\\Vehicles\\Destroyed\\"},
    {"image_view_base", "", "Images\\Units\\"},
    {"image_view_gun", "", "Images\\Units\\"},
    {"image_profile", "", "Images\\Units\\"},
    {"image", "", "Images\\Units\\"},
    {"uniform_profile", "", "Images\\Uniforms\\"},
    {"uniform_game", "", "Images\\Uniforms\\"},
    {"uniform_ranks", "", "Images\\Uniforms\\"},
    {"tracer_image", "", "Images\\Tracers\\"},
    {"sound", "", "Sounds\\", ".wav"},
    {"sound_shoot", "", "Sounds\\", ".wav"},
    {"sound_reload", "", "Sounds\\", ".wav"},
    {"sound_eject_clip", "", "Sounds\\", ".wav"},
    {"explode_sound", "", "Sounds\\", ".wav"},
    {"for", "", "Data\\Weapons\\", ".txt"},
    {"type", "weapon", "Data\\Weapons\\", ".txt"},
});

/// The path of the file that an element names; empty where it names none.
std::string namedFile(std::string_view parent, const TagNode& node) {
    const std::string_view name = imageNameOf(node.text);
    for (const Reference& row : References) {
        if (row.element == node.name && (row.parent.empty() || row.parent == parent)) {
            return name.empty() || isDefaultImage(name)
                       ? std::string()
                       : SampleBase + std::string(row.folder) + std::string(name) + std::string(row.ending);
        }
    }
    return {};
}

std::string_view childText(const TagTree& tree, const TagNode& node, std::string_view name) {
    std::uint32_t child = node.firstChild;
    while (child != TagNode::None && tree.nodes()[child].name != name) {
        child = tree.nodes()[child].nextSibling;
    }
    return child == TagNode::None ? std::string_view() : tree.nodes()[child].text;
}

} // namespace

TEST(Sample, HasTheFilesThatItsFilesName) {
    std::set<std::string> missing;
    std::size_t named = 0;
    for (const SampleFile& file : sampleFiles()) {
        TagTree tree;
        tree.parse(file.content);
        for (const TagNode& node : tree.nodes()) {
            const bool isRoot = node.parent == TagNode::None;
            const std::string_view parent = isRoot ? std::string_view() : tree.nodes()[node.parent].name;
            const bool isOwnType = file.category == Category::Weapons && node.name == "type";
            const std::string path = isRoot || isOwnType ? std::string() : namedFile(parent, node);
            named += path.empty() ? 0 : 1;
            if (!path.empty() && !systemFiles().exists(path)) {
                missing.insert(path + " of " + file.name + "\n");
            }
        }
    }
    EXPECT_GT(named, 500U);
    EXPECT_EQ(missing, std::set<std::string>());
}

TEST(Sample, HasTheAmmunitionOfItsUnits) {
    WeaponCatalogue weapons;
    weapons.load(SampleBase);
    EXPECT_TRUE(weapons.problems().empty()) << weapons.problems().front().file;
    for (const SampleFile& file : sampleFiles()) {
        EXPECT_EQ(weapons.find(file.name) != nullptr, file.category == Category::Weapons) << file.name;
        TagTree tree;
        tree.parse(file.content);
        for (const TagNode& node : tree.nodes()) {
            const WeaponRecord* weapon = weapons.find(childText(tree, node, "for"));
            const AmmoFlavour flavour = flavourOf(childText(tree, node, "flavour"));
            if (node.name == "ammo" && weapon != nullptr && flavour != AmmoFlavour::None) {
                EXPECT_TRUE(std::any_of(weapon->ammoTypes.begin(), weapon->ammoTypes.end(),
                                        [&](const AmmoTypeRecord& type) { return type.flavour == flavour; }))
                    << file.name << ": " << weapon->name << " with " << nameOf(flavour);
            }
        }
    }
}

TEST(Sample, UsesTheGamesNames) {
    const auto knows = [](std::span<const std::string_view> names, std::string_view name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    std::set<std::string> types;
    std::set<WeaponType> weaponTypes;
    for (const SampleFile& file : sampleFiles()) {
        SCOPED_TRACE(file.name);
        Diagnostics diagnostics;
        if (file.category == Category::Weapons) {
            const WeaponRecord weapon = readWeapon(file.content, file.name, diagnostics);
            EXPECT_EQ(weapon.name, file.name);
            EXPECT_FALSE(weapon.ammoTypes.empty());
            weaponTypes.insert(weapon.type);
            EXPECT_EQ(diagnostics, Diagnostics());
            continue;
        }
        const SquadRecord record = readUnit(file.content, file.name, diagnostics);
        EXPECT_EQ(diagnostics, Diagnostics());
        EXPECT_TRUE(knows(unitTypeNames(), record.type));
        EXPECT_TRUE(knows(nationalityNames(), record.nationality));
        // The lists sort a unit under the nation that its file's name begins with.
        EXPECT_TRUE(file.name.starts_with(displayName(record.nationality, NationalityPrefix)));
        EXPECT_EQ(record.vehicle.has_value(), file.category == Category::Vehicles);
        EXPECT_EQ(record.aircraft.has_value(), file.category == Category::Aircraft);
        EXPECT_TRUE(!record.vehicle || (knows(steeringNames(), record.vehicle->steering) &&
                                        knows(reliabilityNames(), record.vehicle->reliability)));
        const NationalUniform* uniform = findNationalUniform(record.nationality);
        if (uniform != nullptr && !record.aircraft) {
            for (const std::string_view image : {uniform->profile, uniform->game, uniform->ranks}) {
                const std::string path = SampleBase + "Images\\Uniforms\\" + std::string(image) + ".png";
                EXPECT_TRUE(systemFiles().exists(path)) << path;
            }
        }
        types.insert(record.type.str());
    }
    EXPECT_GE(types.size(), 12U);
    EXPECT_EQ(weaponTypes.size(), 19U) << "one of every type";
}

} // namespace varrocade::tests
