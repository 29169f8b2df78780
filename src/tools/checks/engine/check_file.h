#pragma once
// Checking one file, or what is open of it.

#include "data/category.h"
#include "data/finding.h"
#include "data/format/tag_tree.h"
#include "data/unit/unit_record.h"
#include "tools/checks/engine/knowledge.h"

#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A file as it is checked. All must live as long as the call.
struct FileToCheck {
    Category category = Category::Vehicles;
    std::string_view name = {};    ///< without folder and ".txt"
    std::string_view shown = {};   ///< what the findings call it
    std::string_view content = {}; ///< its bytes
    /// Whether pictures are taken apart too, which takes longer than all else together.
    bool looksIntoPictures = false;
};

/// A unit's file taken apart and read, for those who look at it twice; one after the other for those who look
/// at many.
struct ReadUnitFile {
    TagTree tree;
    SquadRecord unit;
    Diagnostics diagnostics; ///< of the reader
};

/// What `into` held before is dropped.
void readForCheck(const FileToCheck& file, ReadUnitFile& into);

/// A weapon's file taken apart and read.
struct ReadWeaponFile {
    const TagTree& tree;
    const WeaponRecord& weapon;
    const Diagnostics& diagnostics; ///< of the reader
};

/// Everything about a unit's or weapon's file, by its lines: what its text is like, and, where that can be
/// read, what its values name and whether they fit. Without what its own comments suppress. `read` is what
/// was made of a unit's file before, null where it is to be read now.
std::vector<Finding> checkFile(const CheckKnowledge& knowledge, const FileToCheck& file,
                               const ReadUnitFile* read = nullptr);
/// The same of a weapon's file that was read before.
std::vector<Finding> checkWeaponFile(const CheckKnowledge& knowledge, const FileToCheck& file,
                                     const ReadWeaponFile& read);

/// What the text of a file is like, whatever is in the game around it: tags, elements, single values. Quick
/// enough for every key that is typed.
std::vector<Finding> checkFileText(const FileToCheck& file);

/// The rules over the values of a unit as it is in memory, changed or not. The places are those of the values
/// in the file, as far as that still holds them.
std::vector<Finding> checkUnitValues(const CheckKnowledge& knowledge, const FileToCheck& file,
                                     const SquadRecord& unit);
std::vector<Finding> checkWeaponFileValues(const CheckKnowledge& knowledge, const FileToCheck& file,
                                           const WeaponRecord& weapon);

} // namespace varrocade
