#pragma once
// The voices that the men of a mod's units call for and that neither the mod nor the game has.

#include "tools/reports/mod_check.h"

#include <map>
#include <tuple>

namespace varrocade {

class MissingVoices : public ModCheck {
public:
    explicit MissingVoices(GameFolders folders);

    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    [[nodiscard]] std::vector<FileFailure> failures() const override;
    /// One for each call of a language and nationality.
    [[nodiscard]] std::vector<ModCheckRow> rows() override;

private:
    struct Voice {
        std::string language;
        std::string nationality;
        std::string call;
        bool operator<(const Voice& other) const {
            return std::tie(language, nationality, call) <
                   std::tie(other.language, other.nationality, other.call);
        }
    };

    void read(const GameFile& file, std::string_view content);

    AssetFiles files_;
    GameFileWalk walk_;
    bool isListed_ = false;
    std::vector<FileFailure> failures_;
    std::map<Voice, std::vector<ReferenceUser>> calledFor_;
};

} // namespace varrocade
