#include "sounds.h"

#include <cmath>
#include <cstdint>
#include <numbers>
#include <utility>

namespace soundwork {
namespace {

constexpr float LoopSeconds = 1.2F;
constexpr float BlendSeconds = 0.25F; // made beyond the loop's end and blended into its beginning
constexpr float Rate = static_cast<float>(SamplesPerSecond);
constexpr float Turn = 2.0F * std::numbers::pi_v<float>;

// The nearest frequency of which a whole number of periods fits into the loop.
float looped(float frequency) {
    return std::round(frequency * LoopSeconds) / LoopSeconds;
}

// A four-stroke engine fires half its cylinders in a turn; no two of them alike, which gives the growl below
// the firing frequency. The propeller adds its blades, the air a rush.
struct PistonEngine {
    std::string_view name;
    int cylinders;
    float revolutions; // a second
    int blades;
    float propellerShare; // turns of the propeller to one of the engine
    float secondEngine;   // how much faster a second engine turns, 0 for none
    float rush;
    float siren; // hertz, 0 for none
};

constexpr PistonEngine PistonEngines[] = {
    {"aircraft_inline", 12, 45.0F, 3, 0.48F, 0, 0.10F, 0},
    {"aircraft_radial", 18, 43.0F, 4, 0.50F, 0, 0.16F, 0},
    {"aircraft_twin", 12, 42.0F, 3, 0.56F, 1.021F, 0.13F, 0},
    {"aircraft_stuka", 12, 42.0F, 3, 0.55F, 0, 0.12F, 610},
};

constexpr int Overtones = 14;

void addCylinders(Sound& sound, const PistonEngine& engine, float speed, std::uint32_t seed) {
    Noise noise(seed);
    const float cycle = looped(engine.revolutions * speed * 0.5F);
    // Overtones of one working cycle: strong at the firing frequency and its multiples, weak between.
    for (int i = 1; i <= engine.cylinders * Overtones / 4; ++i) {
        const bool firing = i % engine.cylinders == 0;
        const bool half = 2 * i % engine.cylinders == 0;
        const float order = static_cast<float>(i) / static_cast<float>(engine.cylinders);
        const float strength = (firing ? 1.0F : half ? 0.55F : 0.16F) / (1.0F + 1.3F * order);
        const float gain = strength * (0.7F + 0.3F * noise.next());
        const float phase = Turn * chance(noise);
        const float step = Turn * cycle * static_cast<float>(i) / Rate;
        for (std::size_t k = 0; k < sound.size(); ++k) {
            sound[k] += gain * std::sin(phase + step * static_cast<float>(k));
        }
    }
}

void addPropeller(Sound& sound, const PistonEngine& engine, float speed, Noise& noise) {
    const float blade =
        looped(engine.revolutions * speed * engine.propellerShare * static_cast<float>(engine.blades));
    LowPass air;
    for (std::size_t k = 0; k < sound.size(); ++k) {
        const float phase = Turn * blade * static_cast<float>(k) / Rate;
        // The pressure of a blade passing by is a peak, not a sine.
        const float beat = std::exp(2.0F * (std::cos(phase) - 1.0F));
        sound[k] +=
            0.9F * (beat - 0.3F) + engine.rush * (0.4F + beat) * air.filter(noise.next(), 2500.0F) * 4.0F;
    }
}

// The wail of a wind-driven siren: a rough tone that wavers.
void addSiren(Sound& sound, float frequency) {
    const float tone = looped(frequency);
    const float waver = looped(2.5F);
    for (std::size_t k = 0; k < sound.size(); ++k) {
        const float time = static_cast<float>(k) / Rate;
        const float phase = Turn * tone * time + 9.0F * std::sin(Turn * waver * time);
        sound[k] += 0.8F * std::sin(phase) + 0.45F * std::sin(2.0F * phase) + 0.3F * std::sin(3.0F * phase);
    }
}

Sound makePistonEngine(const PistonEngine& engine, std::uint32_t seed) {
    Noise noise(seed);
    Sound sound = silence(LoopSeconds + BlendSeconds);
    addCylinders(sound, engine, 1.0F, seed + 1);
    addPropeller(sound, engine, 1.0F, noise);
    if (engine.secondEngine > 0) {
        addCylinders(sound, engine, engine.secondEngine, seed + 2);
        addPropeller(sound, engine, engine.secondEngine, noise);
    }
    if (engine.siren > 0) {
        addSiren(sound, engine.siren);
    }
    return sound;
}

struct Helicopter {
    std::string_view name;
    float bladesPerSecond;
    float slap;    // how hard each blade beats
    float turbine; // hertz of its whine
    float roar;
};

// Two blades at 324 turns a minute, and five at 240.
constexpr Helicopter Helicopters[] = {
    {"helicopter_two_blade", 10.8F, 1.3F, 2350, 0.10F},
    {"helicopter_heavy", 20.0F, 0.8F, 2900, 0.22F},
};

Sound makeHelicopter(const Helicopter& helicopter, std::uint32_t seed) {
    Noise noise(seed);
    Sound sound = silence(LoopSeconds + BlendSeconds);
    const float blades = looped(helicopter.bladesPerSecond);
    for (float start = 0; start < LoopSeconds + BlendSeconds; start += 1.0F / blades) {
        addTone(
            sound, start,
            {.gain = helicopter.slap, .frequency = 130, .endFrequency = 48, .decay = 0.03F, .glide = 0.012F});
        addRush(sound, start,
                {.gain = 0.9F * helicopter.slap,
                 .attack = 0.006F,
                 .decay = 0.022F,
                 .cutoff = 1500,
                 .endCutoff = 200},
                noise);
    }
    LowPass air;
    for (std::size_t k = 0; k < sound.size(); ++k) {
        const float time = static_cast<float>(k) / Rate;
        const float whine = std::sin(Turn * looped(helicopter.turbine) * time) +
                            0.6F * std::sin(Turn * looped(helicopter.turbine * 1.52F) * time);
        sound[k] += 0.035F * whine + helicopter.roar * 5.0F * air.filter(noise.next(), 1100.0F);
    }
    return sound;
}

} // namespace

void addEngines(std::vector<NamedSound>& sounds) {
    std::uint32_t seed = 900;
    for (const PistonEngine& engine : PistonEngines) {
        Sound sound = makePistonEngine(engine, seed += 10);
        makeLoop(sound, LoopSeconds);
        finish(sound, 1.4F, 0.8F, Ending::Loop);
        sounds.push_back({engine.name, std::move(sound)});
    }
    for (const Helicopter& helicopter : Helicopters) {
        Sound sound = makeHelicopter(helicopter, seed += 10);
        makeLoop(sound, LoopSeconds);
        finish(sound, 1.6F, 0.85F, Ending::Loop);
        sounds.push_back({helicopter.name, std::move(sound)});
    }
}

} // namespace soundwork
