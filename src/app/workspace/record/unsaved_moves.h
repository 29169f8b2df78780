#pragma once

#include "app/workspace/record/open_record.h"

namespace varrocade {

/// A record's state without what was moved in the drawing and is not saved: those positions are as the file
/// has them, all else stays.
RecordState withoutMoves(const OpenRecord& open);

} // namespace varrocade
