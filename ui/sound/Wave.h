// Wave.h: reads wave files: RIFF/WAVE with PCM samples of 8 or 16 bits, one or two channels.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace malvone {

// A wave as it is handed to a sound server. Data holds whole frames and is never empty.
struct Wave
{
    std::uint32_t Rate = 0;  // frames per second
    std::uint8_t Channels = 0;
    std::uint8_t Bits = 0;  // 8: unsigned; 16: signed, little endian
    std::vector<std::uint8_t> Data;

    std::size_t FrameBytes() const { return std::size_t{Channels} * Bits / 8; }
};

// Nothing where the bytes are no wave that can sound. A wave whose end is missing keeps what is
// there.
std::optional<Wave> ReadWave(std::span<const std::uint8_t> bytes);

// The same for an ordinary file; what lies behind the first 16 MiB is left out.
std::optional<Wave> LoadWave(const std::string& path);

}  // namespace malvone
