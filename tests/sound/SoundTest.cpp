// SoundTest.cpp: sound without a server: which files are waves, and that a game without sound is
// held up nowhere.
#include "ui/sound/Sound.h"
#include "tests/support/Folder.h"
#include "ui/sound/Wave.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

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
    struct Case
    {
        std::uint32_t Channels, Rate, Bits;
        bool Sounds;
    };
    for (const Case& each : {
             Case{1, 44100, 16, true},
             Case{2, 8000, 8, true},
             Case{1, 1000, 8, true},
             Case{2, 192000, 16, true},
             Case{0, 44100, 16, false},
             Case{3, 44100, 16, false},
             Case{257, 44100, 16, false},  // 1 in its low byte
             Case{1, 44100, 0, false},
             Case{1, 44100, 24, false},
             Case{1, 44100, 272, false},  // 16 in its low byte
             Case{1, 0, 16, false},
             Case{1, 999, 16, false},
             Case{1, 4294967295U, 16, false},
         }) {
        const auto wave = Read(Riff(Format(1, each.Channels, each.Rate, each.Bits) + kData));
        ASSERT_EQ(wave.has_value(), each.Sounds)
            << each.Channels << " channels, " << each.Rate << " Hz, " << each.Bits << " bits";
        if (wave) {
            EXPECT_EQ(wave->Channels, each.Channels);
            EXPECT_EQ(wave->Rate, each.Rate);
            EXPECT_EQ(wave->Bits, each.Bits);
        }
    }
    EXPECT_FALSE(Read(Riff(Format(3, 1, 44100, 16) + kData))) << "samples that are not PCM";
}

TEST(Wave, TakesFromADamagedFileWhatIsThere)
{
    const std::string foreign = Chunk("LIST", "odd");
    const std::string longFormat = Chunk("fmt ", kFormat.substr(8) + std::string(2, '\0')) + kData;
    struct Case
    {
        const char* What;
        std::string File;
        std::string Data;  // empty: nothing sounds
    };
    const std::vector<Case> cases = {
        {"a plain wave", kWave, "abcdef"},
        {"data before the format", Riff(kData + kFormat), "abcdef"},
        {"foreign chunks of odd size between", Riff(foreign + kFormat + foreign + kData + foreign),
         "abcdef"},
        {"a longer format", Riff(longFormat), "abcdef"},
        {"two data chunks: the first counts", Riff(kFormat + kData + Chunk("data", "ghij")),
         "abcdef"},
        {"half a sample at the end", Riff(kFormat + Chunk("data", "abcde")), "abcd"},
        {"half a frame at the end", Riff(Format(1, 2, 44100, 16) + kData), "abcd"},
        {"data cut off", kWave.substr(0, kWave.size() - 3), "ab"},
        {"a data size beyond the file", Riff(kFormat + "data" + Number(0xFFFFFFFF, 4) + "abcd"),
         "abcd"},
        {"a wrong size of the whole", "RIFF" + Number(0, 4) + "WAVE" + kFormat + kData, "abcdef"},
        {"bytes behind the last chunk", kWave + "xyz", "abcdef"},
        {"an empty file", "", ""},
        {"a text", "This is a text and has nothing to do with waves.", ""},
        {"another RIFF", "RIFF" + Number(0, 4) + "AVI " + kFormat + kData, ""},
        {"big endian", "RIFX" + kWave.substr(4), ""},
        {"only the head", kWave.substr(0, 12), ""},
        {"no format", Riff(kData), ""},
        {"a short format", Riff(Chunk("fmt ", kFormat.substr(8, 14)) + kData), ""},
        {"no data", Riff(kFormat), ""},
        {"empty data", Riff(kFormat + Chunk("data", "")), ""},
        {"less than one frame", Riff(kFormat + Chunk("data", "a")), ""},
        {"a foreign chunk as long as can be",
         Riff("LIST" + Number(0xFFFFFFFF, 4) + kFormat + kData), ""},
    };
    for (const Case& each : cases) {
        const auto wave = Read(each.File);
        EXPECT_EQ(wave ? std::string(wave->Data.begin(), wave->Data.end()) : "", each.Data)
            << each.What;
    }
}

// Every byte once wrong and every length: whatever is read holds whole frames, and under the
// sanitizers nothing is read that is not there.
TEST(Wave, NoSingleDamageBreaksTheReader)
{
    const std::string good = Riff(Chunk("LIST", "odd") + kFormat + kData);
    std::vector<std::string> files;
    for (std::size_t i = 0; i < good.size(); ++i) {
        files.push_back(good.substr(0, i));
        for (const char value : {'\0', '\x01', '\x7F', '\xFF'}) {
            files.push_back(good);
            files.back()[i] = value;
        }
    }
    for (const std::string& file : files) {
        if (const auto wave = Read(file)) {
            ASSERT_FALSE(wave->Data.empty());
            ASSERT_EQ(wave->Data.size() % wave->FrameBytes(), 0U);
        }
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

TEST(Wave, TheSevenSoundsOfTheGameAreWaves)
{
    for (const char* name : {"TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV",
                             "BLIP.WAV", "ding.wav"}) {
        const auto wave = LoadWave(std::string(MALVONE_SOURCE_DIR "/assets/sounds/") + name);
        ASSERT_TRUE(wave) << name;
        const std::size_t lengthMs = 1000 * wave->Data.size() / wave->FrameBytes() / wave->Rate;
        EXPECT_GE(lengthMs, 80U) << name;
        EXPECT_LE(lengthMs, 1200U) << name;
    }
}

// Where libpulse looks for a server: nowhere.
class WithoutServer : public testing::TestWithParam<const char*>
{
protected:
    WithoutServer() { ::setenv("PULSE_SERVER", "unix:/nowhere/pulse", 1); }
    ~WithoutServer() override { ::unsetenv("PULSE_SERVER"); }

    Sound Sounds{GetParam()};
    const std::string Tone = MALVONE_SOURCE_DIR "/assets/sounds/TADA.WAV";
};

TEST_P(WithoutServer, ThereIsNoDeviceAndNothingIsSaid)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(Sounds.DeviceCount(), 0) << "before the start";
    Sounds.Prepare();
    Sounds.Prepare();
    for (int i = 0; i < 20 && Sounds.DeviceCount() != 0; ++i) {
        // The library may take longer to load than the game would wait.
    }
    EXPECT_EQ(Sounds.DeviceCount(), 0);
    Sounds.Play(Tone);
    Sounds.Play("");
    Sounds.Play("/nowhere/TADA.WAV");
    Sounds.Finish();
    EXPECT_EQ(Sounds.DeviceCount(), 0) << "after the end";
    Sounds.Play(Tone);
    Sounds.Finish();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_P(WithoutServer, ManyThreadsMayPlayCountAndLeaveAtOnce)
{
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([this, thread] {
            for (int i = 0; i < 200; ++i) {
                Sounds.Prepare();
                Sounds.Play(Tone);
                Sounds.DeviceCount();
                if (thread == 0 && i % 20 == 19) {
                    Sounds.Finish();
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    Sounds.Finish();
    EXPECT_EQ(Sounds.DeviceCount(), 0);
}

// The library itself, none, and one without the functions.
INSTANTIATE_TEST_SUITE_P(Sound, WithoutServer,
                         testing::Values("libpulse.so.0", "libnosuchthing.so.0", "libm.so.6"));

}  // namespace
}  // namespace malvone
