#include "tools/reports/missing_voices.h"

#include "data/reading/unit_reader.h"
#include "data/unit/enumerations.h"
#include "tools/voices.h"

#include <algorithm>
#include <set>
#include <utility>

namespace varrocade {

namespace {

template <typename Visit>
void forEachMan(const SquadRecord& unit, Visit&& visit) {
    if (unit.vehicle) {
        for (const ComponentRecord& component : unit.vehicle->components) {
            std::for_each(component.crew.begin(), component.crew.end(), visit);
        }
    }
    std::for_each(unit.infantrymen.begin(), unit.infantrymen.end(), visit);
}

} // namespace

MissingVoices::MissingVoices(GameFolders folders) : files_(std::move(folders)) {}

void MissingVoices::read(const GameFile& file, std::string_view content) {
    Diagnostics diagnostics;
    const SquadRecord unit = readUnit(content, file.name, diagnostics);
    std::set<Voice> voices;
    forEachMan(unit, [&](const CrewManRecord& man) {
        const std::string language(languageOf(unit, man));
        if (language.empty()) {
            return;
        }
        for (const auto& calls : {everybodysCalls(), callsOf(man.job)}) {
            for (const std::string_view call : calls) {
                voices.insert({language, unit.nationality.str(), std::string(call)});
            }
        }
    });
    for (const Voice& voice : voices) {
        calledFor_[voice].push_back({std::string(categoryName(file.category)) + ": " + file.name, file});
    }
}

bool MissingVoices::step() {
    if (!isListed_) {
        isListed_ = true;
        std::vector<GameFile> units = listOwnFiles(files_.bases(), failures_);
        std::erase_if(units, [](const GameFile& file) { return file.category == Category::Weapons; });
        walk_ = GameFileWalk(std::move(units));
        return true;
    }
    return walk_.step([this](const GameFile& file, std::string_view content) { read(file, content); });
}

JobProgress MissingVoices::progress() const {
    const WalkProgress walked = walk_.progress();
    return {walked.done, walked.total, std::string(walked.name)};
}

std::vector<FileFailure> MissingVoices::failures() const {
    std::vector<FileFailure> all = failures_;
    all.insert(all.end(), walk_.failures().begin(), walk_.failures().end());
    return all;
}

std::vector<ModCheckRow> MissingVoices::rows() {
    std::vector<ModCheckRow> rows;
    for (const auto& [voice, users] : calledFor_) {
        const std::string name = voiceName(voice.language, voice.call);
        const std::string own = nationalVoiceName(voice.language, voice.nationality, voice.call);
        if (files_.find(VoiceFolder, own, SoundEnding) == nullptr &&
            files_.find(VoiceFolder, name, SoundEnding) == nullptr) {
            rows.push_back({std::string(VoiceFolder) + name + std::string(SoundEnding),
                            displayName(voice.nationality, NationalityPrefix) + " men say it, in \"" +
                                voice.language + "\"; " + own + std::string(SoundEnding) + " would do, too",
                            {},
                            users});
        }
    }
    return rows;
}

} // namespace varrocade
