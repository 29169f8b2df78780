#include "editors/vehicle/component_dialogs.h"

#include "data/unit/component_words.h"
#include "editors/form/form_dialog_win32.h"
#include "editors/unit/list_dialogs.h"
#include "editors/vehicle/armour_dialog.h"
#include "editors/vehicle/component_form.h"
#include "resources/resource.h"

#include <array>
#include <utility>

namespace varrocade {

namespace {

/// What the buttons of the component dialogs open.
struct SubDialog {
    int control;
    bool (*open)(HWND owner, EditContext& edit, ComponentRecord& component);
    const char* change;
};

constexpr auto SubDialogs = std::to_array<SubDialog>({
    {IDC_CREW_BUTTON, editCrew, "Crew of "},
    {IDC_WEAPONS_BUTTON, editWeapons, "Weapons of "},
    {IDC_ARMOUR_BUTTON, editArmour, "Armour of "},
    {IDC_DISCHARGERS_BUTTON, editSmokeDischargers, "Smoke dischargers of "},
});

/// In the order of `ComponentKind`.
constexpr std::array<int, 4> KindTemplates = {IDD_HULL, IDD_SUPERSTRUCTURE, IDD_TURRET, IDD_FIXED_WEAPON};

/// The drawing shows the component, so what is typed stands in it at once; Cancel puts back what the dialog
/// itself has changed.
class ComponentDialog final : public FormDialog {
public:
    /// `title` names the component in the caption line and in the list of changes.
    ComponentDialog(EditContext& edit, ComponentRecord& component, const std::string& title)
        : FormDialog({.dialogTemplate = KindTemplates[static_cast<std::size_t>(component.kind)],
                      .caption = ComponentRefusalCaption,
                      .imageBases = edit.imageBases,
                      .focus = edit.focus.field},
                     form_),
          edit_(edit), component_(component), own_(component), title_(title), form_(own_, componentShape()) {
        for (const SubDialog& sub : SubDialogs) {
            onButton(sub.control, [this, &sub] { open(sub); });
        }
    }

private:
    void prepare() override {
        port().setText(IDC_CAPTION_LINE, title_);
        if (component_.kind == ComponentKind::Turret) {
            port().setText(IDC_NOT_STORED, form_.notStored());
        }
    }
    void preview() override {
        ComponentRecord typed = own_;
        readPossible(port(), componentShape(), typed);
        takeOwnFields(component_, std::move(typed));
        edit_.redraw();
    }
    bool accept() override {
        if (!take()) {
            return false;
        }
        takeOwnFields(component_, own_);
        edit_.changed("Edit " + title_);
        return true;
    }
    /// A step of the history holds what the button has opened, not what is only typed so far.
    void open(const SubDialog& sub) {
        if (sub.open(handle(), edit_, component_)) {
            takeOwnFields(component_, own_);
            edit_.changed(sub.change + title_);
        }
        preview();
    }

    EditContext& edit_;
    ComponentRecord& component_;
    ComponentRecord own_; ///< the fields of this dialog as they are without what is typed
    std::string title_;
    RecordForm<ComponentRecord> form_;
};

} // namespace

bool editComponent(HWND owner, EditContext& edit, std::size_t index) {
    ComponentRecord& component = edit.record.vehicle->components[index];
    edit.subject = componentName(index + 1, component.kind);
    const ComponentRecord former = component;
    if (ComponentDialog(edit, component, componentTitle(index + 1, component.kind)).run(owner)) {
        return true;
    }
    takeOwnFields(component, former);
    edit.redraw();
    return false;
}

} // namespace varrocade
