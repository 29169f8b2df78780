#pragma once

#include <string>

namespace varrocade {

/// The "New Squad" dialog: writes the file of a new unit of the present category. The name of the file, or
/// empty when the user cancelled it.
std::string askForNewSquad();

} // namespace varrocade
