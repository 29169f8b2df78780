#pragma once
// What the men of a unit wear: both ways to say it, and the pictures that this comes to. Without any window.

#include "data/unit/unit_record.h"
#include "editors/form/form.h"
#include "view/drawing/draw_list.h"

#include <span>
#include <string>

namespace varrocade {

/// The uniform of a unit, by the old or the new method.
const FormShape<SquadRecord>& uniformShape();

/// The pictures of a unit's uniform side by side, each with what it is below. What is left to the game's
/// default shows the nation's own; what is not there, a placeholder.
DrawList uniformPictures(const SquadRecord& unit, std::span<const std::string> bases, PictureSizes& sizes);

} // namespace varrocade
