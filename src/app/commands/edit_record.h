#pragma once
// Editors at work on the open unit.

#include "editors/unit/edit_context.h"

#include <functional>

namespace varrocade {

/// Lets an editor work on the open unit, saves the unit when that is what the editor returns, and shows it.
void withEditContext(const std::function<bool(EditContext&)>& work);

/// Opens the editor of the open record's kind and saves what the user keeps.
void editOpenRecord();

/// Whether the open record has an editor.
bool canEditOpenRecord();

} // namespace varrocade
