// The "Details" dialog.

#include "editors/vehicle/vehicle_editor.h"

#include "data/unit/component_words.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "editors/form/form_port_win32.h"
#include "editors/form/image_choices.h"
#include "editors/form/list_keys_win32.h"
#include "editors/unit/availability_dialog.h"
#include "editors/vehicle/component_dialogs.h"
#include "editors/vehicle/component_list.h"
#include "editors/vehicle/drive_dialog.h"
#include "editors/vehicle/vehicle_form.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "view/drawing/image_folders.h"

#include <array>

namespace varrocade {

namespace {

/// What the dialog works on.
struct VehicleEditor {
    EditContext& edit;
    const DrawingObjects& drawing;

    [[nodiscard]] VehicleRecord& vehicle() const { return *edit.record.vehicle; }
};

// Private messages of the dialog.
constexpr UINT RefreshComponents = WM_APP + 1;
constexpr UINT UpdateMoveButtons = WM_APP + 2;

// ---- "Add New Component"

struct NewComponent {
    std::string_view name;
    ComponentKind kind;
};

constexpr auto NewComponents = std::to_array<NewComponent>({
    {"Superstructure", ComponentKind::Superstructure},
    {"Fixed Weapon", ComponentKind::FixedWeapon},
    {"Turret", ComponentKind::Turret},
});

INT_PTR CALLBACK addComponentProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<VehicleEditor>(dialog, message, pointer);
    if (message == WM_INITDIALOG) {
        placeBesideDrawing(dialog);
        std::vector<std::string> names;
        names.reserve(NewComponents.size());
        for (const NewComponent& row : NewComponents) {
            names.emplace_back(row.name);
        }
        DialogPort(dialog).setChoices(IDC_COMPONENT_KIND, names);
        SendDlgItemMessageA(dialog, IDC_COMPONENT_KIND, CB_SETCURSEL, 0, 0);
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(parameter) == IDOK) {
        const LRESULT chosen = SendDlgItemMessageA(dialog, IDC_COMPONENT_KIND, CB_GETCURSEL, 0, 0);
        if (chosen >= 0 && static_cast<std::size_t>(chosen) < NewComponents.size()) {
            const NewComponent& row = NewComponents[static_cast<std::size_t>(chosen)];
            addComponent(context->vehicle(), row.kind);
            context->edit.changed("Add " + std::string(row.name));
            EndDialog(dialog, 1);
        }
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(parameter) == IDCANCEL) {
        EndDialog(dialog, 0);
        return TRUE;
    }
    return FALSE;
}

// ---- the component list

constexpr auto ComponentKeys = std::to_array<ListKey>({
    {VK_INSERT, false, IDC_ADD, "Adds a component (in the list: Insert)"},
    {VK_DELETE, false, IDC_REMOVE, "Deletes the component (in the list: Delete)"},
    {VK_UP, true, IDC_UP, "In the list: Alt+Up"},
    {VK_DOWN, true, IDC_DOWN, "In the list: Alt+Down"},
});
constexpr std::span<const ListKey> ComponentKeyTable = ComponentKeys;

std::optional<std::size_t> selectedComponent(HWND dialog, const VehicleRecord& vehicle) {
    const LRESULT selected = SendDlgItemMessageA(dialog, IDC_COMPONENTS, LB_GETCURSEL, 0, 0);
    if (selected < 0 || static_cast<std::size_t>(selected) >= vehicle.components.size()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(selected);
}

void selectComponent(HWND dialog, std::size_t index) {
    SendDlgItemMessageA(dialog, IDC_COMPONENTS, LB_SETCURSEL, index, 0);
    SendMessageA(dialog, UpdateMoveButtons, 0, 0);
}

void refreshComponents(HWND dialog, const VehicleRecord& vehicle) {
    HWND list = GetDlgItem(dialog, IDC_COMPONENTS);
    const LRESULT selected = SendMessageA(list, LB_GETCURSEL, 0, 0);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    for (std::size_t i = 0; i < vehicle.components.size(); ++i) {
        SendMessageA(list, LB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(componentLine(i + 1, vehicle.components[i]).c_str()));
    }
    SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
    SendMessageA(dialog, UpdateMoveButtons, 0, 0);
}

void updateMoveButtons(HWND dialog, const VehicleRecord& vehicle) {
    const auto selected = selectedComponent(dialog, vehicle);
    HWND former = GetFocus();
    DialogPort port(dialog);
    port.setEnabled(IDC_UP, selected && canMoveUp(vehicle, *selected));
    port.setEnabled(IDC_DOWN, selected && canMoveDown(vehicle, *selected));
    port.setEnabled(IDC_REMOVE, selected.has_value());
    keepKeyboard(dialog, former, IDC_COMPONENTS);
}

void addToList(HWND dialog, VehicleEditor& context) {
    const std::vector<ComponentRecord>& components = context.vehicle().components;
    if (components.size() >= MaxSquadMembers) {
        showMessage({.text = std::string(TooManyComponentsText),
                     .caption = std::string(SquadFullCaption),
                     .icon = MessageIcon::Error});
        return;
    }
    if (runDialog(dialog, IDD_ADD_COMPONENT, addComponentProcedure, &context) != 0) {
        SendMessageA(dialog, RefreshComponents, 0, 0);
        selectComponent(dialog, components.size() - 1);
    }
}

void deleteFromList(HWND dialog, VehicleEditor& context) {
    std::vector<ComponentRecord>& components = context.vehicle().components;
    const auto selected = selectedComponent(dialog, context.vehicle());
    if (!selected) {
        return;
    }
    if (components[*selected].kind == ComponentKind::Hull) {
        showMessage({.text = std::string(DeleteHullText),
                     .caption = std::string(DeleteComponentCaption),
                     .icon = MessageIcon::Information});
        return;
    }
    const Answer answer = showMessage({.text = std::string(DeleteComponentText),
                                       .caption = std::string(DeleteComponentCaption),
                                       .buttons = MessageButtons::YesNo,
                                       .icon = MessageIcon::Question});
    if (answer != Answer::Yes) {
        return;
    }
    context.edit.rearranged(placesWithout(components.size(), *selected));
    components.erase(components.begin() + static_cast<std::ptrdiff_t>(*selected));
    context.edit.changed("Delete component");
    SendMessageA(dialog, RefreshComponents, 0, 0);
    if (!components.empty()) {
        selectComponent(dialog, std::min(*selected, components.size() - 1));
    }
}

void moveInList(HWND dialog, VehicleEditor& context, bool upwards) {
    VehicleRecord& vehicle = context.vehicle();
    const auto selected = selectedComponent(dialog, vehicle);
    if (!selected || !(upwards ? canMoveUp(vehicle, *selected) : canMoveDown(vehicle, *selected))) {
        return;
    }
    const std::size_t other = upwards ? *selected - 1 : *selected + 1;
    context.edit.rearranged(swappedPlaces(vehicle.components.size(), *selected, other));
    std::swap(vehicle.components[*selected], vehicle.components[other]);
    context.edit.changed("Move component");
    SendMessageA(dialog, RefreshComponents, 0, 0);
    selectComponent(dialog, other);
}

void openComponent(HWND dialog, VehicleEditor& context) {
    SendMessageA(dialog, UpdateMoveButtons, 0, 0);
    const auto selected = selectedComponent(dialog, context.vehicle());
    if (!selected) {
        return;
    }
    editComponent(dialog, context.edit, *selected);
    context.edit.redraw();
    SendMessageA(dialog, RefreshComponents, 0, 0);
    selectComponent(dialog, *selected);
}

// ---- the dialog

/// A drop-down list that offers pictures.
struct ImageList {
    int control;
    std::array<ImageSource, 2> sources;
};

constexpr auto ImageLists = std::to_array<ImageList>({
    {IDC_PROFILE_IMAGE, {{{image_folder::Profiles}, {image_folder::Units, "Profile-"}}}},
    {IDC_UNIFORM_PROFILE, {{{image_folder::Units, "Profile-"}, {image_folder::Uniforms, "uniform_"}}}},
    {IDC_UNIFORM_GAME, {{{image_folder::Uniforms, "uniform_game"}, {image_folder::Uniforms, "uniform_"}}}},
    {IDC_UNIFORM_RANKS, {{{image_folder::Uniforms, "uniform_ranks"}, {image_folder::Uniforms, "uniform_"}}}},
    {IDC_UNIFORM_NAME, {{{image_folder::Uniforms}, {image_folder::Units, "Profile-"}}}},
});

constexpr auto KnownChoices = std::to_array<ChoiceField>({
    {IDC_NATIONALITY, "Nationality"},
    {IDC_TYPE, "Type"},
    {IDC_PROFILE_IMAGE, "Control panel image"},
    {IDC_UNIFORM_PROFILE, "Profile image"},
    {IDC_UNIFORM_GAME, "Game image"},
    {IDC_UNIFORM_RANKS, "Rank Image"},
    {IDC_UNIFORM_NAME, "Uniform"},
});

std::vector<std::string> strings(std::span<const std::string_view> names) {
    return {names.begin(), names.end()};
}

void fillDialog(HWND dialog, const VehicleEditor& context) {
    DialogPort port(dialog);
    port.setChoices(IDC_NATIONALITY, strings(nationalityNames()));
    port.setChoices(IDC_TYPE, strings(unitTypeNames()));
    for (const ImageList& list : ImageLists) {
        std::vector<std::string> choices = imageChoices(context.edit.imageBases, list.sources);
        choices.insert(choices.begin(), std::string(DefaultImageName));
        port.setChoices(list.control, choices);
    }
    fillVehicleForm(port, context.edit.record);
    showUnknownChoices(dialog, KnownChoices);
    bindListKeys(dialog, IDC_COMPONENTS, ComponentKeyTable);
    refreshComponents(dialog, context.vehicle());
}

void saveDialog(HWND dialog, VehicleEditor& context) {
    DialogPort port(dialog);
    if (const auto error = readVehicleForm(port, context.edit.record)) {
        port.focus(error->control);
        showMessage({.text = error->message, .caption = "Details", .icon = MessageIcon::Information});
        return;
    }
    context.edit.changed("Details");
    EndDialog(dialog, 1);
}

INT_PTR handleCommand(HWND dialog, VehicleEditor& context, WORD control, WORD notification) {
    switch (control) {
    case IDOK:
        // Enter on a component opens it, as a double-click does.
        if (GetFocus() == GetDlgItem(dialog, IDC_COMPONENTS) && GetKeyState(VK_RETURN) < 0) {
            openComponent(dialog, context);
        } else {
            saveDialog(dialog, context);
        }
        return TRUE;
    case IDCANCEL:
        EndDialog(dialog, 0);
        return TRUE;
    case IDC_UNIFORM_NEW_METHOD:
    case IDC_UNIFORM_OLD_METHOD: {
        DialogPort port(dialog);
        enableUniformLists(port);
        return TRUE;
    }
    case IDC_ADD:
        addToList(dialog, context);
        return TRUE;
    case IDC_REMOVE:
        deleteFromList(dialog, context);
        return TRUE;
    case IDC_UP:
    case IDC_DOWN:
        moveInList(dialog, context, control == IDC_UP);
        return TRUE;
    case IDC_COMPONENTS:
        if (notification == LBN_SELCHANGE) {
            SendMessageA(dialog, UpdateMoveButtons, 0, 0);
        } else if (notification == LBN_DBLCLK) {
            openComponent(dialog, context);
        }
        return TRUE;
    case IDC_DRIVE:
        editDrive(dialog, context.edit);
        return TRUE;
    case IDC_AVAILABILITY:
        if (editAvailability(dialog, context.edit, context.drawing)) {
            context.edit.changed("Availability");
        }
        return TRUE;
    default:
        return followChoices(dialog, KnownChoices, control, notification) ? TRUE : FALSE;
    }
}

INT_PTR CALLBACK detailsProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<VehicleEditor>(dialog, message, pointer);
    switch (message) {
    case WM_INITDIALOG:
        placeBesideDrawing(dialog);
        fillDialog(dialog, *context);
        return TRUE;
    case RefreshComponents:
        refreshComponents(dialog, context->vehicle());
        return TRUE;
    case UpdateMoveButtons:
        updateMoveButtons(dialog, context->vehicle());
        return TRUE;
    case WM_COMMAND:
        return handleCommand(dialog, *context, LOWORD(parameter), HIWORD(parameter));
    default:
        return FALSE;
    }
}

} // namespace

bool editVehicle(HWND owner, EditContext& edit, const DrawingObjects& drawing) {
    VehicleEditor context{.edit = edit, .drawing = drawing};
    return runDialog(owner, IDD_DETAILS, detailsProcedure, &context) != 0;
}

} // namespace varrocade
