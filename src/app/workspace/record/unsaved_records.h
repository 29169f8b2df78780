#pragma once
// The records with unsaved changes: the open one, and those that stay in memory while others are shown.

#include "app/workspace/workspace.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace varrocade {

/// What the list says of an entry.
enum class EntryMark : std::uint8_t { None, Unsaved, ChangedOutside };

/// Of a name of the list: `ChangedOutside` has unsaved changes too.
EntryMark markOf(const Workspace& workspace, const std::string& name);

/// All of them, the open one first.
std::vector<const OpenRecord*> unsavedRecords(const Workspace& workspace);

/// "Vehicles: German Tiger", with the base folder of one that is not of the present list's.
std::string unsavedRecordText(const Workspace& workspace, const OpenRecord& record);

/// The record of a file in a workspace's `aside`, or its end.
std::vector<OpenRecord>::const_iterator findAside(const Workspace& workspace, const std::string& base,
                                                  Category category, const std::string& name);

/// Whether the record of a file is in memory, shown or with unsaved changes.
bool isInMemory(const Workspace& workspace, const std::string& base, Category category,
                const std::string& name);

/// Whether the record in memory of a name of the list is one that is not shown.
bool isAside(const Workspace& workspace, const std::string& name);

/// Takes the record of such a name out of memory, to be shown.
std::optional<OpenRecord> takeFromAside(Workspace& workspace, const std::string& name);

/// Whether `saveAll` has something to do.
bool canSaveAll(const Workspace& workspace);

} // namespace varrocade
