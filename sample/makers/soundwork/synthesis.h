#pragma once
// The building blocks of the sounds: noise, filters, decaying tones and pulses, added into a buffer at a
// time. Times are seconds, frequencies hertz, gains factors of full scale. Everything is deterministic: the
// same program makes the same files, byte for byte (on one platform).

#include <cstddef>
#include <cstdint>
#include <vector>

namespace soundwork {

inline constexpr int SamplesPerSecond = 22050;

/// One channel of samples; anything goes while mixing, `finish` brings it into -1 to 1.
using Sound = std::vector<float>;

/// White noise of -1 to 1 with its own state (xorshift).
class Noise {
public:
    explicit Noise(std::uint32_t seed) : state_(seed * 2654435761U + 1U) {}
    float next();

private:
    std::uint32_t state_;
};

/// A low-pass filter of 12 dB an octave.
class LowPass {
public:
    float filter(float sample, float cutoff);

private:
    float first_ = 0.0F;
    float second_ = 0.0F;
};

/// A high-pass filter of 6 dB an octave.
class HighPass {
public:
    float filter(float sample, float cutoff);

private:
    float low_ = 0.0F;
};

[[nodiscard]] Sound silence(float seconds);

/// Noise that starts at once and dies away, duller and duller: the cutoff falls from `cutoff` to `endCutoff`
/// with the same time constant as the loudness.
struct Rush {
    float gain = 1.0F;
    float attack = 0.001F;
    float decay = 0.1F; ///< time constant
    float cutoff = 4000.0F;
    float endCutoff = 300.0F;
    float lowCut = 30.0F;
};
void addRush(Sound& sound, float start, const Rush& rush, Noise& noise);

/// A sine that dies away while its frequency glides to `endFrequency`.
struct Tone {
    float gain = 1.0F;
    float frequency = 100.0F;
    float endFrequency = 60.0F;
    float decay = 0.1F; ///< time constant of the loudness
    float glide = 0.05F;
};
void addTone(Sound& sound, float start, const Tone& tone);

/// The pressure wave of a blast after Friedlander: p(t) = (1 - t/d) exp(-t/d), a jump and a long dip.
void addBlast(Sound& sound, float start, float duration, float gain);

/// What a valley answers: duller repetitions, each weaker than the one before.
void addEchoes(Sound& sound, float delay, float gain, float cutoff);

/// Makes a sound of `length` seconds repeat without a seam: what lies beyond is blended into its beginning.
void makeLoop(Sound& sound, float length);

/// Rounds off the loudest parts (`drive` above 1: harder), fades the last milliseconds out unless it is a
/// loop, and scales the whole to `peak`.
enum class Ending { FadeOut, Loop };
void finish(Sound& sound, float drive, float peak, Ending ending);

/// A pseudo-random but fixed value of 0 to 1 from `noise`.
[[nodiscard]] float chance(Noise& noise);

} // namespace soundwork
