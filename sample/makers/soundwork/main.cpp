// make-sounds SAMPLE_FOLDER: computes all sounds of the sample game and writes SAMPLE_FOLDER/Sounds/*.wav.

#include "sounds.h"
#include "wave_file.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fputs("usage: make-sounds SAMPLE_FOLDER\n", stderr);
        return 2;
    }
    const std::filesystem::path folder = std::filesystem::path(arguments[1]) / "Sounds";
    std::error_code error;
    std::filesystem::create_directories(folder / "Voices", error);
    if (error) {
        std::fprintf(stderr, "cannot create %s: %s\n", folder.string().c_str(), error.message().c_str());
        return 2;
    }

    std::vector<soundwork::NamedSound> sounds;
    soundwork::addShots(sounds);
    soundwork::addEffects(sounds);
    soundwork::addEngines(sounds);
    soundwork::addVoices(sounds);
    for (const soundwork::NamedSound& sound : sounds) {
        const std::filesystem::path path = folder / (std::string(sound.name) + ".wav");
        if (!soundwork::writeWaveFile(path, sound.sound, soundwork::SamplesPerSecond)) {
            std::fprintf(stderr, "cannot write %s\n", path.string().c_str());
            return 2;
        }
    }
    std::printf("%zu sounds in %s\n", sounds.size(), folder.string().c_str());
    return 0;
}
