// The "Details" dialog of a vehicle.

#include "editors/vehicle/details_dialog.h"

#include "data/unit/component_words.h"
#include "data/unit/unit_consistency.h"
#include "editors/form/form_dialog_win32.h"
#include "editors/form/list_keys_win32.h"
#include "editors/unit/availability_dialog.h"
#include "editors/vehicle/component_dialogs.h"
#include "editors/vehicle/component_list.h"
#include "editors/vehicle/drive_dialog.h"
#include "editors/vehicle/vehicle_form.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace varrocade {

namespace {

// Private messages of the dialog.
constexpr UINT RefreshComponents = WM_APP + 1;
constexpr UINT UpdateMoveButtons = WM_APP + 2;

/// "Add New Component".
class AddComponentDialog final : public FormDialog {
public:
    explicit AddComponentDialog(NewComponent& component)
        : FormDialog({.dialogTemplate = IDD_ADD_COMPONENT, .caption = "Add New Component"}, form_),
          form_(component, newComponentShape()) {}

private:
    RecordForm<NewComponent> form_;
};

constexpr auto ComponentKeys = std::to_array<ListKey>({
    {VK_INSERT, false, IDC_ADD, "Adds a component (in the list: Insert)"},
    {VK_DELETE, false, IDC_REMOVE, "Deletes the component (in the list: Delete)"},
    {VK_UP, true, IDC_UP, "In the list: Alt+Up"},
    {VK_DOWN, true, IDC_DOWN, "In the list: Alt+Down"},
});

constexpr auto ComponentTips = std::to_array<Tip>({
    {IDC_COPY_COMPONENT, "Adds a copy of the component, with all that it carries"},
    {IDC_MIRROR_COMPONENT, "Adds a copy on the other side of the vehicle"},
    {IDC_EDIT_COMPONENT, "Opens the component, as a double-click or Enter on its line does"},
});

class DetailsDialog final : public FormDialog {
public:
    DetailsDialog(EditContext& edit, const DrawingObjects& drawing)
        : FormDialog({.dialogTemplate = IDD_DETAILS,
                      .caption = "Details",
                      .imageBases = edit.imageBases,
                      .changed = edit.changed,
                      .undoName = "Details",
                      .focus = edit.focus.field},
                     form_),
          edit_(edit), form_(edit.record, vehicleShape()) {
        onButton(IDC_ADD, [this] { addToList(); });
        onButton(IDC_REMOVE, [this] { deleteFromList(); });
        onButton(IDC_COPY_COMPONENT, [this] { addTwin(copyComponent, "Copy component"); });
        onButton(IDC_MIRROR_COMPONENT, [this] { addTwin(mirrorComponent, "Mirror component"); });
        onButton(IDC_EDIT_COMPONENT, [this] { openComponent(); });
        onButton(IDC_UP, [this] { moveInList(true); });
        onButton(IDC_DOWN, [this] { moveInList(false); });
        onButton(IDC_DRIVE, [this] {
            const std::int32_t former = vehicle().weight;
            editDrive(handle(), edit_);
            if (vehicle().weight != former) {
                // The estimate was taken there: this form would put the former weight back.
                port().setText(IDC_WEIGHT, std::to_string(vehicle().weight));
            }
        });
        onButton(IDC_AVAILABILITY, [this, &drawing] {
            if (editAvailability(handle(), edit_, drawing)) {
                edit_.changed("Availability");
            }
        });
    }

private:
    void prepare() override {
        bindListKeys(handle(), IDC_COMPONENTS, ComponentKeys);
        addTips(handle(), ComponentTips);
        refreshList();
    }
    /// Enter on a component opens it, as a double-click does.
    bool accept() override {
        if (GetFocus() == GetDlgItem(handle(), IDC_COMPONENTS) && GetKeyState(VK_RETURN) < 0) {
            openComponent();
            return false;
        }
        return FormDialog::accept();
    }
    bool notice(int control, int notification) override;
    bool receive(UINT message, WPARAM parameter, LPARAM detail) override;

    [[nodiscard]] VehicleRecord& vehicle() const { return *edit_.record.vehicle; }
    [[nodiscard]] std::optional<std::size_t> selected() const;
    void select(std::size_t index);
    void refreshList();
    void updateMoveButtons();
    [[nodiscard]] bool hasRoom();
    void addToList();
    void addTwin(void (*add)(VehicleRecord&, std::size_t), std::string_view change);
    void deleteFromList();
    void moveInList(bool upwards);
    void openComponent();

    EditContext& edit_;
    RecordForm<SquadRecord> form_;
};

bool DetailsDialog::notice(int control, int notification) {
    if (control != IDC_COMPONENTS) {
        return FormDialog::notice(control, notification);
    }
    if (notification == LBN_SELCHANGE) {
        SendMessageA(handle(), UpdateMoveButtons, 0, 0);
    } else if (notification == LBN_DBLCLK) {
        openComponent();
    }
    return true;
}

bool DetailsDialog::receive(UINT message, WPARAM, LPARAM) {
    if (message == RefreshComponents) {
        refreshList();
        return true;
    }
    if (message == UpdateMoveButtons) {
        updateMoveButtons();
        return true;
    }
    return false;
}

std::optional<std::size_t> DetailsDialog::selected() const {
    const LRESULT index = SendDlgItemMessageA(handle(), IDC_COMPONENTS, LB_GETCURSEL, 0, 0);
    if (index < 0 || static_cast<std::size_t>(index) >= vehicle().components.size()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(index);
}

void DetailsDialog::select(std::size_t index) {
    SendDlgItemMessageA(handle(), IDC_COMPONENTS, LB_SETCURSEL, index, 0);
    SendMessageA(handle(), UpdateMoveButtons, 0, 0);
}

void DetailsDialog::refreshList() {
    HWND list = GetDlgItem(handle(), IDC_COMPONENTS);
    const LRESULT index = SendMessageA(list, LB_GETCURSEL, 0, 0);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    for (std::size_t i = 0; i < vehicle().components.size(); ++i) {
        SendMessageA(list, LB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(componentLine(i + 1, vehicle().components[i]).c_str()));
    }
    SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageA(handle(), UpdateMoveButtons, 0, 0);
}

void DetailsDialog::updateMoveButtons() {
    const auto index = selected();
    HWND former = GetFocus();
    port().setEnabled(IDC_UP, index && canMoveUp(vehicle(), *index));
    port().setEnabled(IDC_DOWN, index && canMoveDown(vehicle(), *index));
    port().setEnabled(IDC_REMOVE, index.has_value());
    port().setEnabled(IDC_COPY_COMPONENT, index && canCopy(vehicle(), *index));
    port().setEnabled(IDC_MIRROR_COMPONENT, index && canCopy(vehicle(), *index));
    port().setEnabled(IDC_EDIT_COMPONENT, index.has_value());
    keepKeyboard(handle(), former, IDC_COMPONENTS);
}

/// False after telling that the vehicle is full.
bool DetailsDialog::hasRoom() {
    const auto full = componentRoomFinding(vehicle());
    if (full) {
        showMessage(
            {.text = full->message, .caption = std::string(SquadFullCaption), .icon = MessageIcon::Error});
    }
    return !full;
}

void DetailsDialog::addTwin(void (*add)(VehicleRecord&, std::size_t), std::string_view change) {
    const auto index = selected();
    if (!index || !canCopy(vehicle(), *index) || !hasRoom()) {
        return;
    }
    add(vehicle(), *index);
    edit_.changed(change);
    SendMessageA(handle(), RefreshComponents, 0, 0);
    select(vehicle().components.size() - 1);
}

void DetailsDialog::addToList() {
    if (!hasRoom()) {
        return;
    }
    NewComponent added;
    if (AddComponentDialog(added).run(handle())) {
        addComponent(vehicle(), added.kind);
        edit_.changed("Add " + newComponentName(added));
        SendMessageA(handle(), RefreshComponents, 0, 0);
        select(vehicle().components.size() - 1);
    }
}

void DetailsDialog::deleteFromList() {
    std::vector<ComponentRecord>& components = vehicle().components;
    const auto index = selected();
    if (!index) {
        return;
    }
    if (components[*index].kind == ComponentKind::Hull) {
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
    edit_.rearranged(placesWithout(components.size(), *index));
    components.erase(components.begin() + static_cast<std::ptrdiff_t>(*index));
    edit_.changed("Delete component");
    SendMessageA(handle(), RefreshComponents, 0, 0);
    if (!components.empty()) {
        select(std::min(*index, components.size() - 1));
    }
}

void DetailsDialog::moveInList(bool upwards) {
    const auto index = selected();
    if (!index || !(upwards ? canMoveUp(vehicle(), *index) : canMoveDown(vehicle(), *index))) {
        return;
    }
    const std::size_t other = upwards ? *index - 1 : *index + 1;
    edit_.rearranged(swappedPlaces(vehicle().components.size(), *index, other));
    std::swap(vehicle().components[*index], vehicle().components[other]);
    edit_.changed("Move component");
    SendMessageA(handle(), RefreshComponents, 0, 0);
    select(other);
}

void DetailsDialog::openComponent() {
    SendMessageA(handle(), UpdateMoveButtons, 0, 0);
    const auto index = selected();
    if (!index) {
        return;
    }
    editComponent(handle(), edit_, *index);
    edit_.redraw();
    SendMessageA(handle(), RefreshComponents, 0, 0);
    select(*index);
}

} // namespace

bool editVehicle(HWND owner, EditContext& edit, const DrawingObjects& drawing) {
    return DetailsDialog(edit, drawing).run(owner);
}

} // namespace varrocade
