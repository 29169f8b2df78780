#include "editors/penetration/can_penetrate_dialog.h"

#include "data/format/numbers.h"
#include "data/reading/unit_reader.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/dialog_frame_win32.h"
#include "editors/form/table_win32.h"
#include "editors/penetration/penetration_form.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "view/drawing/plate_outline.h"
#include "view/painting/drawing_objects_win32.h"
#include "view/painting/painter_win32.h"

#include <commctrl.h>
#include <windowsx.h>

#include <array>
#include <cmath>
#include <utility>

namespace varrocade {

namespace {

constexpr std::array<TableColumn, PlateRangeHeads.size()> PlateRangeColumns = {{
    {PlateRangeHeads[0], 108},
    {PlateRangeHeads[1], 74},
    {PlateRangeHeads[2], 70, true},
    {PlateRangeHeads[3], 44, true},
    {PlateRangeHeads[4], 96},
}};

/// From blue, which holds, to red, which is gone through everywhere; told apart by the colour-blind too.
constexpr std::array<COLORREF, 6> BandColours = {RGB(69, 117, 180),  RGB(145, 191, 219), RGB(224, 243, 248),
                                                 RGB(254, 224, 144), RGB(252, 141, 89),  RGB(215, 48, 39)};
constexpr COLORREF NoPlateColour = RGB(255, 255, 255);
constexpr int LegendRow = 15; // pixels at 96 dpi, as the margin
constexpr int OutlineMargin = 10;

class CanPenetrateDialog final : public DialogFrame {
public:
    CanPenetrateDialog(const PenetrationTools& tools, Shot shot)
        : DialogFrame(IDD_CAN_PENETRATE, "Can It Penetrate?"), tools_(tools), shot_(std::move(shot)) {
        onButton(IDC_COPY_TABLE, [this] { copyRanges(); });
    }

private:
    void init() override;
    bool accept() override { return true; }
    bool notice(int control, int notification) override;
    bool receive(UINT message, WPARAM parameter, LPARAM detail) override;
    void paint(const DRAWITEMSTRUCT& item) override;

    [[nodiscard]] const WeaponRecord* weapon() const;
    [[nodiscard]] const AmmoTypeRecord* ammo() const;
    [[nodiscard]] bool isOpenUnit(const GameFile& file) const;
    void chooseVehicle(std::size_t place);
    void chooseWeapon(std::size_t place, std::size_t shell);
    void chooseShell(std::size_t shell);
    void showDrag();
    void recalculate();
    void copyRanges();

    [[nodiscard]] std::optional<std::size_t> selectedPlate() const;
    void selectPlate(std::size_t plate) const;
    void showPointed();
    [[nodiscard]] Fit outlineFit(const RECT& area) const;
    [[nodiscard]] std::optional<std::size_t> plateBelow(HWND outline, LPARAM place) const;
    void paintPatches(HDC device, const RECT& area, std::optional<std::size_t> marked) const;
    static LRESULT CALLBACK outlineProcedure(HWND outline, UINT message, WPARAM parameter, LPARAM detail,
                                             UINT_PTR, DWORD_PTR data);

    const PenetrationTools& tools_;
    Shot shot_;
    std::vector<GameFile> vehicles_;
    std::size_t vehicle_ = 0; ///< among the files
    std::optional<SquadRecord> target_;
    std::vector<PlateRange> ranges_;
    PlateOutline outline_;
    std::optional<std::size_t> pointed_; ///< the plate below the mouse
    bool isFilling_ = false;
};

const WeaponRecord* CanPenetrateDialog::weapon() const {
    const auto& entries = tools_.catalogue.entries();
    return shot_.weapon < entries.size() ? &entries[shot_.weapon].weapon : nullptr;
}

const AmmoTypeRecord* CanPenetrateDialog::ammo() const {
    const WeaponRecord* chosen = weapon();
    return chosen != nullptr && shot_.shell < chosen->ammoTypes.size() ? &chosen->ammoTypes[shot_.shell]
                                                                       : nullptr;
}

bool CanPenetrateDialog::isOpenUnit(const GameFile& file) const {
    const SquadRecord* open = tools_.openUnit;
    return open != nullptr && open->vehicle && open->fileName == file.name.c_str();
}

void CanPenetrateDialog::init() {
    prepareTable(GetDlgItem(handle(), IDC_PLATE_TABLE), PlateRangeColumns);
    vehicles_ = listGameFiles(tools_.folders, Category::Vehicles).files;
    std::vector<std::string> names;
    for (const GameFile& file : vehicles_) {
        if (isOpenUnit(file)) {
            vehicle_ = names.size();
        }
        names.push_back(file.name);
    }
    port().setChoices(IDC_TARGET_VEHICLE, names);
    port().choose(IDC_TARGET_VEHICLE, vehicle_);
    port().setChoices(IDC_SHOT_WEAPON, penetrationWeapons(tools_.catalogue));
    port().choose(IDC_SHOT_WEAPON, shot_.weapon);
    SetWindowSubclass(GetDlgItem(handle(), IDC_PLATE_OUTLINE), outlineProcedure, 0,
                      reinterpret_cast<DWORD_PTR>(this));
    chooseWeapon(shot_.weapon, shot_.shell);
    chooseVehicle(vehicle_);
}

bool CanPenetrateDialog::notice(int control, int notification) {
    if (control == IDC_TARGET_VEHICLE) {
        if (const auto place = followNames(control, notification, vehicle_)) {
            chooseVehicle(*place);
        }
    } else if (control == IDC_SHOT_WEAPON) {
        if (const auto place = followNames(control, notification, shot_.weapon)) {
            chooseWeapon(*place, 0);
        }
    } else if (control == IDC_SHOT_SHELL && notification == CBN_SELCHANGE) {
        chooseShell(port().chosen(control).value_or(0));
    } else if (control == IDC_SHOT_DRAG && notification == EN_CHANGE && !isFilling_ && ammo() != nullptr) {
        shot_.drags[static_cast<std::size_t>(dragClassOf(ammo()->flavour))] = port().text(control);
        recalculate();
    }
    return false;
}

bool CanPenetrateDialog::receive(UINT message, WPARAM, LPARAM detail) {
    if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(detail)->code == LVN_ITEMCHANGED) {
        showPointed();
    }
    return false;
}

void CanPenetrateDialog::chooseVehicle(std::size_t place) {
    vehicle_ = place;
    target_.reset();
    if (place < vehicles_.size()) {
        const GameFile& file = vehicles_[place];
        if (isOpenUnit(file)) {
            target_ = *tools_.openUnit;
        } else {
            Diagnostics diagnostics;
            target_ = readUnitFile(file.path, file.name, diagnostics);
            if (!target_) {
                showCouldNotLoad(file.path);
            }
        }
    }
    recalculate();
}

void CanPenetrateDialog::chooseWeapon(std::size_t place, std::size_t shell) {
    shot_.weapon = place;
    port().setChoices(IDC_SHOT_SHELL,
                      weapon() != nullptr ? shellTypes(*weapon()) : std::vector<std::string>());
    port().choose(IDC_SHOT_SHELL, shell);
    chooseShell(shell);
}

void CanPenetrateDialog::chooseShell(std::size_t shell) {
    shot_.shell = shell;
    showDrag();
    recalculate();
}

/// The wind resistance of the ammunition's class.
void CanPenetrateDialog::showDrag() {
    isFilling_ = true;
    port().setEnabled(IDC_SHOT_DRAG, ammo() != nullptr);
    if (ammo() == nullptr) {
        port().setText(IDC_SHOT_DRAG, "");
        port().setText(IDC_SHOT_DRAG_CLASS, "");
    } else {
        const auto place = static_cast<std::size_t>(dragClassOf(ammo()->flavour));
        port().setText(IDC_SHOT_DRAG, shot_.drags[place]);
        port().setText(IDC_SHOT_DRAG_CLASS,
                       "% of the velocity over 1,000 m, for " + std::string(dragClasses()[place].name));
    }
    isFilling_ = false;
}

void CanPenetrateDialog::recalculate() {
    const bool hasTarget = target_ && target_->vehicle;
    ranges_.clear();
    pointed_.reset();
    if (hasTarget && ammo() != nullptr) {
        const double drag = toReal(shot_.drags[static_cast<std::size_t>(dragClassOf(ammo()->flavour))]);
        ranges_ = plateRanges(*target_->vehicle, penetrationCurve(projectileOf(*weapon(), *ammo()), drag));
    }
    outline_ = hasTarget ? plateOutline(*target_->vehicle, ranges_) : PlateOutline();
    HWND table = GetDlgItem(handle(), IDC_PLATE_TABLE);
    const auto selected = selectedPlate();
    SendMessageA(table, WM_SETREDRAW, FALSE, 0);
    ListView_DeleteAllItems(table);
    for (const PlateRange& range : ranges_) {
        auto cells = plateRangeCells(*target_->vehicle, range);
        addTableRow(table, cells);
    }
    if (selected) {
        selectPlate(*selected);
    }
    SendMessageA(table, WM_SETREDRAW, TRUE, 0);
    port().setEnabled(IDC_COPY_TABLE, !ranges_.empty());
    showPointed();
}

void CanPenetrateDialog::copyRanges() {
    const PenetrationQuestion question{.vehicle = target_->fileName.str(),
                                       .weapon = weapon()->fileName,
                                       .shell = shellTypes(*weapon())[shot_.shell],
                                       .drag = port().text(IDC_SHOT_DRAG)};
    copyToClipboard(handle(), plateRangeTable(question, *target_->vehicle, ranges_));
}

// ---- the table

std::optional<std::size_t> CanPenetrateDialog::selectedPlate() const {
    const int row = selectedTableRow(GetDlgItem(handle(), IDC_PLATE_TABLE));
    return row >= 0 && static_cast<std::size_t>(row) < ranges_.size()
               ? std::optional(static_cast<std::size_t>(row))
               : std::nullopt;
}

void CanPenetrateDialog::selectPlate(std::size_t plate) const {
    HWND table = GetDlgItem(handle(), IDC_PLATE_TABLE);
    ListView_SetItemState(table, static_cast<int>(plate), LVIS_SELECTED | LVIS_FOCUSED,
                          LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(table, static_cast<int>(plate), FALSE);
}

void CanPenetrateDialog::showPointed() {
    const auto shown = pointed_ ? pointed_ : selectedPlate();
    port().setText(IDC_POINTED_PLATE,
                   shown ? plateRangeSentence(*target_->vehicle, ranges_[*shown]) : std::string());
    InvalidateRect(GetDlgItem(handle(), IDC_PLATE_OUTLINE), nullptr, FALSE);
}

// ---- the drawing

int legendHeight(const DrawingObjects& drawing) {
    const int rows = static_cast<int>(BandColours.size() + 2) / 2;
    return drawing.scaled(rows * LegendRow + OutlineMargin / 2);
}

Fit CanPenetrateDialog::outlineFit(const RECT& area) const {
    DrawList extent;
    extent.least = outline_.least;
    extent.greatest = outline_.greatest;
    const DrawingObjects& drawing = tools_.drawing;
    return fitInto(extent, area.right, area.bottom - legendHeight(drawing), drawing.scaled(OutlineMargin));
}

void paintPatch(HDC device, const OutlinePatch& patch, const Fit& fit) {
    std::vector<POINT> corners;
    for (const Point& corner : patch.corners) {
        corners.push_back({static_cast<LONG>(std::lround(fit.screenX(corner.x))),
                           static_cast<LONG>(std::lround(fit.screenY(corner.y)))});
    }
    Polygon(device, corners.data(), static_cast<int>(corners.size()));
}

void CanPenetrateDialog::paintPatches(HDC device, const RECT& area, std::optional<std::size_t> marked) const {
    const Fit fit = outlineFit(area);
    const GdiObject<HBRUSH> none(CreateSolidBrush(NoPlateColour));
    std::array<GdiObject<HBRUSH>, BandColours.size()> brushes;
    for (std::size_t i = 0; i < brushes.size(); ++i) {
        brushes[i] = GdiObject<HBRUSH>(CreateSolidBrush(BandColours[i]));
    }
    const GdiObject<HPEN> markPen(CreatePen(PS_SOLID, tools_.drawing.scaled(3), RGB(0, 0, 0)));
    for (const OutlinePatch& patch : outline_.patches) {
        const HBRUSH colour =
            patch.plate ? brushes[rangeBandOf(ranges_[*patch.plate].range)].get() : none.get();
        const Selection brush(device, colour);
        const Selection pen(device,
                            marked && patch.plate == marked ? markPen.get() : tools_.drawing.blackPen.get());
        paintPatch(device, patch, fit);
    }
}

void paintLegend(HDC device, const RECT& area, const DrawingObjects& drawing) {
    const int row = drawing.scaled(LegendRow);
    const int margin = drawing.scaled(OutlineMargin);
    const auto bands = rangeBands();
    for (std::size_t i = 0; i <= BandColours.size(); ++i) {
        const bool isBand = i < bands.size();
        const auto rows = static_cast<int>(BandColours.size() + 2) / 2;
        const int x = area.left + margin + static_cast<int>(i) / rows * ((area.right - area.left) / 2);
        const int y = area.bottom - (rows - static_cast<int>(i) % rows) * row;
        const GdiObject<HBRUSH> brush(CreateSolidBrush(isBand ? BandColours[i] : NoPlateColour));
        const Selection selected(device, brush.get());
        Rectangle(device, x, y, x + row, y + row - drawing.scaled(3));
        const std::string words(isBand ? bands[i].name : "top, or no plate");
        TextOutA(device, x + row + drawing.scaled(4), y - 1, words.data(), static_cast<int>(words.size()));
    }
}

void CanPenetrateDialog::paint(const DRAWITEMSTRUCT& item) {
    const DrawingObjects& drawing = tools_.drawing;
    const RECT& area = item.rcItem;
    const MemoryBitmap memory(item.hDC, area.right, area.bottom);
    HDC device = memory.device();
    FillRect(device, &area, drawing.beigeBrush.get());
    const Selection font(device, drawing.smallFont.get());
    SetBkMode(device, TRANSPARENT);
    const std::string front = "front";
    const int margin = drawing.scaled(4);
    TextOutA(device, area.left + margin, area.top + margin, front.data(), static_cast<int>(front.size()));
    const Selection pen(device, drawing.blackPen.get());
    paintPatches(device, area, pointed_ ? pointed_ : selectedPlate());
    paintLegend(device, area, drawing);
    BitBlt(item.hDC, 0, 0, area.right, area.bottom, device, 0, 0, SRCCOPY);
}

std::optional<std::size_t> CanPenetrateDialog::plateBelow(HWND outline, LPARAM place) const {
    RECT area{};
    GetClientRect(outline, &area);
    const Fit fit = outlineFit(area);
    const double centimetres = 100.0 / fit.pixelsPerMetre;
    return plateAt(outline_, {(GET_X_LPARAM(place) - fit.originX) * centimetres,
                              (fit.originY - GET_Y_LPARAM(place)) * centimetres});
}

/// The mouse names the plate that it points to; a click selects it in the table.
LRESULT CALLBACK CanPenetrateDialog::outlineProcedure(HWND outline, UINT message, WPARAM parameter,
                                                      LPARAM detail, UINT_PTR, DWORD_PTR data) {
    auto& dialog = *reinterpret_cast<CanPenetrateDialog*>(data);
    if (message == WM_MOUSEMOVE || message == WM_MOUSELEAVE) {
        const auto plate =
            message == WM_MOUSEMOVE ? dialog.plateBelow(outline, detail) : std::optional<std::size_t>();
        if (plate != dialog.pointed_) {
            dialog.pointed_ = plate;
            dialog.showPointed();
        }
        TRACKMOUSEEVENT track{
            .cbSize = sizeof(track), .dwFlags = TME_LEAVE, .hwndTrack = outline, .dwHoverTime = 0};
        TrackMouseEvent(&track);
        return 0;
    }
    if (message == WM_LBUTTONDOWN) {
        if (const auto plate = dialog.plateBelow(outline, detail)) {
            dialog.selectPlate(*plate);
        }
        return 0;
    }
    return DefSubclassProc(outline, message, parameter, detail);
}

} // namespace

void askWhatPenetrates(HWND owner, const PenetrationTools& tools, const Shot& shot) {
    CanPenetrateDialog(tools, shot).run(owner);
}

} // namespace varrocade
