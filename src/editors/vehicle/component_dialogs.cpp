#include "editors/vehicle/component_dialogs.h"

#include "data/unit/component_words.h"
#include "data/unit/image_names.h"
#include "editors/form/form_port_win32.h"
#include "editors/form/image_choices.h"
#include "editors/unit/list_dialogs.h"
#include "editors/vehicle/armour_dialog.h"
#include "editors/vehicle/component_form.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "view/drawing/image_folders.h"

#include <array>

namespace varrocade {

namespace {

struct ComponentDialog {
    EditContext& edit;
    std::size_t index;

    [[nodiscard]] ComponentRecord& component() const { return edit.record.vehicle->components[index]; }
    /// Names the component in captions and in the list of changes.
    [[nodiscard]] std::string title() const { return componentTitle(index + 1, component().kind); }
};

constexpr std::string_view GenericPrefix = "Image-";

constexpr auto HullImages =
    std::to_array<ImageSource>({{image_folder::Hulls}, {image_folder::Units, GenericPrefix}});
constexpr auto TurretImages =
    std::to_array<ImageSource>({{image_folder::Turrets}, {image_folder::Units, GenericPrefix}});
constexpr auto DestroyedImages = std::to_array<ImageSource>({{image_folder::Destroyed}});

constexpr auto ImageFields =
    std::to_array<ChoiceField>({{IDC_VIEW_IMAGE, "Image"}, {IDC_DESTROYED_IMAGE, "Destroyed"}});

/// A superstructure has no destroyed image.
std::span<const ChoiceField> knownChoices(ComponentKind kind) {
    return std::span(ImageFields).first(kind == ComponentKind::Superstructure ? 1 : 2);
}

void fillDialog(HWND dialog, const ComponentDialog& context) {
    DialogPort port(dialog);
    const ComponentRecord& component = context.component();
    const bool hasHullImages =
        component.kind == ComponentKind::Hull || component.kind == ComponentKind::Superstructure;
    const std::span<const ImageSource> sources =
        hasHullImages ? std::span<const ImageSource>(HullImages) : TurretImages;
    port.setChoices(IDC_VIEW_IMAGE, imageChoices(context.edit.imageBases, sources));
    if (component.kind != ComponentKind::Superstructure) {
        port.setChoices(IDC_DESTROYED_IMAGE, imageChoices(context.edit.imageBases, DestroyedImages));
    }
    port.setText(IDC_CAPTION_LINE, context.title());
    fillComponentForm(port, component);
    showUnknownChoices(dialog, knownChoices(component.kind));
}

void takeDialog(HWND dialog, ComponentDialog& context) {
    DialogPort port(dialog);
    if (const auto error = readComponentForm(port, context.component())) {
        showMessage({.text = error->message, .caption = error->caption, .icon = MessageIcon::Information});
        port.focus(error->control);
        return;
    }
    context.edit.changed("Edit " + context.title());
    EndDialog(dialog, 1);
}

/// What the buttons of the component dialogs open.
struct SubDialog {
    int control;
    bool (*open)(HWND owner, EditContext& edit, ComponentRecord& component);
    std::string_view change;
};

constexpr auto SubDialogs = std::to_array<SubDialog>({
    {IDC_CREW_BUTTON, editCrew, "Crew of "},
    {IDC_WEAPONS_BUTTON, editWeapons, "Weapons of "},
    {IDC_ARMOUR_BUTTON, editArmour, "Armour of "},
    {IDC_DISCHARGERS_BUTTON, editSmokeDischargers, "Smoke dischargers of "},
});

bool openSubDialog(HWND dialog, ComponentDialog& context, int control) {
    for (const SubDialog& sub : SubDialogs) {
        if (sub.control == control) {
            if (sub.open(dialog, context.edit, context.component())) {
                context.edit.changed(std::string(sub.change) + context.title());
            } else {
                context.edit.redraw();
            }
            return true;
        }
    }
    return false;
}

INT_PTR handleComponentDialog(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<ComponentDialog>(dialog, message, pointer);
    if (message == WM_INITDIALOG) {
        placeBesideDrawing(dialog);
        fillDialog(dialog, *context);
        return TRUE;
    }
    if (message != WM_COMMAND) {
        return FALSE;
    }
    switch (LOWORD(parameter)) {
    case IDOK:
        takeDialog(dialog, *context);
        return TRUE;
    case IDCANCEL:
        EndDialog(dialog, 0);
        return TRUE;
    case IDC_LIMITED_TRAVERSE: {
        DialogPort port(dialog);
        enableTraverse(port);
        return TRUE;
    }
    default:
        return followChoices(dialog, knownChoices(context->component().kind), LOWORD(parameter),
                             HIWORD(parameter)) ||
                       openSubDialog(dialog, *context, LOWORD(parameter))
                   ? TRUE
                   : FALSE;
    }
}

INT_PTR CALLBACK hullProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleComponentDialog(dialog, message, parameter, pointer);
}

INT_PTR CALLBACK superstructureProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleComponentDialog(dialog, message, parameter, pointer);
}

INT_PTR CALLBACK turretProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleComponentDialog(dialog, message, parameter, pointer);
}

INT_PTR CALLBACK fixedWeaponProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    return handleComponentDialog(dialog, message, parameter, pointer);
}

struct KindDialog {
    int dialogTemplate;
    DLGPROC procedure;
};

/// In the order of `ComponentKind`.
constexpr std::array<KindDialog, 4> KindDialogs = {{
    {IDD_HULL, hullProcedure},
    {IDD_SUPERSTRUCTURE, superstructureProcedure},
    {IDD_TURRET, turretProcedure},
    {IDD_FIXED_WEAPON, fixedWeaponProcedure},
}};

} // namespace

bool editComponent(HWND owner, EditContext& edit, std::size_t index) {
    ComponentDialog context{.edit = edit, .index = index};
    const KindDialog& kind = KindDialogs[static_cast<std::size_t>(context.component().kind)];
    return runDialog(owner, kind.dialogTemplate, kind.procedure, &context) != 0;
}

} // namespace varrocade
