#include "cli/command_line.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace varrocade::cli {

namespace {

constexpr auto Commands = std::to_array<Command>({
    {"rewrite", "[--explain] CATEGORY IN OUT | --explain CATEGORY IN",
     "reads with the category's reader and writes with its writer; CATEGORY is vehicles, atguns, infantry, "
     "aircraft or weapons; where IN is a folder, every *.txt in it goes to the folder OUT; with --explain, "
     "prints what that drops, changes or respells, a line each, and without OUT does no more than that; only "
     "regular files are read and replaced, and never the one that is read",
     rewriteCommand},
    {"penetration", "WEAPONFILE SHELLINDEX ANGLE K | --matrix GAMEFOLDER",
     "prints penetration and velocity of an ammunition type (counted from 0) at seven ranges, for armour "
     "that leans by ANGLE degrees and the drag coefficient K; with --matrix, tab separated, the range up to "
     "which every ammunition type goes through every plate of every vehicle, at most 3000 m, \"-\" for none",
     penetrationCommand},
    {"performance", "FOLDER [--estimate-weight]",
     "prints weight, estimated weight, speeds, acceleration and steepest slope of every vehicle of a game "
     "folder or a folder of vehicles, tab separated; with --estimate-weight, those without a weight drive "
     "with the estimate",
     performanceCommand},
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
