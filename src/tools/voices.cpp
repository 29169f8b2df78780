#include "tools/voices.h"

#include "data/format/texts.h"
#include "data/unit/enumerations.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

struct NationRow {
    std::string_view word; ///< of the nationality, without its prefix
    std::string_view language;
};

/// With the older spellings of names. Of a country with several languages the one of its army's command.
constexpr auto NationLanguages = std::to_array<NationRow>({
    {"AMERICAN", "en"},    {"ARMENIA", "hy"},      {"ARMENIAN", "hy"},
    {"AUSTRALIAN", "en"},  {"AUSTRIAN", "de"},     {"AZERBAIJAN", "az"},
    {"AZERBAIJANI", "az"}, {"BELGIAN", "fr"},      {"BRITISH", "en"},
    {"CANADIAN", "en"},    {"CHINESE", "zh"},      {"DUTCH", "nl"},
    {"EGYPTIAN", "ar"},    {"FINLAND", "fi"},      {"FINNISH", "fi"},
    {"FRENCH", "fr"},      {"GEORGIAN", "ka"},     {"GERMAN", "de"},
    {"HUNGARIAN", "hu"},   {"INDIAN", "hi"},       {"IRANIAN", "fa"},
    {"IRAQI", "ar"},       {"ISRAELI", "he"},      {"ITALIAN", "it"},
    {"JAPANESE", "ja"},    {"JORDANIAN", "ar"},    {"KUWAITI", "ar"},
    {"KUWATI", "ar"},      {"NORTH_KOREAN", "ko"}, {"NORTH_VIETNAMESE", "vi"},
    {"PAKISTANI", "ur"},   {"POLISH", "pl"},       {"ROMANIAN", "ro"},
    {"RUSSIAN", "ru"},     {"SOUTH_KOREAN", "ko"}, {"SOUTH_VIETNAMESE", "vi"},
    {"SYRIAN", "ar"},      {"TURKISH", "tr"},      {"UKRAINIAN", "uk"},
});

constexpr auto EverybodysCalls = std::to_array<std::string_view>({"under_fire", "wounded"});
constexpr auto LeadersCalls =
    std::to_array<std::string_view>({"contact", "fire", "forward", "halt", "retreat", "take_cover"});
constexpr auto DriversCalls = std::to_array<std::string_view>({"moving", "stuck"});
constexpr auto GunnersCalls = std::to_array<std::string_view>({"hit", "missed", "on_target"});
constexpr auto LoadersCalls = std::to_array<std::string_view>({"last_round", "loaded"});
constexpr auto MachineGunnersCalls = std::to_array<std::string_view>({"firing", "reloading"});
constexpr auto RadiosCalls = std::to_array<std::string_view>({"message"});

struct JobRow {
    std::string_view job;
    std::span<const std::string_view> calls;
};

constexpr auto JobCalls = std::to_array<JobRow>({
    {"JOB_COMMANDER", LeadersCalls},
    {"JOB_SQUAD_LEADER", LeadersCalls},
    {"JOB_SQUAD_ASSISTANT_LEADER", LeadersCalls},
    {"JOB_DRIVER", DriversCalls},
    {"JOB_GUNNER", GunnersCalls},
    {"JOB_LOADER", LoadersCalls},
    {"JOB_MACHINE_GUNNER", MachineGunnersCalls},
    {"JOB_SQUAD_MG_ASSISTANT", LoadersCalls},
    {"JOB_RADIO", RadiosCalls},
});

std::string_view wordOfNation(std::string_view nationality) {
    return nationality.starts_with(NationalityPrefix) ? nationality.substr(NationalityPrefix.size())
                                                      : nationality;
}

} // namespace

std::string_view languageOf(std::string_view nationality) {
    const std::string_view word = wordOfNation(nationality);
    const auto row = std::find_if(NationLanguages.begin(), NationLanguages.end(),
                                  [&](const NationRow& candidate) { return candidate.word == word; });
    return row == NationLanguages.end() ? std::string_view() : row->language;
}

std::string_view languageOf(const SquadRecord& unit, const CrewManRecord& man) {
    if (!man.language.empty()) {
        return man.language;
    }
    return unit.language.empty() ? languageOf(unit.nationality) : std::string_view(unit.language);
}

std::span<const std::string_view> callsOf(std::string_view job) {
    const auto row = std::find_if(JobCalls.begin(), JobCalls.end(),
                                  [&](const JobRow& candidate) { return candidate.job == job; });
    return row == JobCalls.end() ? std::span<const std::string_view>() : row->calls;
}

std::span<const std::string_view> everybodysCalls() {
    return EverybodysCalls;
}

std::string voiceName(std::string_view language, std::string_view call) {
    return loweredText(language) + "_" + std::string(call);
}

std::string nationalVoiceName(std::string_view language, std::string_view nationality,
                              std::string_view call) {
    return loweredText(language) + "_" + loweredText(wordOfNation(nationality)) + "_" + std::string(call);
}

} // namespace varrocade
