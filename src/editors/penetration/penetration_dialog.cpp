#include "editors/penetration/penetration_dialog.h"

#include "editors/form/clipboard_win32.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/penetration/penetration_curves_win32.h"
#include "editors/penetration/penetration_form.h"
#include "resources/resource.h"
#include "view/painting/drawing_objects_win32.h"

#include <commctrl.h>
#include <windowsx.h>

#include <utility>

namespace varrocade {

namespace {

class PenetrationDialog final : public DialogFrame {
public:
    explicit PenetrationDialog(const PenetrationTools& tools)
        : DialogFrame(IDD_PENETRATION, "Penetration Calculation"), tools_(tools) {
        onButton(IDC_COPY_TABLE,
                 [this] { copyToClipboard(handle(), penetrationTable(port(), *weapon(), chart_.chosen)); });
        onButton(IDC_CAN_PENETRATE, [this] { askPlates(); });
    }

private:
    void init() override;
    bool accept() override { return true; }
    bool notice(int control, int notification) override;
    void paint(const DRAWITEMSTRUCT& item) override { paintChart(item, chart_, tools_.drawing); }

    [[nodiscard]] const WeaponRecord* weapon() const {
        const auto& entries = tools_.catalogue.entries();
        return place_ < entries.size() ? &entries[place_].weapon : nullptr;
    }
    void chooseWeapon(std::size_t place);
    void chooseShell(std::size_t shell);
    void recalculate();
    void computeCurves();
    void askPlates();
    static LRESULT CALLBACK curvesProcedure(HWND curves, UINT message, WPARAM parameter, LPARAM detail,
                                            UINT_PTR, DWORD_PTR data);

    const PenetrationTools& tools_;
    std::size_t place_ = 0;  ///< of the weapon in the catalogue
    PenetrationChart chart_; ///< of the weapon, for the angle and drag in the form
    bool isFilling_ = false;
};

void PenetrationDialog::init() {
    isFilling_ = true;
    port().setChoices(IDC_PEN_WEAPON, penetrationWeapons(tools_.catalogue));
    fillPenetrationDefaults(port());
    isFilling_ = false;
    SetWindowSubclass(GetDlgItem(handle(), IDC_CURVES), curvesProcedure, 0,
                      reinterpret_cast<DWORD_PTR>(this));
    const std::size_t first = firstPenetrationWeapon(tools_.catalogue, tools_.weapon);
    port().choose(IDC_PEN_WEAPON, first);
    chooseWeapon(first);
}

void PenetrationDialog::computeCurves() {
    chart_.curves.clear();
    if (weapon() == nullptr) {
        return;
    }
    const double factor = angleFactor(formAngle(port()));
    for (const AmmoTypeRecord& ammo : weapon()->ammoTypes) {
        PenetrationCurve curve =
            penetrationCurve(projectileOf(*weapon(), ammo), formDrag(port(), ammo.flavour));
        for (double& value : curve) {
            value *= factor;
        }
        chart_.curves.push_back(std::move(curve));
    }
}

void PenetrationDialog::recalculate() {
    isFilling_ = true;
    showPenetration(port(), weapon(), chart_.chosen);
    isFilling_ = false;
    computeCurves();
    port().setEnabled(IDC_COPY_TABLE, chart_.chosen < chart_.curves.size());
    InvalidateRect(GetDlgItem(handle(), IDC_CURVES), nullptr, FALSE);
}

void PenetrationDialog::chooseWeapon(std::size_t place) {
    place_ = place;
    chart_.names = weapon() != nullptr ? shellTypes(*weapon()) : std::vector<std::string>();
    port().setChoices(IDC_PEN_SHELL, chart_.names);
    port().choose(IDC_PEN_SHELL, 0);
    port().setText(IDC_PEN_NOTE, weaponFileNote(tools_.catalogue, place));
    chooseShell(0);
}

void PenetrationDialog::chooseShell(std::size_t shell) {
    chart_.chosen = shell;
    recalculate();
}

/// The same shot at a vehicle.
void PenetrationDialog::askPlates() {
    askWhatPenetrates(handle(), tools_,
                      {.weapon = place_, .shell = chart_.chosen, .drags = formDrags(port())});
}

bool PenetrationDialog::notice(int control, int notification) {
    if (control == IDC_PEN_WEAPON) {
        if (const auto place = followNames(control, notification, place_)) {
            chooseWeapon(*place);
        }
        return false;
    }
    if (isFilling_ || !isUserChange(notification)) {
        return false;
    }
    if (control == IDC_PEN_SHELL) {
        chooseShell(port().chosen(control).value_or(0));
        return true;
    }
    if (control == IDC_PEN_ANGLE && notification == CBN_SELCHANGE) {
        completeChoice(handle(), control);
    }
    recalculate();
    return true;
}

/// The mouse reads the curves, and a click chooses one.
LRESULT CALLBACK PenetrationDialog::curvesProcedure(HWND curves, UINT message, WPARAM parameter,
                                                    LPARAM detail, UINT_PTR, DWORD_PTR data) {
    auto& dialog = *reinterpret_cast<PenetrationDialog*>(data);
    if (pointAtChart(curves, message, detail, dialog.chart_, dialog.tools_.drawing)) {
        return 0;
    }
    if (message == WM_LBUTTONDOWN) {
        RECT area{};
        GetClientRect(curves, &area);
        const POINT point{GET_X_LPARAM(detail), GET_Y_LPARAM(detail)};
        if (const auto curve = chartCurveAt(area, point, dialog.chart_, dialog.tools_.drawing)) {
            dialog.port().choose(IDC_PEN_SHELL, *curve);
            dialog.chooseShell(*curve);
        }
        return 0;
    }
    return DefSubclassProc(curves, message, parameter, detail);
}

} // namespace

void calculatePenetration(HWND owner, const PenetrationTools& tools) {
    PenetrationDialog(tools).run(owner);
}

} // namespace varrocade
