#include "cli/command_line.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace varrocade::cli {

namespace {

constexpr auto Commands = std::to_array<Command>({
    {"check",
     "FOLDER [--mod FOLDER] [--format text|json|sarif|github] [--severity note|warning|error] [--only KEYS] "
     "[--baseline FILE | --write-baseline FILE] [--pictures]",
     "tells what is wrong with the files of a game folder, which holds Data, Images and Sounds, or of a mod "
     "for "
     "that game; --only takes the keys of rules, separated by commas; a baseline holds findings that are not "
     "to "
     "be told again; --pictures takes pictures apart too, which takes longer; what the rules are is told in "
     "docs/checks.md",
     checkCommand},
    {"rewrite", "[--explain] CATEGORY IN OUT | --explain CATEGORY IN",
     "reads with the category's reader and writes with its writer; CATEGORY is vehicles, atguns, infantry, "
     "aircraft or weapons; where IN is a folder, every *.txt in it goes to the folder OUT; with --explain, "
     "prints what that drops, changes or respells, a line each, and without OUT does no more than that; only "
     "regular files are read and replaced, and never the one that is read",
     rewriteCommand},
    {"find", "NAME FOLDER [--mod FOLDER]",
     "tells where the files of a game folder, and of a mod for it, name a weapon, a picture, a sound, a "
     "uniform, a nationality, or in Mod.txt a unit",
     findCommand},
    {"rename", "FOLDER KIND OLD NEW [--mod FOLDER] [--dry-run]",
     "gives a file of a game folder, or of the mod, another name, and puts it everywhere where its files "
     "have "
     "the former one: all of it, or nothing; KIND is weapon, picture, sound or unit; prints file, line, "
     "value, "
     "former and new name of each change, tab separated; with --dry-run, does no more than that",
     renameCommand},
    {"penetration", "WEAPONFILE SHELLINDEX ANGLE K | --matrix GAMEFOLDER",
     "prints penetration and velocity of an ammunition type (counted from 0) at seven ranges, for armour "
     "that leans by ANGLE degrees and the drag coefficient K; with --matrix, tab separated, the range up to "
     "which every ammunition type goes through every plate of every vehicle, at most 3000 m, \"-\" for none, "
     "and "
     "its penetration at the seven ranges",
     penetrationCommand},
    {"performance", "FOLDER [--estimate-weight]",
     "prints weight, estimated weight, speeds, acceleration and steepest slope of every vehicle of a game "
     "folder or a folder of vehicles, tab separated; with --estimate-weight, those without a weight drive "
     "with the estimate",
     performanceCommand},
    {"import", "SHEET FOLDER [--mod FOLDER] [--write]",
     "reads a table that report sheets made and prints what its changed cells change: line, unit, column, "
     "former and new value, tab separated; with --write, all of it is written, or nothing where one cell is "
     "refused",
     importCommand},
    {"mod-changes", "GAME MOD [--format text|markdown]",
     "prints which units and weapons the folder MOD adds to those of the folder GAME, changes and takes out, "
     "value by value with the game's beside it",
     modChangesCommand},
    {"report", "NAME FOLDER [--mod FOLDER] [OUT]",
     "makes a report over a game folder or, with --mod, over the mod; its files go to OUT, otherwise to the "
     "folder that it is about; NAME is sheets: a table of each category, Vehicles.csv and so on; png-usage: "
     "which pictures are used, by whom, and which are not; of a mod, printed: duplicates, the files that are "
     "the game's own; unused, those that nothing names; voices, those that its men lack; "
     "thumbnails: vehicles as PNGs and a sheet for each nationality, with --scale PX_PER_M or --fit SIZE; "
     "reduce: which PNGs could be smaller, with --unit NAME, --scale-down where the game needs fewer pixels, "
     "--write to do it",
     reportCommand},
    {"tree", "FILE", "prints how the file parses, one element a line", treeCommand},
});

void printUsage() {
    std::fputs("usage: varrocade-data COMMAND ARGUMENTS\n", stderr);
    for (const Command& command : Commands) {
        const std::string line = "  " + std::string(command.name) + " " + std::string(command.arguments) +
                                 "\n      " + std::string(command.summary) + "\n";
        std::fputs(line.c_str(), stderr);
    }
}

} // namespace

std::span<const Command> commands() {
    return Commands;
}

void complain(std::string_view text) {
    const std::string line = "varrocade-data: " + std::string(text) + "\n";
    std::fputs(line.c_str(), stderr);
}

bool print(std::string_view text) {
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
}

std::string asFolder(std::string path) {
    if (path.empty() || (path.back() != '\\' && path.back() != '/')) {
        path += '\\';
    }
    return path;
}

std::string withSlashes(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::vector<std::string> withoutModOption(Arguments arguments, GameFolders& folders) {
    std::vector<std::string> plain;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == ModOption && i + 1 < arguments.size()) {
            folders.mod = asFolder(arguments[++i]);
        } else {
            plain.push_back(arguments[i]);
        }
    }
    return plain;
}

int runCommandLine(Arguments arguments) {
    if (!arguments.empty()) {
        const auto command = std::find_if(Commands.begin(), Commands.end(),
                                          [&](const Command& row) { return row.name == arguments.front(); });
        if (command != Commands.end()) {
            const int status = command->run(arguments.subspan(1));
            // What could not be written must not pass for done.
            return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? status : CouldNot;
        }
        complain("unknown command '" + arguments.front() + "'");
    }
    printUsage();
    return CouldNot;
}

} // namespace varrocade::cli
