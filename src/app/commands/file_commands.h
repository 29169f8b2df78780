#pragma once
// New, Duplicate, Rename, Delete, and switching the category.

#include "data/category.h"

#include <string>
#include <string_view>

namespace varrocade {

void newFile();
void duplicateFile();
void renameFile();
void deleteFile();

/// Shows another category, with the file that was selected in it last.
void chooseCategory(Category category);

/// Shows a file of any category, whatever the filter holds back.
void showFile(Category category, const std::string& name);

/// Opens what is selected in the list, after the question about unsaved positions.
void openSelectedEntry();

} // namespace varrocade
