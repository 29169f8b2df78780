#pragma once
// Where a name stands in the files of a game: a weapon, a picture, a sound, a uniform, a nationality.

#include "data/game_files.h"
#include "tools/references.h"

#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// One place that names something.
struct NameUse {
    ReferenceKind kind = ReferenceKind::Weapon;
    GameFile file = {};
    std::size_t line = 0; ///< from 1; 0 where the name follows from another value
    std::size_t column = 0;
    std::string path = {};    ///< of the value, as `Reference::path`
    std::string written = {}; ///< as the record has it
};

/// A name as records have it: without the ending of a data file, a picture or a sound.
std::string_view bareName(std::string_view name);

/// All uses of a name in the files that count, letter case aside, in the order of the files. What could not
/// be read goes to `failures`.
std::vector<NameUse> usesOfName(const GameFolders& folders, std::string_view name,
                                std::vector<FileFailure>& failures);

/// What a kind is called in lists: "weapon", "picture".
std::string_view referenceWord(ReferenceKind kind);

} // namespace varrocade
