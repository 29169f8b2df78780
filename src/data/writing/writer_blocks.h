#pragma once
// The blocks that several unit writers share.

#include "data/format/file_text.h"
#include "data/unit/unit_record.h"

#include <span>

namespace varrocade::writer_blocks {

/// The `availability` block of every unit file, with the blank line after it.
void writeAvailability(FileText& out, std::span<const AvailabilityPoint> points);

/// `<language>` and the two flags of a man.
void writeManFlags(FileText& out, int tabs, const CrewManRecord& man);

/// One line a personal weapon.
void writePersonalWeapons(FileText& out, int tabs, const CrewManRecord& man);

/// Ammunition without a flavour, or with the flavour before the rounds.
void writeAmmo(FileText& out, int tabs, const AmmoLoadRecord& ammo, bool withFlavour);

} // namespace varrocade::writer_blocks
