// SoundTest.cpp: which files are waves. How they sound is heard in server_e2e.py.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "tests/support/Folder.h"
#include "ui/sound/Wave.h"

namespace malvone {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::string Number(std::uint32_t value, int width)
{
    std::string bytes;
    for (int i = 0; i < width; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    }
    return bytes;
}

std::string Chunk(const std::string& name, const std::string& content)
{
    return name + Number(static_cast<std::uint32_t>(content.size()), 4) + content +
           (content.size() % 2 == 1 ? std::string(1, '\0') : "");
}

std::string Format(std::uint32_t kind, std::uint32_t channels, std::uint32_t rate,
                   std::uint32_t bits)
{
    const std::uint32_t frame = channels * bits / 8;
    return Chunk("fmt ", Number(kind, 2) + Number(channels, 2) + Number(rate, 4) +
                             Number(rate * frame, 4) + Number(frame, 2) + Number(bits, 2));
}

std::string Riff(const std::string& chunks)
{
    return Chunk("RIFF", "WAVE" + chunks);
}

std::optional<Wave> Read(const std::string& file)
{
    const Bytes bytes(file.begin(), file.end());
    return ReadWave(bytes);
}

const std::string kFormat = Format(1, 1, 44100, 16);
const std::string kData = Chunk("data", "abcdef");
const std::string kWave = Riff(kFormat + kData);

TEST(Wave, KnowsTheFormatsThatCanSound)
{
    // Of 257 channels the low byte is 1, of 272 bits 16.
    using Numbers = std::tuple<std::uint32_t, std::uint32_t, std::uint32_t>;
    for (const auto& [channels, rate, bits] :
         {Numbers{1, 44100, 16}, {2, 8000, 8}, {1, 1000, 8}, {2, 192000, 16}}) {
        const auto wave = Read(Riff(Format(1, channels, rate, bits) + kData));
        ASSERT_TRUE(wave) << channels << " channels, " << rate << " Hz, " << bits << " bits";
        EXPECT_EQ(Numbers(wave->Channels, wave->Rate, wave->Bits), Numbers(channels, rate, bits));
    }
    for (const auto& [channels, rate, bits] : {Numbers{0, 44100, 16},
                                               {3, 44100, 16},
                                               {257, 44100, 16},
                                               {1, 44100, 0},
                                               {1, 44100, 24},
                                               {1, 44100, 272},
                                               {1, 0, 16},
                                               {1, 999, 16},
                                               {1, 4294967295U, 16}}) {
        EXPECT_FALSE(Read(Riff(Format(1, channels, rate, bits) + kData)))
            << channels << " channels, " << rate << " Hz, " << bits << " bits";
    }
    EXPECT_FALSE(Read(Riff(Format(3, 1, 44100, 16) + kData))) << "samples that are not PCM";
}

TEST(Wave, TakesFromADamagedFileWhatIsThere)
{
    const std::string foreign = Chunk("LIST", "odd");
    const std::string longFormat = Chunk("fmt ", kFormat.substr(8) + std::string(2, '\0'));
    const std::string endless = Number(0xFFFFFFFF, 4);
    const std::tuple<const char*, std::string, const char*> cases[] = {
        {"a plain wave", kWave, "abcdef"},
        {"data before the format", Riff(kData + kFormat), "abcdef"},
        {"foreign chunks of odd size", Riff(foreign + kFormat + foreign + kData), "abcdef"},
        {"a longer format", Riff(longFormat + kData), "abcdef"},
        {"two data chunks", Riff(kFormat + kData + Chunk("data", "ghij")), "abcdef"},
        {"half a sample at the end", Riff(kFormat + Chunk("data", "abcde")), "abcd"},
        {"half a frame at the end", Riff(Format(1, 2, 44100, 16) + kData), "abcd"},
        {"data cut off", kWave.substr(0, kWave.size() - 3), "ab"},
        {"a data size beyond the file", Riff(kFormat + "data" + endless + "abcd"), "abcd"},
        {"a wrong size of the whole", "RIFF" + endless + "WAVE" + kFormat + kData, "abcdef"},
        {"bytes behind the last chunk", kWave + "xyz", "abcdef"},
        {"an empty file", "", ""},
        {"another RIFF", "RIFF" + endless + "AVI " + kFormat + kData, ""},
        {"big endian", "RIFX" + kWave.substr(4), ""},
        {"only the head", kWave.substr(0, 12), ""},
        {"no format", Riff(kData), ""},
        {"a short format", Riff(Chunk("fmt ", kFormat.substr(8, 14)) + kData), ""},
        {"no data", Riff(kFormat), ""},
        {"less than one frame", Riff(kFormat + Chunk("data", "a")), ""},
        {"a foreign chunk as long as can be", Riff("LIST" + endless + kFormat + kData), ""}};
    for (const auto& [what, file, data] : cases) {
        const auto wave = Read(file);
        EXPECT_EQ(wave ? std::string(wave->Data.begin(), wave->Data.end()) : "", data) << what;
    }
    // The sanitizers see what is read behind the end.
    for (std::size_t size = 0; size < kWave.size(); ++size) {
        EXPECT_EQ(Read(kWave.substr(0, size)).has_value(), size + 4 >= kWave.size()) << size;
    }
}

TEST(Wave, OnlyOrdinaryFilesAreOpened)
{
    const test::Folder folder;
    test::WriteFile(folder.Path / "Größe.WAV", kWave);
    EXPECT_TRUE(LoadWave((folder.Path / "Größe.WAV").string()));
    EXPECT_FALSE(LoadWave(folder.Path.string())) << "a folder";
    EXPECT_FALSE(LoadWave((folder.Path / "missing.WAV").string()));
    EXPECT_FALSE(LoadWave(""));
    const std::string pipe = (folder.Path / "pipe").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(LoadWave(pipe)) << "a pipe, whose other end nobody opens";
}

}  // namespace
}  // namespace malvone
