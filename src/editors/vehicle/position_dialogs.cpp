// Exhaust pipes and smoke dischargers: entries with a place in the drawing.

#include "editors/form/list_dialog_win32.h"
#include "editors/unit/list_dialogs.h"
#include "editors/unit/unit_lists.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

/// The drawing shows the record, so the entries stand in it while they are edited; Cancel puts the former
/// back.
class PositionDialog final : public ListDialog {
public:
    PositionDialog(const ListDialogTerms& terms, ListModel& model, EditContext& edit)
        : ListDialog(terms, model), edit_(edit) {}

private:
    void preview() override { edit_.redraw(); }

    EditContext& edit_;
};

template <typename Entry>
bool editInPlace(HWND owner, EditContext& edit, std::vector<Entry>& entries, const ListShape<Entry>& shape,
                 const ListDialogTerms& terms) {
    const std::vector<Entry> former = entries;
    VectorListModel<Entry> model(entries, shape);
    if (PositionDialog(terms, model, edit).run(owner)) {
        return entries != former;
    }
    entries = former;
    edit.redraw();
    return false;
}

} // namespace

bool editExhaustPipes(HWND owner, EditContext& edit) {
    return editInPlace(owner, edit, edit.record.vehicle->exhaustPipes, exhaustPipeShape(),
                       {.dialogTemplate = IDD_EXHAUST_PIPES,
                        .caption = "Exhaust Pipes",
                        .first = edit.firstShown,
                        .focus = edit.focus.field});
}

bool editSmokeDischargers(HWND owner, EditContext& edit, ComponentRecord& component) {
    return editInPlace(owner, edit, component.smokeDischargers, smokeDischargerShape(),
                       {.dialogTemplate = IDD_SMOKE_DISCHARGERS,
                        .caption = "Smoke Dischargers",
                        .first = edit.firstShown,
                        .title = captionOf(edit, "smoke dischargers"),
                        .focus = edit.focus.field});
}

} // namespace varrocade
