// Exhaust pipes and smoke dischargers: entries with a place in the drawing.

#include "editors/form/list_dialog_win32.h"
#include "editors/unit/list_dialogs.h"
#include "editors/unit/unit_lists.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

/// The drawing shows the record, so the entries stand in it while they are edited; Cancel puts the former
/// back.
template <typename Entry>
bool editInPlace(HWND owner, EditContext& edit, std::vector<Entry>& entries, const ListShape<Entry>& shape,
                 std::string_view caption, int dialogTemplate, DLGPROC procedure) {
    const std::vector<Entry> former = entries;
    VectorListModel<Entry> model(entries, shape);
    ListDialog list{.model = model,
                    .caption = caption,
                    .preview = [](void* context) { static_cast<EditContext*>(context)->redraw(); },
                    .context = &edit,
                    .first = edit.firstShown};
    if (runDialog(owner, dialogTemplate, procedure, &list) != 0) {
        return entries != former;
    }
    entries = former;
    edit.redraw();
    return false;
}

INT_PTR CALLBACK exhaustPipesProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleListDialog(dialog, message, parameter, pointer);
}

INT_PTR CALLBACK smokeDischargersProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleListDialog(dialog, message, parameter, pointer);
}

} // namespace

bool editExhaustPipes(HWND owner, EditContext& edit) {
    return editInPlace(owner, edit, edit.record.vehicle->exhaustPipes, exhaustPipeShape(), "Exhaust Pipes",
                       IDD_EXHAUST_PIPES, exhaustPipesProcedure);
}

bool editSmokeDischargers(HWND owner, EditContext& edit, ComponentRecord& component) {
    return editInPlace(owner, edit, component.smokeDischargers, smokeDischargerShape(), "Smoke Dischargers",
                       IDD_SMOKE_DISCHARGERS, smokeDischargersProcedure);
}

} // namespace varrocade
