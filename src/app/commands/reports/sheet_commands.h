#pragma once

namespace varrocade {

/// "Import spreadsheet...": lets the user choose a sheet, shows what it would change, and writes all of that
/// or nothing.
void importSpreadsheet();

} // namespace varrocade
