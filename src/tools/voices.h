#pragma once
// What the men of a unit say, and the names of the sounds that say it.

#include "data/unit/unit_record.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view VoiceFolder = "Sounds\\Voices\\";

/// The two letters of the language that a nation's men speak unless a file says otherwise; empty for a
/// nationality that the game does not know.
std::string_view languageOf(std::string_view nationality);

/// The language of a man: his own, otherwise the unit's, otherwise the nation's.
std::string_view languageOf(const SquadRecord& unit, const CrewManRecord& man);

/// The calls that a man with a job has, besides those of every man; empty for a job without any.
std::span<const std::string_view> callsOf(std::string_view job);
/// What every man calls.
std::span<const std::string_view> everybodysCalls();

/// The name of a voice's sound, without folder and ending: "de_contact", which all who speak the language
/// share, or "de_austrian_contact", which counts before it for the men of that nation.
std::string voiceName(std::string_view language, std::string_view call);
std::string nationalVoiceName(std::string_view language, std::string_view nationality, std::string_view call);

} // namespace varrocade
