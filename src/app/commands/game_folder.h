#pragma once

namespace varrocade {

/// Lets the user choose the folder of the installed game, which the checks of a mod compare it with. Kept in
/// "options.dat". A folder without "Varrocade.exe" is refused with a message.
void browseForGameFolder();

/// Lets the user choose another folder for the program to go on in, as if it had been started there: one that
/// holds "Data".
void chooseProgramFolder();

} // namespace varrocade
