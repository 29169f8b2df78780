#pragma once
// Looking up the files that values name: pictures and sounds, for units and weapons alike.

#include "data/each_field.h"
#include "data/field.h"
#include "tools/checks/engine/file_findings.h"
#include "tools/checks/engine/knowledge.h"

#include <span>
#include <string_view>

namespace varrocade {

/// A picture in one of the folders. `path` is the value's, within its record.
void lookUpPicture(const CheckKnowledge& knowledge, std::span<const ImageSource> sources,
                   const FieldPath& path, std::string_view name, FileFindings& out);
void lookUpSound(const CheckKnowledge& knowledge, const FieldPath& path, std::string_view name,
                 FileFindings& out);
/// Where a picture lies; null where it is missing.
const AssetFile* findPicture(const CheckKnowledge& knowledge, std::span<const ImageSource> sources,
                             std::string_view name);

} // namespace varrocade
