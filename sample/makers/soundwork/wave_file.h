#pragma once
// Uncompressed sound files: one channel, 16 bits.

#include <filesystem>
#include <span>

namespace soundwork {

/// Writes samples of -1 to 1 (what lies beyond is cut) as a WAV file, replacing an existing one. False when
/// the file could not be created or written whole.
bool writeWaveFile(const std::filesystem::path& path, std::span<const float> samples, int samplesPerSecond);

} // namespace soundwork
