#include "wave_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

namespace soundwork {
namespace {

constexpr std::uint32_t Channels = 1;
constexpr std::uint32_t BytesPerSample = 2;

// The format is little-endian, whatever the machine is.
void appendNumber(std::string& bytes, std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i) {
        bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFFU));
    }
}

std::string waveHeader(std::uint32_t dataSize, std::uint32_t samplesPerSecond) {
    constexpr std::uint32_t formatChunkSize = 16;
    constexpr std::uint32_t plainSamples = 1;
    constexpr std::uint32_t sizeBeforeData = 36; // of the header, without its first eight bytes
    std::string header = "RIFF";
    appendNumber(header, sizeBeforeData + dataSize, 4);
    header += "WAVEfmt ";
    appendNumber(header, formatChunkSize, 4);
    appendNumber(header, plainSamples, 2);
    appendNumber(header, Channels, 2);
    appendNumber(header, samplesPerSecond, 4);
    appendNumber(header, samplesPerSecond * Channels * BytesPerSample, 4);
    appendNumber(header, Channels * BytesPerSample, 2);
    appendNumber(header, BytesPerSample * 8, 2);
    header += "data";
    appendNumber(header, dataSize, 4);
    return header;
}

} // namespace

bool writeWaveFile(const std::filesystem::path& path, std::span<const float> samples, int samplesPerSecond) {
    const auto dataSize = static_cast<std::uint32_t>(samples.size() * BytesPerSample);
    std::string bytes = waveHeader(dataSize, static_cast<std::uint32_t>(samplesPerSecond));
    bytes.reserve(bytes.size() + dataSize);
    for (const float sample : samples) {
        const auto value = static_cast<std::int16_t>(std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767.0F));
        appendNumber(bytes, static_cast<std::uint16_t>(value), 2);
    }
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return !file.fail();
}

} // namespace soundwork
