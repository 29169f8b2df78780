// The sample game holds everything that its files name.

#include "data/enumerations.h"
#include "data/image_names.h"
#include "data/tag_tree.h"
#include "platform/file_operations.h"
#include "test_support.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <map>
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

struct Sample {
    std::vector<std::pair<Category, SquadRecord>> units;
    std::map<std::string, WeaponRecord, std::less<>> weapons;
};

Sample readSample() {
    Sample sample;
    for (const SampleFile& file : sampleFiles()) {
        WeaponReadReport report;
        if (file.category == Category::Weapons) {
            sample.weapons[file.name] = readWeapon(file.content, file.name, report);
        } else {
            sample.units.emplace_back(file.category, readUnit(file.content, file.name, report.diagnostics));
        }
        EXPECT_TRUE(report.diagnostics.empty()) << file.name << ": " << report.diagnostics.front();
    }
    return sample;
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
    const Sample sample = readSample();
    for (const SampleFile& file : sampleFiles()) {
        TagTree tree;
        tree.parse(file.content);
        for (const TagNode& node : tree.nodes()) {
            const auto weapon = sample.weapons.find(childText(tree, node, "for"));
            const std::string_view flavour = childText(tree, node, "flavour");
            if (node.name == "ammo" && weapon != sample.weapons.end() && !flavour.empty()) {
                const std::vector<AmmoTypeRecord>& types = weapon->second.ammoTypes;
                EXPECT_TRUE(std::any_of(
                    types.begin(), types.end(),
                    [&](const AmmoTypeRecord& type) { return type.flavour == flavourOf(flavour); }))
                    << file.name << ": " << weapon->first << " with " << flavour;
            }
        }
    }
}

TEST(Sample, UsesTheGamesNames) {
    const auto knows = [](std::span<const std::string_view> names, std::string_view name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    const Sample sample = readSample();
    std::set<std::string_view> types;
    for (const auto& [category, record] : sample.units) {
        const std::string_view name = record.fileName;
        EXPECT_TRUE(knows(unitTypeNames(), record.type)) << name;
        EXPECT_TRUE(knows(nationalityNames(), record.nationality)) << name;
        // The lists sort a unit under the nation that its file's name begins with.
        EXPECT_TRUE(name.starts_with(displayName(record.nationality, NationalityPrefix))) << name;
        EXPECT_EQ(record.vehicle.has_value(), category == Category::Vehicles) << name;
        EXPECT_EQ(record.aircraft.has_value(), category == Category::Aircraft) << name;
        if (record.vehicle) {
            EXPECT_TRUE(knows(steeringNames(), record.vehicle->steering)) << name;
            EXPECT_TRUE(knows(reliabilityNames(), record.vehicle->reliability)) << name;
        }
        const NationalUniform* uniform = findNationalUniform(record.nationality);
        if (uniform != nullptr && !record.aircraft) {
            for (const std::string_view image : {uniform->profile, uniform->game, uniform->ranks}) {
                const std::string path = SampleBase + "Images\\Uniforms\\" + std::string(image) + ".png";
                EXPECT_TRUE(systemFiles().exists(path)) << path;
            }
        }
        types.insert(record.type);
    }
    EXPECT_GE(types.size(), 12U);
    std::set<WeaponType> weaponTypes;
    for (const auto& [name, record] : sample.weapons) {
        EXPECT_EQ(record.name, name);
        EXPECT_FALSE(record.ammoTypes.empty()) << name;
        weaponTypes.insert(record.type);
    }
    EXPECT_EQ(weaponTypes.size(), 19U) << "one of every type";
}

} // namespace varrocade::tests
