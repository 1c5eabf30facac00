// Wave.cpp: walks over the chunks of a wave file and takes the first format and the first data.
#include "ui/sound/Wave.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace malvone {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kRiffHead = 12;  // "RIFF", size, "WAVE"
constexpr std::size_t kChunkHead = 8;  // name, size
constexpr std::size_t kFormatBytes = 16;
constexpr std::uint32_t kPcm = 1;
constexpr std::uint32_t kLowestRate = 1000;  // Hz; beyond these the file is damaged
constexpr std::uint32_t kHighestRate = 192000;
constexpr std::size_t kLargestFile = std::size_t{16} << 20U;

std::uint32_t Number(Bytes bytes, std::size_t offset, std::size_t width)
{
    std::uint32_t value = 0;
    for (std::size_t i = width; i > 0; --i) {
        value = value << 8U | bytes[offset + i - 1];
    }
    return value;
}

bool IsNamed(Bytes bytes, std::size_t offset, std::string_view name)
{
    return std::memcmp(bytes.data() + offset, name.data(), name.size()) == 0;
}

bool ReadFormat(Bytes format, Wave& wave)
{
    if (format.size() < kFormatBytes || Number(format, 0, 2) != kPcm) {
        return false;
    }
    const std::uint32_t channels = Number(format, 2, 2);
    const std::uint32_t bits = Number(format, 14, 2);
    wave.Rate = Number(format, 4, 4);
    wave.Channels = static_cast<std::uint8_t>(channels);
    wave.Bits = static_cast<std::uint8_t>(bits);
    return (channels == 1 || channels == 2) && (bits == 8 || bits == 16) &&
           wave.Rate >= kLowestRate && wave.Rate <= kHighestRate;
}

}  // namespace

std::optional<Wave> ReadWave(Bytes bytes)
{
    if (bytes.size() < kRiffHead || !IsNamed(bytes, 0, "RIFF") || !IsNamed(bytes, 8, "WAVE")) {
        return std::nullopt;
    }
    Bytes format;
    Bytes data;
    std::size_t offset = kRiffHead;
    while (bytes.size() - offset >= kChunkHead) {
        const std::size_t content = offset + kChunkHead;
        const std::size_t length =
            std::min<std::size_t>(Number(bytes, offset + 4, 4), bytes.size() - content);
        if (format.empty() && IsNamed(bytes, offset, "fmt ")) {
            format = bytes.subspan(content, length);
        } else if (data.empty() && IsNamed(bytes, offset, "data")) {
            data = bytes.subspan(content, length);
        }
        // A chunk of odd size is followed by a padding byte.
        offset = std::min(content + length + length % 2, bytes.size());
    }
    Wave wave;
    if (!ReadFormat(format, wave)) {
        return std::nullopt;
    }
    data = data.first(data.size() - data.size() % wave.FrameBytes());
    if (data.empty()) {
        return std::nullopt;
    }
    wave.Data.assign(data.begin(), data.end());
    return wave;
}

std::optional<Wave> LoadWave(const std::string& path)
{
    // Opening a pipe would block.
    std::error_code error;
    const std::filesystem::path file(path);
    if (!std::filesystem::is_regular_file(file, error)) {
        return std::nullopt;
    }
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    std::ifstream stream(file, std::ios::binary);
    if (error || !stream) {
        return std::nullopt;
    }
    std::string content(static_cast<std::size_t>(std::min<std::uintmax_t>(size, kLargestFile)),
                        '\0');
    stream.read(content.data(), static_cast<std::streamsize>(content.size()));
    content.resize(static_cast<std::size_t>(stream.gcount()));
    return ReadWave({reinterpret_cast<const std::uint8_t*>(content.data()), content.size()});
}

}  // namespace malvone
