#pragma once
// What the program works on: folders and mod, the category with its list of files, the open record, the
// weapons. Windows show it and send their commands to the functions of this folder; it knows no window.

#include "app/workspace/names/name_list.h"
#include "app/workspace/record/open_record.h"
#include "app/workspace/visits/visits.h"
#include "data/category.h"
#include "data/format/texts.h"
#include "data/game_files.h"
#include "mod/mod_settings.h"
#include "platform/backups.h"
#include "platform/file_operations.h"
#include "tools/file_replacement.h"
#include "tools/renaming/rename_apply.h"
#include "view/drawing/component_places.h"
#include "weapons/weapon_catalogue.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace varrocade {

struct Workspace;

/// Hears what happens in a workspace. Each call comes when all of it has happened.
class WorkspaceListener {
public:
    WorkspaceListener() = default;
    WorkspaceListener(const WorkspaceListener&) = delete;
    WorkspaceListener& operator=(const WorkspaceListener&) = delete;
    virtual ~WorkspaceListener() = default;

    /// Another record is open, or none.
    virtual void recordOpened() {}
    /// The open record is another than before, or has another name.
    virtual void recordChanged() {}
    /// What the file of the open record holds is another than before.
    virtual void recordSaved() {}
    /// Where the components of the open vehicle were before they were rearranged, ahead of `recordChanged`.
    virtual void componentsRearranged(const FormerPlaces&) {}
    /// The folder of the category may hold other files. Without a window the names are read at once.
    virtual void listOutdated(Workspace& workspace);
    /// Other names are shown, or others than before.
    virtual void namesChanged() {}
    /// Another name is selected, or none.
    virtual void selectionChanged() {}
    /// Other names of the list than before have unsaved changes.
    virtual void marksChanged() {}
    /// The filter was emptied, since it hid what is to be selected.
    virtual void filterDropped() {}
    /// Files that are not open hold something else than before.
    virtual void filesRewritten() {}
    /// Mod mode was turned on or off.
    virtual void modeChanged() {}
};

/// One that hears nothing.
WorkspaceListener& deafListener();

/// A file that was deleted or renamed, as it was before; or files that were written together.
struct FileStep {
    OpenRecord record;     ///< where files were replaced, only the base folder and the category
    std::string content;   ///< of the file
    std::string renamedTo; ///< empty of a deleted one
    std::string name = {}; ///< of the step, where several files were written
    /// Files that were not open and got other contents.
    std::vector<FileReplacement> replaced = {};
    /// Of a name that was changed everywhere: all files that were written. The record is the one that was
    /// open, if any.
    std::vector<FileRewrite> rewrites = {};
    std::string base = {}; ///< the folder of those files
};

/// Puts two spellings of a path that differ in the case of letters only in one place: they lead to one file.
struct PathOrder {
    bool operator()(const std::string& a, const std::string& b) const {
        return compareIgnoringCase(a, b) < 0;
    }
};

/// The copies of unsaved changes on the disk.
struct Journal {
    std::map<std::string, std::string, PathOrder> written; ///< the content of each file by its path
    bool hasFailed = false; ///< which was told, and is not told again before it succeeds
};

struct Workspace {
    FileOperations* files = &systemFiles();
    WorkspaceListener* listener = &deafListener();

    std::string programFolder; ///< where the program was started, with a backslash at its end
    std::string profileFolder; ///< the user's, without one
    std::string gameFolder;    ///< where the game itself is installed, or empty
    bool modMode = false;
    std::string modFolder; ///< keeps the last folder probed while mod mode is off
    std::optional<ModSettings> modSettings;
    bool hasStartedInMod = false;       ///< which it found itself, and nothing has switched since
    bool showsGameUnits = false;        ///< behind the mod's
    std::vector<std::string> otherMods; ///< folders of mods that were opened, the last one first

    Category category = Category::Vehicles;
    std::array<std::string, CategoryCount> rememberedSelections;
    NameList list; ///< of the category
    OpenRecord open;
    std::vector<OpenRecord> aside; ///< those with unsaved changes that are not shown
    Journal journal;               ///< of the unsaved changes of them all
    std::vector<FileStep> fileSteps;
    Visits visits;               ///< of records, to go back to
    bool isFileStepLast = false; ///< nothing was changed in the open record since the last of these
    WeaponCatalogue catalogue;
    BackupKeeper backups;
};

/// The folder that data files are read from and written to: the mod's in mod mode, otherwise the program's.
const std::string& baseFolder(const Workspace& workspace);

/// The same for an entry of the list: of the game's units that stand behind the mod's, the program's.
const std::string& baseOfEntry(const Workspace& workspace, const std::string& name);

/// Where pictures are looked for: the mod's folder before the program's.
std::vector<std::string> imageBases(const Workspace& workspace);

/// Where data files are read from: in mod mode, the mod's count before the game's.
GameFolders gameFolders(const Workspace& workspace);

/// The path of a file of the present category.
std::string pathOf(const Workspace& workspace, const std::string& name);

/// The file name last selected in the present category.
std::string& rememberedSelection(Workspace& workspace);

/// Reads the weapons of the game and, in mod mode, of the mod anew.
void loadCatalogue(Workspace& workspace);

/// The names of the data files of a folder, without their ending.
std::vector<std::string> namesOfFiles(const std::string& folder);

/// The names of the game's files of a category that the mod's folder has none of, letter case aside.
std::vector<std::string> namesOfGameAlone(const Workspace& workspace, Category category);

/// The names that the list is filled with: in mod mode the mod's, and the game's others behind them where
/// these are shown. `ofGame` becomes those.
std::vector<std::string> namesToList(const Workspace& workspace, std::vector<std::string>& ofGame);

/// Reads the names of the category's files and filters them.
void refillNames(Workspace& workspace);

/// Whether a unit or a weapon is open.
bool isRecordOpen(const Workspace& workspace);

/// The open unit, or the open weapon, if that is what is open.
SquadRecord* openUnit(Workspace& workspace);
const SquadRecord* openUnit(const Workspace& workspace);
const WeaponRecord* openWeapon(const Workspace& workspace);

/// The name of the open record's file, or empty.
std::string openFileName(const Workspace& workspace);

/// The same where that file is one of the list's; empty of the game's unit that stays open in a mod, which
/// may have a file of the same name.
std::string listedOpenName(const Workspace& workspace);

/// The open record's place among the visits, and the note that it was opened.
Visit openVisit(const Workspace& workspace);
void noteVisit(Workspace& workspace);

} // namespace varrocade
