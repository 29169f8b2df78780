#include "editors/penetration/can_penetrate_dialog.h"

#include "data/format/numbers.h"
#include "data/reading/unit_reader.h"
#include "editors/form/clipboard_win32.h"
#include "editors/form/form_port_win32.h"
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

namespace varrocade {

namespace {

constexpr std::array<TableColumn, PlateRangeHeads.size()> PlateRangeColumns = {{
    {PlateRangeHeads[0], 108},
    {PlateRangeHeads[1], 74},
    {PlateRangeHeads[2], 70, true},
    {PlateRangeHeads[3], 44, true},
    {PlateRangeHeads[4], 96},
}};

struct CanPenetrateDialog {
    const PenetrationTools& tools;
    Shot shot;
    std::vector<GameFile> vehicles = {};
    std::optional<SquadRecord> target = {};
    std::vector<PlateRange> ranges = {};
    PlateOutline outline = {};
    std::optional<std::size_t> pointed = {}; ///< the plate below the mouse
    bool isFilling = false;

    [[nodiscard]] const WeaponRecord* weapon() const {
        const auto& entries = tools.catalogue.entries();
        return shot.weapon < entries.size() ? &entries[shot.weapon].weapon : nullptr;
    }
    [[nodiscard]] const AmmoTypeRecord* ammo() const {
        const WeaponRecord* chosen = weapon();
        return chosen != nullptr && shot.shell < chosen->ammoTypes.size() ? &chosen->ammoTypes[shot.shell]
                                                                          : nullptr;
    }
};

std::size_t chosenIndex(HWND dialog, int control) {
    const LRESULT chosen = SendDlgItemMessageA(dialog, control, CB_GETCURSEL, 0, 0);
    return chosen < 0 ? SIZE_MAX : static_cast<std::size_t>(chosen);
}

// ---- the table

std::optional<std::size_t> selectedPlate(HWND dialog, const CanPenetrateDialog& context) {
    const int row = selectedTableRow(GetDlgItem(dialog, IDC_PLATE_TABLE));
    return row >= 0 && static_cast<std::size_t>(row) < context.ranges.size()
               ? std::optional(static_cast<std::size_t>(row))
               : std::nullopt;
}

void selectPlate(HWND dialog, std::size_t plate) {
    HWND table = GetDlgItem(dialog, IDC_PLATE_TABLE);
    ListView_SetItemState(table, static_cast<int>(plate), LVIS_SELECTED | LVIS_FOCUSED,
                          LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(table, static_cast<int>(plate), FALSE);
}

// ---- what is shown

void showPointed(HWND dialog, const CanPenetrateDialog& context) {
    const auto shown = context.pointed ? context.pointed : selectedPlate(dialog, context);
    DialogPort(dialog).setText(IDC_POINTED_PLATE,
                               shown ? plateRangeSentence(*context.target->vehicle, context.ranges[*shown])
                                     : std::string());
    InvalidateRect(GetDlgItem(dialog, IDC_PLATE_OUTLINE), nullptr, FALSE);
}

void recalculateRanges(HWND dialog, CanPenetrateDialog& context) {
    const bool hasTarget = context.target && context.target->vehicle;
    const AmmoTypeRecord* ammo = context.ammo();
    context.ranges.clear();
    context.pointed.reset();
    if (hasTarget && ammo != nullptr) {
        const double drag = toReal(context.shot.drags[static_cast<std::size_t>(dragClassOf(ammo->flavour))]);
        context.ranges = plateRanges(*context.target->vehicle,
                                     penetrationCurve(projectileOf(*context.weapon(), *ammo), drag));
    }
    context.outline = hasTarget ? plateOutline(*context.target->vehicle, context.ranges) : PlateOutline();
    HWND table = GetDlgItem(dialog, IDC_PLATE_TABLE);
    const auto selected = selectedPlate(dialog, context);
    SendMessageA(table, WM_SETREDRAW, FALSE, 0);
    ListView_DeleteAllItems(table);
    for (const PlateRange& range : context.ranges) {
        auto cells = plateRangeCells(*context.target->vehicle, range);
        addTableRow(table, cells);
    }
    if (selected) {
        selectPlate(dialog, *selected);
    }
    SendMessageA(table, WM_SETREDRAW, TRUE, 0);
    DialogPort(dialog).setEnabled(IDC_COPY_TABLE, !context.ranges.empty());
    showPointed(dialog, context);
}

/// The wind resistance of the ammunition's class.
void showDrag(HWND dialog, CanPenetrateDialog& context) {
    DialogPort port(dialog);
    const AmmoTypeRecord* ammo = context.ammo();
    context.isFilling = true;
    port.setEnabled(IDC_SHOT_DRAG, ammo != nullptr);
    if (ammo == nullptr) {
        port.setText(IDC_SHOT_DRAG, "");
        port.setText(IDC_SHOT_DRAG_CLASS, "");
    } else {
        const auto place = static_cast<std::size_t>(dragClassOf(ammo->flavour));
        port.setText(IDC_SHOT_DRAG, context.shot.drags[place]);
        port.setText(IDC_SHOT_DRAG_CLASS,
                     "% of the velocity over 1,000 m, for " + std::string(dragClasses()[place].name));
    }
    context.isFilling = false;
}

void chooseShell(HWND dialog, CanPenetrateDialog& context, std::size_t shell) {
    context.shot.shell = shell;
    showDrag(dialog, context);
    recalculateRanges(dialog, context);
}

void chooseWeapon(HWND dialog, CanPenetrateDialog& context, std::size_t shell) {
    context.shot.weapon = chosenIndex(dialog, IDC_SHOT_WEAPON);
    DialogPort(dialog).setChoices(IDC_SHOT_SHELL, context.weapon() != nullptr ? shellTypes(*context.weapon())
                                                                              : std::vector<std::string>());
    SendDlgItemMessageA(dialog, IDC_SHOT_SHELL, CB_SETCURSEL, shell, 0);
    chooseShell(dialog, context, shell);
}

void chooseVehicle(HWND dialog, CanPenetrateDialog& context) {
    context.target.reset();
    const std::size_t chosen = chosenIndex(dialog, IDC_TARGET_VEHICLE);
    if (chosen < context.vehicles.size()) {
        const GameFile& file = context.vehicles[chosen];
        const SquadRecord* open = context.tools.openUnit;
        if (open != nullptr && open->vehicle && open->fileName == file.name.c_str()) {
            context.target = *open;
        } else {
            Diagnostics diagnostics;
            context.target = readUnitFile(file.path, file.name, diagnostics);
            if (!context.target) {
                showCouldNotLoad(file.path);
            }
        }
    }
    recalculateRanges(dialog, context);
}

// ---- the drawing

/// From blue, which holds, to red, which is gone through everywhere; told apart by the colour-blind too.
constexpr std::array<COLORREF, 6> BandColours = {RGB(69, 117, 180),  RGB(145, 191, 219), RGB(224, 243, 248),
                                                 RGB(254, 224, 144), RGB(252, 141, 89),  RGB(215, 48, 39)};
constexpr COLORREF NoPlateColour = RGB(255, 255, 255);
constexpr int LegendRow = 15; // pixels at 96 dpi, as the margin
constexpr int OutlineMargin = 10;

int legendHeight(const DrawingObjects& drawing) {
    const int rows = static_cast<int>(BandColours.size() + 2) / 2;
    return drawing.scaled(rows * LegendRow + OutlineMargin / 2);
}

Fit outlineFit(const RECT& area, const CanPenetrateDialog& context) {
    DrawList extent;
    extent.least = context.outline.least;
    extent.greatest = context.outline.greatest;
    const DrawingObjects& drawing = context.tools.drawing;
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

void paintPatches(HDC device, const RECT& area, const CanPenetrateDialog& context,
                  std::optional<std::size_t> marked) {
    const Fit fit = outlineFit(area, context);
    const GdiObject<HBRUSH> none(CreateSolidBrush(NoPlateColour));
    std::array<GdiObject<HBRUSH>, BandColours.size()> brushes;
    for (std::size_t i = 0; i < brushes.size(); ++i) {
        brushes[i] = GdiObject<HBRUSH>(CreateSolidBrush(BandColours[i]));
    }
    const GdiObject<HPEN> markPen(CreatePen(PS_SOLID, context.tools.drawing.scaled(3), RGB(0, 0, 0)));
    for (const OutlinePatch& patch : context.outline.patches) {
        const HBRUSH colour =
            patch.plate ? brushes[rangeBandOf(context.ranges[*patch.plate].range)].get() : none.get();
        const Selection brush(device, colour);
        const Selection pen(device, marked && patch.plate == marked ? markPen.get()
                                                                    : context.tools.drawing.blackPen.get());
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

void drawOutline(HWND dialog, const DRAWITEMSTRUCT& item, const CanPenetrateDialog& context) {
    const DrawingObjects& drawing = context.tools.drawing;
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
    paintPatches(device, area, context, context.pointed ? context.pointed : selectedPlate(dialog, context));
    paintLegend(device, area, drawing);
    BitBlt(item.hDC, 0, 0, area.right, area.bottom, device, 0, 0, SRCCOPY);
}

std::optional<std::size_t> plateBelow(HWND outline, LPARAM place, const CanPenetrateDialog& context) {
    RECT area{};
    GetClientRect(outline, &area);
    const Fit fit = outlineFit(area, context);
    const double centimetres = 100.0 / fit.pixelsPerMetre;
    return plateAt(context.outline, {(GET_X_LPARAM(place) - fit.originX) * centimetres,
                                     (fit.originY - GET_Y_LPARAM(place)) * centimetres});
}

/// The mouse names the plate that it points to; a click selects it in the table.
LRESULT CALLBACK outlineProcedure(HWND outline, UINT message, WPARAM parameter, LPARAM detail, UINT_PTR,
                                  DWORD_PTR data) {
    auto& context = *reinterpret_cast<CanPenetrateDialog*>(data);
    HWND dialog = GetParent(outline);
    if (message == WM_MOUSEMOVE || message == WM_MOUSELEAVE) {
        const auto plate =
            message == WM_MOUSEMOVE ? plateBelow(outline, detail, context) : std::optional<std::size_t>();
        if (plate != context.pointed) {
            context.pointed = plate;
            showPointed(dialog, context);
        }
        TRACKMOUSEEVENT track{
            .cbSize = sizeof(track), .dwFlags = TME_LEAVE, .hwndTrack = outline, .dwHoverTime = 0};
        TrackMouseEvent(&track);
        return 0;
    }
    if (message == WM_LBUTTONDOWN) {
        if (const auto plate = plateBelow(outline, detail, context)) {
            selectPlate(dialog, *plate);
        }
        return 0;
    }
    return DefSubclassProc(outline, message, parameter, detail);
}

// ---- the dialog

void fillDialog(HWND dialog, CanPenetrateDialog& context) {
    DialogPort port(dialog);
    prepareTable(GetDlgItem(dialog, IDC_PLATE_TABLE), PlateRangeColumns);
    context.vehicles = listGameFiles(context.tools.folders, Category::Vehicles).files;
    std::vector<std::string> names;
    std::size_t chosen = 0;
    for (const GameFile& file : context.vehicles) {
        const SquadRecord* open = context.tools.openUnit;
        if (open != nullptr && open->vehicle && open->fileName == file.name.c_str()) {
            chosen = names.size();
        }
        names.push_back(file.name);
    }
    port.setChoices(IDC_TARGET_VEHICLE, names);
    SendDlgItemMessageA(dialog, IDC_TARGET_VEHICLE, CB_SETCURSEL, chosen, 0);
    port.setChoices(IDC_SHOT_WEAPON, penetrationWeapons(context.tools.catalogue));
    SendDlgItemMessageA(dialog, IDC_SHOT_WEAPON, CB_SETCURSEL, context.shot.weapon, 0);
    SetWindowSubclass(GetDlgItem(dialog, IDC_PLATE_OUTLINE), outlineProcedure, 0,
                      reinterpret_cast<DWORD_PTR>(&context));
    chooseWeapon(dialog, context, context.shot.shell);
    chooseVehicle(dialog, context);
}

void copyRanges(HWND dialog, const CanPenetrateDialog& context) {
    if (!context.ranges.empty()) {
        DialogPort port(dialog);
        const PenetrationQuestion question{.vehicle = context.target->fileName.str(),
                                           .weapon = context.weapon()->fileName,
                                           .shell = shellTypes(*context.weapon())[context.shot.shell],
                                           .drag = port.text(IDC_SHOT_DRAG)};
        copyToClipboard(dialog, plateRangeTable(question, *context.target->vehicle, context.ranges));
    }
}

void handleCommand(HWND dialog, CanPenetrateDialog& context, int control, int notification) {
    if (notification == CBN_SELCHANGE && control == IDC_TARGET_VEHICLE) {
        chooseVehicle(dialog, context);
    } else if (notification == CBN_SELCHANGE && control == IDC_SHOT_WEAPON) {
        chooseWeapon(dialog, context, 0);
    } else if (notification == CBN_SELCHANGE && control == IDC_SHOT_SHELL) {
        chooseShell(dialog, context, chosenIndex(dialog, IDC_SHOT_SHELL));
    } else if (notification == EN_CHANGE && control == IDC_SHOT_DRAG && !context.isFilling &&
               context.ammo() != nullptr) {
        context.shot.drags[static_cast<std::size_t>(dragClassOf(context.ammo()->flavour))] =
            DialogPort(dialog).text(IDC_SHOT_DRAG);
        recalculateRanges(dialog, context);
    } else if (control == IDC_COPY_TABLE) {
        copyRanges(dialog, context);
    }
}

INT_PTR CALLBACK canPenetrateProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* context = dialogContext<CanPenetrateDialog>(dialog, message, pointer);
    switch (message) {
    case WM_INITDIALOG:
        fillDialog(dialog, *context);
        return TRUE;
    case WM_DRAWITEM:
        drawOutline(dialog, *reinterpret_cast<const DRAWITEMSTRUCT*>(pointer), *context);
        return TRUE;
    case WM_NOTIFY:
        if (context != nullptr && reinterpret_cast<const NMHDR*>(pointer)->code == LVN_ITEMCHANGED) {
            showPointed(dialog, *context);
        }
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(parameter) == IDOK || LOWORD(parameter) == IDCANCEL) {
            EndDialog(dialog, 0);
        } else if (context != nullptr) {
            handleCommand(dialog, *context, LOWORD(parameter), HIWORD(parameter));
        }
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

void askWhatPenetrates(HWND owner, const PenetrationTools& tools, const Shot& shot) {
    CanPenetrateDialog context{.tools = tools, .shot = shot};
    runDialog(owner, IDD_CAN_PENETRATE, canPenetrateProcedure, &context);
}

} // namespace varrocade
