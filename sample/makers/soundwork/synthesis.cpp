#include "synthesis.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace soundwork {
namespace {

constexpr float Rate = static_cast<float>(SamplesPerSecond);
constexpr float Turn = 2.0F * std::numbers::pi_v<float>;
// Six time constants: what is left is below a four-hundredth.
constexpr float DecaysUntilSilent = 6.0F;

std::size_t sampleAt(float seconds) {
    return static_cast<std::size_t>(std::max(0.0F, seconds) * Rate);
}

// The share of the difference that a one-pole filter makes up in one sample.
float onePoleStep(float cutoff) {
    return 1.0F - std::exp(-Turn * std::min(cutoff, Rate * 0.45F) / Rate);
}

std::size_t endOf(const Sound& sound, std::size_t first, float decay) {
    return std::min(sound.size(), first + sampleAt(decay * DecaysUntilSilent));
}

} // namespace

float Noise::next() {
    state_ ^= state_ << 13U;
    state_ ^= state_ >> 17U;
    state_ ^= state_ << 5U;
    return static_cast<float>(state_ >> 8U) / static_cast<float>(1U << 23U) - 1.0F;
}

float chance(Noise& noise) {
    return 0.5F * (noise.next() + 1.0F);
}

float LowPass::filter(float sample, float cutoff) {
    const float step = onePoleStep(cutoff);
    first_ += step * (sample - first_);
    second_ += step * (first_ - second_);
    return second_;
}

float HighPass::filter(float sample, float cutoff) {
    low_ += onePoleStep(cutoff) * (sample - low_);
    return sample - low_;
}

Sound silence(float seconds) {
    return Sound(sampleAt(seconds), 0.0F);
}

void addRush(Sound& sound, float start, const Rush& rush, Noise& noise) {
    LowPass lowPass;
    HighPass highPass;
    const std::size_t first = sampleAt(start);
    const std::size_t end = endOf(sound, first, rush.decay + rush.attack / DecaysUntilSilent);
    for (std::size_t i = first; i < end; ++i) {
        const float time = static_cast<float>(i - first) / Rate;
        const float fall = std::exp(-std::max(0.0F, time - rush.attack) / rush.decay);
        const float rise = std::min(1.0F, time / rush.attack);
        const float cutoff = rush.endCutoff + (rush.cutoff - rush.endCutoff) * fall;
        sound[i] +=
            rush.gain * rise * fall * highPass.filter(lowPass.filter(noise.next(), cutoff), rush.lowCut);
    }
}

void addTone(Sound& sound, float start, const Tone& tone) {
    const std::size_t first = sampleAt(start);
    const std::size_t end = endOf(sound, first, tone.decay);
    float phase = 0.0F;
    for (std::size_t i = first; i < end; ++i) {
        const float time = static_cast<float>(i - first) / Rate;
        const float glided = std::exp(-time / tone.glide);
        const float frequency = tone.endFrequency + (tone.frequency - tone.endFrequency) * glided;
        phase += Turn * frequency / Rate;
        sound[i] += tone.gain * std::exp(-time / tone.decay) * std::sin(phase);
    }
}

void addBlast(Sound& sound, float start, float duration, float gain) {
    const std::size_t first = sampleAt(start);
    const std::size_t end = endOf(sound, first, duration);
    for (std::size_t i = first; i < end; ++i) {
        const float scaled = static_cast<float>(i - first) / Rate / duration;
        sound[i] += gain * (1.0F - scaled) * std::exp(-scaled);
    }
}

void addEchoes(Sound& sound, float delay, float gain, float cutoff) {
    LowPass lowPass;
    // The echo of an echo comes by itself, since the buffer already holds the first when the second is read.
    for (std::size_t i = sampleAt(delay); i < sound.size(); ++i) {
        sound[i] += gain * lowPass.filter(sound[i - sampleAt(delay)], cutoff);
    }
}

void makeLoop(Sound& sound, float length) {
    const std::size_t loop = std::min(sampleAt(length), sound.size());
    const std::size_t blend = std::min(sound.size() - loop, loop);
    for (std::size_t i = 0; i < blend; ++i) {
        const float share = static_cast<float>(i) / static_cast<float>(blend);
        sound[i] = sound[i] * share + sound[loop + i] * (1.0F - share);
    }
    sound.resize(loop);
}

void finish(Sound& sound, float drive, float peak, Ending ending) {
    float loudest = 0.0F;
    for (const float sample : sound) {
        loudest = std::max(loudest, std::abs(sample));
    }
    if (loudest <= 0.0F) {
        return;
    }
    const float fullDrive = std::tanh(drive);
    const std::size_t fade = ending == Ending::FadeOut ? std::min(sound.size(), sampleAt(0.03F)) : 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] = peak * std::tanh(drive * sound[i] / loudest) / fullDrive;
        const std::size_t left = sound.size() - i;
        if (left <= fade) {
            sound[i] *= static_cast<float>(left - 1) / static_cast<float>(fade);
        }
    }
}

} // namespace soundwork
