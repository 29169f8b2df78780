#pragma once

#include <string>

namespace varrocade {

/// The folder that the user chooses in the system's dialog, which begins at `start`; with a backslash at its
/// end, or empty.
std::string browseForFolder(const char* title, const std::string& start);

/// Lets the user choose the folder of the installed game, which the checks of a mod compare it with. Kept in
/// "options.dat". A folder without "Varrocade.exe" is refused with a message.
void browseForGameFolder();

/// Lets the user choose another folder for the program to go on in, as if it had been started there: one that
/// holds "Data".
void chooseProgramFolder();

} // namespace varrocade
