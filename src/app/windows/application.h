#pragma once
// The state of the running program: folders, mode, category, the open record, the drawing objects. It stands
// here and nowhere else.

#include "app/windows/picture_prefetch.h"
#include "app/windows/unit_display.h"
#include "app/workspace/undo_history.h"
#include "data/category.h"
#include "data/game_files.h"
#include "data/unit/unit_record.h"
#include "mod/mod_settings.h"
#include "platform/safe_save.h"
#include "tools/weapon_users.h"
#include "view/painting/drawing_objects_win32.h"
#include "view/painting/picture_cache_win32.h"
#include "weapons/weapon_catalogue.h"
#include "weapons/weapon_record.h"

#include <windows.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace varrocade {

struct Application {
    HINSTANCE instance = nullptr;
    HWND window = nullptr;
    HMENU menu = nullptr;

    std::string programFolder; ///< where the program was started, with a backslash at its end
    std::string gameFolder;    ///< where the game itself is installed, or empty
    bool modMode = false;
    std::string modFolder; ///< keeps the last folder probed while mod mode is off
    std::optional<ModSettings> modSettings;

    Category category = Category::Vehicles;
    std::array<std::string, CategoryCount> rememberedSelections;
    std::optional<SquadRecord> openUnit;
    std::optional<WeaponRecord> openWeapon;
    std::vector<std::string> fileNames; ///< of the category, as the folder lists them
    std::string typedAhead;             ///< what was typed into the list lately, and when
    DWORD typedAheadTime = 0;
    bool weaponPosChanged = false;
    bool exhaustPosChanged = false;
    bool showDestroyed = false;
    bool showMarks = true; ///< of weapons, exhaust pipes, dischargers and crew in the drawing

    std::optional<SquadRecord> savedUnit; ///< the open unit as its file holds it
    UndoHistory history;
    WeaponCatalogue catalogue;
    WeaponUsers weaponUsers;

    DrawingObjects drawing;
    PictureCache pictures;
    PicturePrefetch prefetch;
    BackupKeeper backups;
    UnitDisplay display;
};

/// The one application.
Application& application();

/// The folder that data files are read from and written to: the mod's in mod mode, otherwise the program's.
const std::string& baseFolder();

/// Where data files are read from: in mod mode, the mod's count before the game's.
GameFolders gameFolders();

/// Where pictures are looked for: the mod's folder before the program's.
std::vector<std::string> imageBases();

/// Reads the weapons of the game and, in mod mode, of the mod anew.
void loadCatalogue();

/// Whether a unit or a weapon is open.
bool isRecordOpen();

/// The name of the open record's file, or empty.
std::string openFileName();

/// Whether the open unit differs from its file.
bool isUnitModified();

/// Drops the open record and with it the unsaved positions. What was changed in it only here is kept among
/// the backups of the base folder that it came from.
void closeRecord(const std::string& base = baseFolder());

} // namespace varrocade
