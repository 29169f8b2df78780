// What men call, in two languages. No words: as many syllables as the call has, each a voice's tone with two
// of its overtones, behind the breath of a consonant. That is enough to tell the calls and the men apart.

#include "sounds.h"

#include <deque>
#include <string>
#include <utility>

namespace soundwork {
namespace {

struct Speaker {
    std::string_view language;
    float pitch;      // hertz, of the voice
    float brightness; // of its first overtone, as a multiple of the pitch
    float pace;       // seconds a syllable
};

constexpr Speaker Speakers[] = {
    {"de", 118, 5.0F, 0.085F},
    {"en", 132, 6.0F, 0.080F},
};

struct Call {
    std::string_view name;
    int syllables;
    float rise; // of the pitch from the first syllable to the last: above 1 a question, below 1 an order
};

// The names are those that the game calls for.
constexpr Call Calls[] = {
    {"contact", 2, 1.3F},  {"fire", 1, 0.8F},      {"firing", 2, 1.0F},     {"forward", 2, 0.9F},
    {"halt", 1, 0.7F},     {"hit", 1, 1.2F},       {"last_round", 3, 0.9F}, {"loaded", 2, 1.1F},
    {"message", 2, 1.0F},  {"missed", 1, 0.7F},    {"moving", 2, 1.0F},     {"on_target", 3, 1.2F},
    {"reloading", 3, 1.0F}, {"retreat", 2, 0.8F},  {"stuck", 1, 0.6F},      {"take_cover", 3, 1.2F},
    {"under_fire", 3, 1.3F}, {"wounded", 2, 0.6F},
};

Sound makeCall(const Speaker& speaker, const Call& call, Noise& noise) {
    const float pace = speaker.pace * (0.9F + 0.2F * chance(noise));
    Sound sound = silence(pace * static_cast<float>(call.syllables) + 0.12F);
    for (int i = 0; i < call.syllables; ++i) {
        const float start = pace * static_cast<float>(i);
        const float share =
            call.syllables > 1 ? static_cast<float>(i) / static_cast<float>(call.syllables - 1) : 0.5F;
        const float pitch = speaker.pitch * (1.0F + (call.rise - 1.0F) * share) * (0.95F + 0.1F * chance(noise));
        addRush(sound, start,
                {.gain = 0.25F, .attack = 0.004F, .decay = 0.012F, .cutoff = 6000, .endCutoff = 2500, .lowCut = 900},
                noise);
        for (const auto& [overtone, gain] :
             {std::pair(1.0F, 0.9F), std::pair(speaker.brightness, 0.5F), std::pair(9.0F, 0.2F)}) {
            addTone(sound, start + 0.01F,
                    {.gain = gain,
                     .frequency = pitch * overtone,
                     .endFrequency = pitch * overtone * 0.93F,
                     .decay = pace * 0.5F,
                     .glide = pace});
        }
    }
    finish(sound, 1.6F, 0.7F, Ending::FadeOut);
    return sound;
}

} // namespace

void addVoices(std::vector<NamedSound>& sounds) {
    // The list of sounds only points at names.
    static std::deque<std::string> names;
    std::uint32_t seed = 900;
    for (const Speaker& speaker : Speakers) {
        for (const Call& call : Calls) {
            Noise noise(++seed);
            names.push_back("Voices/" + std::string(speaker.language) + "_" + std::string(call.name));
            sounds.push_back({names.back(), makeCall(speaker, call, noise)});
        }
    }
}

} // namespace soundwork
