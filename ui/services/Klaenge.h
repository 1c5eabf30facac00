// Klaenge.h: which sounds the game has, and when it plays them.
#pragma once

#include <array>
#include <string>

namespace malvone {

// The sounds by their index in the list.
inline constexpr int kTonErfolg = 0;
inline constexpr int kTonEntfernt = 1;
inline constexpr int kTonBeginn = 2;
inline constexpr int kTonFrage = 3;
inline constexpr int kTonFehler = 4;
inline constexpr int kTonPiep = 5;  // not used
inline constexpr int kTonHinweis = 6;
inline constexpr int kToene = 7;

// The full paths of the sounds, as the game writes paths; empty where the file is missing.
inline std::array<std::string, kToene> SoundDateien;

// Fills the list; the entry of a missing file stays empty.
void SoundListeAnlegen();

// Whether the system has a device that plays waves.
bool SoundKarteVorhanden();

// Plays a sound by its index, 0 to 6, if sound is switched on in the menu.
void SoundSpielen(int index);
// Plays it whatever the menu says.
void SoundDirekt(int index);

}  // namespace malvone
