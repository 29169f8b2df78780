#pragma once
// varrocade-data: the editor's core without its windows.

#include "data/game_files.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade::cli {

/// Exit statuses.
inline constexpr int Done = 0;
inline constexpr int Findings = 1;
inline constexpr int CouldNot = 2;

using Arguments = std::span<const std::string>;

// Options that several commands know.
inline constexpr std::string_view ModOption = "--mod"; ///< with the mod's folder behind it
inline constexpr std::string_view WriteOption = "--write";

/// One command: its name, its arguments as the usage text shows them, what it does, and how.
struct Command {
    std::string_view name;
    std::string_view arguments;
    std::string_view summary;
    int (*run)(Arguments arguments);
};

std::span<const Command> commands();

/// Runs the command that the arguments (without the program's name) ask for; returns the exit status.
int runCommandLine(Arguments arguments);

/// Says on standard error what went wrong.
void complain(std::string_view text);

/// To standard output; false when not all of it could be written.
bool print(std::string_view text);

/// A folder as paths are built from it: ending in a separator.
std::string asFolder(std::string path);

/// A path with slashes, as the command line prints it on every system.
std::string withSlashes(std::string path);

/// The arguments without `--mod FOLDER`, which goes to the folders.
std::vector<std::string> withoutModOption(Arguments arguments, GameFolders& folders);

/// `check FOLDER [--mod FOLDER] [--format F] [--severity S] [--only KEYS] [--baseline FILE]`
int checkCommand(Arguments arguments);

/// `find NAME FOLDER [--mod FOLDER]`
int findCommand(Arguments arguments);

/// `rename FOLDER KIND OLD NEW [--mod FOLDER] [--dry-run]`
int renameCommand(Arguments arguments);

/// `rewrite [--explain] CATEGORY IN OUT` and `rewrite --explain CATEGORY IN`
int rewriteCommand(Arguments arguments);

/// `mod-changes GAME MOD [--format text|markdown]`
int modChangesCommand(Arguments arguments);

/// `penetration WEAPONFILE SHELLINDEX ANGLE K` and `penetration --matrix GAMEFOLDER`
int penetrationCommand(Arguments arguments);

/// `performance FOLDER [--estimate-weight]`
int performanceCommand(Arguments arguments);

/// `import SHEET FOLDER [--mod FOLDER] [--write]`
int importCommand(Arguments arguments);

/// `report NAME FOLDER [--mod FOLDER] [OUT]`
int reportCommand(Arguments arguments);

/// `tree FILE`
int treeCommand(Arguments arguments);

} // namespace varrocade::cli
