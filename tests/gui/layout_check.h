#pragma once

#include "windows_driver.h"

namespace varrocade::gui {

/// A dialog as it is shown: it fits a screen of 1366 x 768, no text is cut, no two controls overlap or have
/// the same access key, and right before each field stands its label.
void expectWellLaidOut(Window dialog);

} // namespace varrocade::gui
