// Wave.h: reads wave files: RIFF/WAVE with PCM samples of 8 or 16 bits, one or two channels.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace malvone {

// A wave as a sound server takes it. Data holds whole frames and is never empty.
struct Wave
{
    std::uint32_t Rate = 0;  // frames per second
    std::uint8_t Channels = 0;
    std::uint8_t Bits = 0;  // 8: unsigned; 16: signed, little endian
    std::vector<std::uint8_t> Data;

    std::size_t FrameBytes() const { return std::size_t{Channels} * Bits / 8; }
};

// Nothing if the bytes are no wave that can be played. A truncated wave keeps what there is.
std::optional<Wave> ReadWave(std::span<const std::uint8_t> bytes);

// The same for a regular file, of which at most 16 MiB are read.
std::optional<Wave> LoadWave(const std::string& path);

}  // namespace malvone
