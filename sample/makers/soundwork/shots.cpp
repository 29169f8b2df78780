#include "sounds.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace soundwork {
namespace {

// One shot, heard from some ten metres beside the gun: the pressure wave, the roar of the gases, the low boom
// and the answer of the landscape. Big guns are longer, lower and duller.
struct ShotShape {
    float blastDuration;
    float roarCutoff;
    float roarDecay;
    float boomFrequency;
    float boomDecay;
    float boomGain;
    float tailDecay;
    float tailGain;
};

constexpr ShotShape Pistol{0.0006F, 6000, 0.035F, 210, 0.04F, 0.35F, 0.12F, 0.10F};
constexpr ShotShape Submachine{0.0006F, 5200, 0.030F, 190, 0.04F, 0.35F, 0.10F, 0.07F};
constexpr ShotShape Rifle{0.0009F, 7000, 0.050F, 130, 0.06F, 0.45F, 0.25F, 0.16F};
constexpr ShotShape MachineGun{0.0009F, 6200, 0.040F, 140, 0.05F, 0.45F, 0.18F, 0.09F};
constexpr ShotShape HeavyMachineGun{0.0016F, 4600, 0.060F, 95, 0.09F, 0.65F, 0.25F, 0.12F};
constexpr ShotShape AntiTankRifle{0.0017F, 5000, 0.090F, 85, 0.12F, 0.70F, 0.35F, 0.22F};
constexpr ShotShape Shotgun{0.0013F, 3600, 0.080F, 115, 0.10F, 0.65F, 0.28F, 0.16F};
constexpr ShotShape Autocannon{0.0018F, 4200, 0.070F, 88, 0.10F, 0.70F, 0.25F, 0.12F};
constexpr ShotShape SmallCannon{0.0026F, 4400, 0.110F, 76, 0.16F, 0.80F, 0.38F, 0.24F};
constexpr ShotShape MediumCannon{0.0042F, 3300, 0.160F, 56, 0.24F, 0.95F, 0.48F, 0.30F};
constexpr ShotShape LargeCannon{0.0060F, 2500, 0.220F, 43, 0.32F, 1.05F, 0.55F, 0.34F};
constexpr ShotShape Howitzer{0.0075F, 1700, 0.260F, 37, 0.38F, 1.20F, 0.58F, 0.36F};
constexpr ShotShape Recoilless{0.0032F, 5200, 0.280F, 62, 0.18F, 0.70F, 0.50F, 0.40F};

void addShot(Sound& sound, float start, const ShotShape& shape, float gain, Noise& noise) {
    addBlast(sound, start, shape.blastDuration, 1.1F * gain);
    addRush(sound, start,
            {.gain = 1.6F * gain,
             .attack = 0.0005F,
             .decay = shape.roarDecay,
             .cutoff = shape.roarCutoff,
             .endCutoff = 250},
            noise);
    addTone(sound, start,
            {.gain = shape.boomGain * gain,
             .frequency = shape.boomFrequency * 1.8F,
             .endFrequency = shape.boomFrequency * 0.7F,
             .decay = shape.boomDecay,
             .glide = shape.boomDecay * 0.4F});
    addRush(sound, start + 0.02F,
            {.gain = shape.tailGain * gain,
             .attack = 0.03F,
             .decay = shape.tailDecay,
             .cutoff = shape.roarCutoff * 0.3F,
             .endCutoff = 140},
            noise);
}

struct SingleShot {
    std::string_view name;
    ShotShape shape;
    float seconds;
    float drive; // how hard the loudest part is rounded off
};

constexpr SingleShot SingleShots[] = {
    {"shot_pistol", Pistol, 0.55F, 1.5F},
    {"shot_rifle", Rifle, 0.90F, 1.8F},
    {"shot_rifle_heavy", AntiTankRifle, 1.10F, 2.2F},
    {"shot_shotgun", Shotgun, 0.90F, 2.0F},
    {"shot_cannon_small", SmallCannon, 1.20F, 2.4F},
    {"shot_cannon_medium", MediumCannon, 1.40F, 2.8F},
    {"shot_cannon_large", LargeCannon, 1.48F, 3.2F},
    {"shot_howitzer", Howitzer, 1.48F, 3.2F},
    {"shot_recoilless", Recoilless, 1.40F, 2.6F},
};

struct Burst {
    std::string_view name;
    ShotShape shape;
    int rounds;
    float roundsPerSecond;
    float drive;
};

// The rates are the cyclic rates of typical weapons: 540 a minute for a submachine gun, 1200 for the fast
// one, 3000 for six turning barrels.
constexpr Burst Bursts[] = {
    {"burst_smg", Submachine, 6, 9.0F, 1.6F},        {"burst_lmg", MachineGun, 7, 9.0F, 1.8F},
    {"burst_hmg", MachineGun, 9, 9.6F, 1.9F},        {"burst_hmg_heavy", HeavyMachineGun, 8, 8.3F, 2.2F},
    {"burst_mg42", MachineGun, 18, 20.0F, 1.9F},     {"burst_minigun", Submachine, 55, 50.0F, 2.0F},
    {"burst_autocannon", Autocannon, 8, 9.2F, 2.3F}, {"burst_grenades", Shotgun, 6, 6.7F, 1.8F},
};

constexpr float BurstEnd = 0.35F; // the last shot dies away

Sound makeBurst(const Burst& burst, Noise& noise) {
    const float interval = 1.0F / burst.roundsPerSecond;
    Sound sound = silence(interval * static_cast<float>(burst.rounds - 1) + BurstEnd);
    for (int i = 0; i < burst.rounds; ++i) {
        // No gun fires like a clock: a twentieth of the interval early or late, a tenth louder or softer.
        const float start = interval * (static_cast<float>(i) + 0.05F * noise.next());
        addShot(sound, start, burst.shape, 1.0F + 0.1F * noise.next(), noise);
        addTone(sound, start + interval * 0.45F,
                {.gain = 0.05F, .frequency = 2600, .endFrequency = 2300, .decay = 0.01F});
    }
    return sound;
}

// A bomb leaving a tube: more of the tube than of the powder.
Sound makeTubeShot(float frequency, float seconds, Noise& noise) {
    Sound sound = silence(seconds);
    addBlast(sound, 0, 0.004F, 0.5F);
    for (const float overtone : {1.0F, 2.02F, 3.05F}) {
        addTone(sound, 0,
                {.gain = 0.9F / (overtone * overtone),
                 .frequency = frequency * overtone * 1.25F,
                 .endFrequency = frequency * overtone,
                 .decay = 0.13F / overtone,
                 .glide = 0.03F});
    }
    addRush(sound, 0, {.gain = 0.7F, .attack = 0.004F, .decay = 0.09F, .cutoff = 1800, .endCutoff = 200},
            noise);
    addRush(sound, 0.04F, {.gain = 0.12F, .attack = 0.05F, .decay = 0.2F, .cutoff = 700, .endCutoff = 150},
            noise);
    return sound;
}

struct Launch {
    std::string_view name;
    float popGain; // the charge that throws the projectile out
    float whistle; // hertz of the howl, 0 for none
    float jetCutoff;
    float jetDecay;
    float seconds;
};

constexpr Launch Launches[] = {
    {"shot_rpg", 1.0F, 0, 5200, 0.22F, 1.2F},
    {"shot_missile", 0.6F, 0, 6500, 0.40F, 1.48F},
    {"shot_rocket", 0.3F, 420, 4200, 0.42F, 1.48F},
};

Sound makeLaunch(const Launch& launch, Noise& noise) {
    Sound sound = silence(launch.seconds);
    addShot(sound, 0, Recoilless, 0.6F * launch.popGain, noise);
    addRush(sound, 0.03F,
            {.gain = 1.4F,
             .attack = 0.09F,
             .decay = launch.jetDecay,
             .cutoff = launch.jetCutoff,
             .endCutoff = 500,
             .lowCut = 180},
            noise);
    if (launch.whistle > 0) {
        // The howl sinks as the rocket flies away; two that do not quite agree sound hoarse.
        for (const float detune : {1.0F, 1.017F, 1.494F}) {
            addTone(sound, 0.05F,
                    {.gain = 0.16F,
                     .frequency = launch.whistle * detune * 1.7F,
                     .endFrequency = launch.whistle * detune * 0.6F,
                     .decay = launch.jetDecay,
                     .glide = 0.5F});
        }
    }
    return sound;
}

Sound makeFlame(Noise& noise) {
    constexpr float seconds = 1.45F;
    Sound sound = silence(seconds);
    LowPass roar;
    LowPass flutter;
    HighPass highPass;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const float time = static_cast<float>(i) / static_cast<float>(SamplesPerSecond);
        const float rise = std::min(1.0F, time / 0.12F);
        const float fall = std::min(1.0F, (seconds - time) / 0.35F);
        const float waver = 1.0F + 6.0F * flutter.filter(noise.next(), 9.0F);
        sound[i] =
            rise * fall * waver * highPass.filter(roar.filter(noise.next(), 900.0F + 700.0F * rise), 60.0F);
    }
    addRush(sound, 0, {.gain = 0.5F, .attack = 0.01F, .decay = 0.06F, .cutoff = 6000, .endCutoff = 2000},
            noise);
    return sound;
}

} // namespace

void addShots(std::vector<NamedSound>& sounds) {
    std::uint32_t seed = 100;
    for (const SingleShot& shot : SingleShots) {
        Noise noise(++seed);
        Sound sound = silence(shot.seconds);
        addShot(sound, 0, shot.shape, 1.0F, noise);
        addEchoes(sound, 0.11F + shot.shape.boomDecay * 0.3F, 0.16F, 900);
        finish(sound, shot.drive, 0.95F, Ending::FadeOut);
        sounds.push_back({shot.name, std::move(sound)});
    }
    for (const Burst& burst : Bursts) {
        Noise noise(++seed);
        Sound sound = makeBurst(burst, noise);
        finish(sound, burst.drive, 0.92F, Ending::FadeOut);
        sounds.push_back({burst.name, std::move(sound)});
    }
    for (const Launch& launch : Launches) {
        Noise noise(++seed);
        Sound sound = makeLaunch(launch, noise);
        finish(sound, 1.8F, 0.92F, Ending::FadeOut);
        sounds.push_back({launch.name, std::move(sound)});
    }
    Noise noise(++seed);
    sounds.push_back({"shot_mortar", makeTubeShot(135, 0.8F, noise)});
    finish(sounds.back().sound, 1.6F, 0.9F, Ending::FadeOut);
    sounds.push_back({"shot_grenade_launcher", makeTubeShot(230, 0.5F, noise)});
    finish(sounds.back().sound, 1.4F, 0.85F, Ending::FadeOut);
    sounds.push_back({"flame", makeFlame(noise)});
    finish(sounds.back().sound, 1.6F, 0.85F, Ending::FadeOut);
}

} // namespace soundwork
