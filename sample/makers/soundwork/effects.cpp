#include "sounds.h"

#include <cstdint>
#include <span>
#include <utility>

namespace soundwork {
namespace {

// ---- explosions
// ----------------------------------------------------------------------------------------------

struct Explosion {
    std::string_view name;
    float blastDuration;
    float roarCutoff;
    float roarDecay;
    float boomFrequency;
    float boomDecay;
    int fragments; // clods and splinters that come down
    float seconds;
    float drive;
};

constexpr Explosion Explosions[] = {
    {"explosion_small", 0.003F, 5500, 0.12F, 85, 0.14F, 14, 1.00F, 2.4F},
    {"explosion_medium", 0.006F, 4000, 0.20F, 58, 0.24F, 26, 1.35F, 3.0F},
    {"explosion_large", 0.009F, 2800, 0.30F, 42, 0.34F, 36, 1.48F, 3.6F},
    {"explosion_bomb", 0.016F, 1900, 0.42F, 30, 0.50F, 44, 1.49F, 4.2F},
};

Sound makeExplosion(const Explosion& explosion, Noise& noise) {
    Sound sound = silence(explosion.seconds);
    addBlast(sound, 0, explosion.blastDuration, 1.2F);
    addRush(sound, 0,
            {.gain = 2.0F,
             .attack = 0.002F,
             .decay = explosion.roarDecay,
             .cutoff = explosion.roarCutoff,
             .endCutoff = 120},
            noise);
    addTone(sound, 0,
            {.gain = 1.2F,
             .frequency = explosion.boomFrequency * 1.9F,
             .endFrequency = explosion.boomFrequency * 0.6F,
             .decay = explosion.boomDecay,
             .glide = explosion.boomDecay * 0.5F});
    const float firstFall = explosion.roarDecay;
    for (int i = 0; i < explosion.fragments; ++i) {
        const float start = firstFall + chance(noise) * (explosion.seconds - firstFall);
        addRush(sound, start,
                {.gain = 0.10F + 0.12F * chance(noise),
                 .attack = 0.001F,
                 .decay = 0.006F + 0.012F * chance(noise),
                 .cutoff = 1200 + 3500 * chance(noise),
                 .endCutoff = 500,
                 .lowCut = 200},
                noise);
    }
    addEchoes(sound, 0.17F, 0.2F, 500);
    return sound;
}

Sound makeSmokeBurst(Noise& noise) {
    Sound sound = silence(1.4F);
    addBlast(sound, 0, 0.002F, 0.7F);
    addRush(sound, 0, {.gain = 0.9F, .attack = 0.001F, .decay = 0.05F, .cutoff = 3000, .endCutoff = 300},
            noise);
    addRush(
        sound, 0.03F,
        {.gain = 0.55F, .attack = 0.06F, .decay = 0.45F, .cutoff = 8500, .endCutoff = 3000, .lowCut = 1500},
        noise);
    return sound;
}

// ---- reloading
// -------------------------------------------------------------------------------------------------

enum class Part { Click, Clunk, Slide, Ring };

// A moment of a handling sound: metal that clicks, something heavy that clunks, something that slides for
// `length` seconds, metal that rings for about `length`.
struct Moment {
    Part part;
    float start;
    float frequency;
    float length;
    float gain;
};

constexpr Moment Bolt[] = {
    {Part::Click, 0.00F, 2700, 0, 0.8F}, {Part::Slide, 0.03F, 2100, 0.10F, 0.35F},
    {Part::Click, 0.16F, 1900, 0, 0.9F}, {Part::Slide, 0.36F, 1800, 0.10F, 0.35F},
    {Part::Click, 0.47F, 2300, 0, 1.0F}, {Part::Click, 0.55F, 3100, 0, 0.7F},
};
constexpr Moment Magazine[] = {
    {Part::Click, 0.00F, 2400, 0, 0.7F},     {Part::Slide, 0.04F, 1500, 0.12F, 0.25F},
    {Part::Clunk, 0.48F, 420, 0, 0.6F},      {Part::Click, 0.53F, 2000, 0, 1.0F},
    {Part::Slide, 0.80F, 2200, 0.07F, 0.4F}, {Part::Click, 0.89F, 2600, 0, 1.0F},
};
constexpr Moment Belt[] = {
    {Part::Click, 0.00F, 1700, 0, 0.9F},     {Part::Ring, 0.01F, 1300, 0.05F, 0.15F},
    {Part::Click, 0.25F, 3600, 0, 0.35F},    {Part::Click, 0.31F, 3900, 0, 0.35F},
    {Part::Click, 0.37F, 3500, 0, 0.40F},    {Part::Click, 0.43F, 3800, 0, 0.35F},
    {Part::Clunk, 0.70F, 380, 0, 0.6F},      {Part::Click, 0.71F, 1600, 0, 1.0F},
    {Part::Slide, 0.95F, 1900, 0.10F, 0.4F}, {Part::Click, 1.07F, 2200, 0, 1.0F},
};
constexpr Moment ShotgunTube[] = {
    {Part::Click, 0.00F, 1500, 0, 0.5F},     {Part::Click, 0.06F, 2500, 0, 0.6F},
    {Part::Click, 0.40F, 1500, 0, 0.5F},     {Part::Click, 0.46F, 2500, 0, 0.6F},
    {Part::Slide, 0.76F, 1400, 0.09F, 0.5F}, {Part::Clunk, 0.86F, 480, 0, 0.7F},
    {Part::Slide, 0.95F, 1600, 0.08F, 0.5F}, {Part::Clunk, 1.04F, 560, 0, 0.9F},
};
constexpr Moment SmallShell[] = {
    {Part::Slide, 0.00F, 900, 0.20F, 0.5F},  {Part::Clunk, 0.22F, 260, 0, 0.7F},
    {Part::Click, 0.42F, 1400, 0, 0.9F},     {Part::Clunk, 0.43F, 200, 0, 1.0F},
    {Part::Ring, 0.43F, 1150, 0.09F, 0.25F},
};
constexpr Moment LargeShell[] = {
    {Part::Clunk, 0.00F, 150, 0, 0.5F},      {Part::Slide, 0.10F, 520, 0.38F, 0.6F},
    {Part::Clunk, 0.50F, 120, 0, 0.9F},      {Part::Ring, 0.50F, 640, 0.14F, 0.25F},
    {Part::Slide, 0.74F, 700, 0.16F, 0.35F}, {Part::Clunk, 0.92F, 85, 0, 1.2F},
    {Part::Click, 0.92F, 1100, 0, 0.9F},     {Part::Ring, 0.92F, 830, 0.16F, 0.3F},
};
constexpr Moment MortarBomb[] = {
    {Part::Click, 0.00F, 1200, 0, 0.5F},
    {Part::Slide, 0.03F, 700, 0.30F, 0.6F},
    {Part::Ring, 0.05F, 410, 0.12F, 0.3F},
    {Part::Clunk, 0.36F, 190, 0, 1.0F},
};
constexpr Moment RocketTube[] = {
    {Part::Clunk, 0.00F, 240, 0, 0.5F},  {Part::Slide, 0.08F, 1000, 0.45F, 0.5F},
    {Part::Click, 0.58F, 1800, 0, 0.9F}, {Part::Clunk, 0.60F, 300, 0, 0.8F},
    {Part::Click, 0.85F, 2600, 0, 0.7F},
};
constexpr Moment GarandClip[] = {
    {Part::Click, 0.00F, 2400, 0, 0.6F},
    {Part::Ring, 0.01F, 3720, 0.20F, 0.6F},
    {Part::Ring, 0.01F, 5480, 0.14F, 0.35F},
    {Part::Ring, 0.01F, 7350, 0.07F, 0.2F},
};
constexpr Moment BrassCase[] = {
    {Part::Ring, 0.00F, 1240, 0.16F, 0.5F}, {Part::Ring, 0.00F, 2090, 0.11F, 0.35F},
    {Part::Ring, 0.00F, 3310, 0.07F, 0.2F}, {Part::Click, 0.00F, 1800, 0, 0.6F},
    {Part::Ring, 0.29F, 1260, 0.12F, 0.3F}, {Part::Ring, 0.29F, 2130, 0.09F, 0.2F},
    {Part::Click, 0.29F, 1800, 0, 0.3F},    {Part::Ring, 0.47F, 1280, 0.10F, 0.15F},
    {Part::Click, 0.47F, 1900, 0, 0.15F},
};

struct Handling {
    std::string_view name;
    std::span<const Moment> moments;
    float seconds;
};

constexpr Handling Handlings[] = {
    {"reload_bolt", Bolt, 0.75F},
    {"reload_magazine", Magazine, 1.10F},
    {"reload_belt", Belt, 1.25F},
    {"reload_shotgun", ShotgunTube, 1.20F},
    {"reload_shell_small", SmallShell, 0.75F},
    {"reload_shell_large", LargeShell, 1.35F},
    {"reload_mortar", MortarBomb, 0.65F},
    {"reload_rocket", RocketTube, 1.05F},
    {"eject_clip", GarandClip, 0.90F},
    {"eject_shell", BrassCase, 0.95F},
};

void addClick(Sound& sound, const Moment& moment, Noise& noise) {
    addRush(sound, moment.start,
            {.gain = 1.6F * moment.gain,
             .attack = 0.0003F,
             .decay = 0.006F,
             .cutoff = moment.frequency * 2.2F,
             .endCutoff = moment.frequency,
             .lowCut = moment.frequency * 0.4F},
            noise);
    for (const float overtone : {1.0F, 1.83F, 2.71F}) {
        const float frequency = moment.frequency * overtone;
        addTone(sound, moment.start,
                {.gain = 0.25F * moment.gain / overtone,
                 .frequency = frequency,
                 .endFrequency = frequency,
                 .decay = 0.018F / overtone});
    }
}

void addMoment(Sound& sound, const Moment& moment, Noise& noise) {
    switch (moment.part) {
    case Part::Click:
        addClick(sound, moment, noise);
        break;
    case Part::Clunk:
        addTone(sound, moment.start,
                {.gain = moment.gain,
                 .frequency = moment.frequency * 1.5F,
                 .endFrequency = moment.frequency,
                 .decay = 0.045F,
                 .glide = 0.01F});
        addRush(sound, moment.start,
                {.gain = moment.gain, .attack = 0.001F, .decay = 0.02F, .cutoff = 2200, .endCutoff = 300},
                noise);
        break;
    case Part::Slide:
        addRush(sound, moment.start,
                {.gain = moment.gain,
                 .attack = moment.length,
                 .decay = 0.02F,
                 .cutoff = moment.frequency * 1.6F,
                 .endCutoff = moment.frequency,
                 .lowCut = moment.frequency * 0.5F},
                noise);
        break;
    case Part::Ring:
        addTone(sound, moment.start,
                {.gain = moment.gain,
                 .frequency = moment.frequency,
                 .endFrequency = moment.frequency,
                 .decay = moment.length});
        break;
    }
}

} // namespace

void addEffects(std::vector<NamedSound>& sounds) {
    std::uint32_t seed = 500;
    for (const Explosion& explosion : Explosions) {
        Noise noise(++seed);
        Sound sound = makeExplosion(explosion, noise);
        finish(sound, explosion.drive, 0.96F, Ending::FadeOut);
        sounds.push_back({explosion.name, std::move(sound)});
    }
    Noise smokeNoise(++seed);
    sounds.push_back({"explosion_smoke", makeSmokeBurst(smokeNoise)});
    finish(sounds.back().sound, 1.5F, 0.8F, Ending::FadeOut);
    for (const Handling& handling : Handlings) {
        Noise noise(++seed);
        Sound sound = silence(handling.seconds);
        for (const Moment& moment : handling.moments) {
            addMoment(sound, moment, noise);
        }
        finish(sound, 1.2F, 0.7F, Ending::FadeOut);
        sounds.push_back({handling.name, std::move(sound)});
    }
}

} // namespace soundwork
