#pragma once
// The names of a category's files: all of them, those that the filter lets through, and the selected one.

#include <string>
#include <vector>

namespace varrocade {

struct NameList {
    std::vector<std::string> all;    ///< as the folder lists them, those of the game alone behind the mod's
    std::vector<std::string> ofGame; ///< the game's in mod mode that the mod has none of, sorted
    std::string filter;
    std::vector<std::string> shown; ///< that hold every word of the filter, letter case ignored
    std::string selected;           ///< among those that are shown, or empty
};

/// Filters the names anew. What was selected stays so; where nothing was, `otherwise` is, which the filter
/// may have hidden before.
void filterNames(NameList& list, const std::string& otherwise);

/// Whether a name is in the list, letter case ignored, shown or not.
bool isListed(const NameList& list, const std::string& name);

/// Whether it is one of the game's that stand behind the mod's.
bool isOfGame(const NameList& list, const std::string& name);

/// Selects a shown name, letter case ignored; false when it is not shown, which leaves nothing selected.
bool selectName(NameList& list, const std::string& name);

/// The shown names before and after the selected one, as far as they are there.
std::vector<std::string> neighbourNames(const NameList& list);

/// The shown name to go to when the selected one is gone: the next, at the end the one before; or empty.
std::string nameAfterSelected(const NameList& list);

} // namespace varrocade
