#pragma once
// What can be asked where it is used: the open record itself, and what it names.

#include "app/workspace/record/record.h"
#include "tools/references.h"
#include "tools/renaming/rename_target.h"
#include "view/drawing/unit_part.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

struct UsedName {
    ReferenceKind kind = ReferenceKind::Weapon;
    std::string name;
    std::vector<std::string> others = {}; ///< that it goes by too, as a weapon by the one in its file
    bool hasKind = true;                  ///< not of a name that was typed without one
    bool operator==(const UsedName&) const = default;
};

/// The record's own name first, then what it names, each once, in the order of its fields.
std::vector<UsedName> usedNames(const Record& record);

/// Which of them a part of the open unit is about; the first one where none is.
std::size_t usedNameOf(const std::vector<UsedName>& names, const Record& record, const UnitPart& part);

/// "weapon: WEAPON_RIFLE_KAR98K", and the name in such a text, or in one that was typed without the kind.
std::string textOf(const UsedName& name);
UsedName usedNameOfText(const std::vector<UsedName>& names, std::string_view text);

/// What renaming a name of this kind is about; nothing for what cannot be renamed.
std::optional<RenameKind> renameKindOf(ReferenceKind kind);

} // namespace varrocade
