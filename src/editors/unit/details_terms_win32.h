#pragma once

#include "editors/form/form_dialog_win32.h"
#include "editors/unit/edit_context.h"

namespace varrocade {

/// What the "Details" of all units have in common.
inline FormDialogTerms detailsTerms(const EditContext& edit, int dialogTemplate) {
    return {.dialogTemplate = dialogTemplate,
            .caption = "Details",
            .imageBases = edit.imageBases,
            .changed = edit.changed,
            .undoName = "Details",
            .focus = edit.focus.field};
}

} // namespace varrocade
