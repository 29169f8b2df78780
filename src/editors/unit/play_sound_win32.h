#pragma once

#include <string>
#include <string_view>

namespace varrocade {

/// Plays a sound file while the program goes on, in the place of one that is still playing. Returns why it
/// stays silent, in a few words, or nothing.
std::string_view playSound(const std::string& path);

/// Ends what is playing.
void stopSound();

} // namespace varrocade
