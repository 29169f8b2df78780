#pragma once
// A list of words with a check box before each.

#include <windows.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// Gives a list view check boxes.
void prepareCheckList(HWND list);

/// Shows entries, `checked` of them with a check. What is there already stays where it is.
void showCheckList(HWND list, std::span<const std::string> entries, std::span<const std::string> checked);

/// The place of the entry whose check a notification of the list tells to be changed, and whether it is set.
struct CheckChange {
    std::size_t index;
    bool isChecked;
};
std::optional<CheckChange> checkChangeOf(const NMHDR& notification);

} // namespace varrocade
