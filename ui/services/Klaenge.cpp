// Klaenge.cpp: the list of sounds, and when they are played.
#include "ui/services/Klaenge.h"

#include <cstddef>

#include "state/Pfade.h"
#include "ui/layer/App.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

namespace {

constexpr const char* kDateien[kToene] = {
    "TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV", "BLIP.WAV", "ding.wav",
};

}  // namespace

void SoundListeAnlegen()
{
    for (std::size_t i = 0; i < SoundDateien.size(); ++i) {
        const std::string datei = ProgrammOrdner() + kDateien[i];
        SoundDateien[i] = App.System().HasFile(datei) ? datei : "";
    }
}

bool SoundKarteVorhanden()
{
    return App.System().waveOutGetNumDevs() != 0;
}

void SoundSpielen(int index)
{
    if (frmTessel->mnuSoundan.Checked) {
        SoundDirekt(index);
    }
}

void SoundDirekt(int index)
{
    if (!App.Ended()) {
        App.System().sndPlaySoundA(SoundDateien[static_cast<std::size_t>(index)]);
    }
}

}  // namespace malvone
