#include "editors/unit/play_sound_win32.h"

#include <windows.h>

#include <mmsystem.h>

namespace varrocade {

std::string_view playSound(const std::string& path) {
    // The system plays to nobody without complaint.
    if (waveOutGetNumDevs() == 0) {
        return "no sound device";
    }
    return PlaySoundA(path.c_str(), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT) != FALSE
               ? std::string_view()
               : "cannot be played";
}

void stopSound() {
    PlaySoundA(nullptr, nullptr, 0);
}

} // namespace varrocade
