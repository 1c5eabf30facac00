// Sound without a server: which files are waves, and that a game without sound is held up nowhere.
#include "tests/support/Folder.h"
#include "ui/sound/Mailbox.h"
#include "ui/sound/Sound.h"
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

std::string Zahl(std::uint32_t wert, int breite)
{
    std::string bytes;
    for (int i = 0; i < breite; ++i) {
        bytes += static_cast<char>(wert >> (8 * i) & 0xFFU);
    }
    return bytes;
}

std::string Stueck(const std::string& name, const std::string& inhalt)
{
    return name + Zahl(static_cast<std::uint32_t>(inhalt.size()), 4) + inhalt +
           (inhalt.size() % 2 == 1 ? std::string(1, '\0') : "");
}

std::string Format(std::uint32_t art, std::uint32_t kanaele, std::uint32_t rate, std::uint32_t bits)
{
    const std::uint32_t rahmen = kanaele * bits / 8;
    return Stueck("fmt ", Zahl(art, 2) + Zahl(kanaele, 2) + Zahl(rate, 4) + Zahl(rate * rahmen, 4) +
                              Zahl(rahmen, 2) + Zahl(bits, 2));
}

std::string Riff(const std::string& stuecke)
{
    return Stueck("RIFF", "WAVE" + stuecke);
}

std::optional<Wave> Lesen(const std::string& datei)
{
    const Bytes bytes(datei.begin(), datei.end());
    return ReadWave(bytes);
}

const std::string kFormat = Format(1, 1, 44100, 16);
const std::string kDaten = Stueck("data", "abcdef");
const std::string kWelle = Riff(kFormat + kDaten);

TEST(Wave, KnowsTheFormatsThatCanSound)
{
    struct Fall
    {
        std::uint32_t Channels, Rate, Bits;
        bool Klingt;
    };
    for (const Fall& fall : {
             Fall{1, 44100, 16, true},
             Fall{2, 8000, 8, true},
             Fall{1, 1000, 8, true},
             Fall{2, 192000, 16, true},
             Fall{0, 44100, 16, false},
             Fall{3, 44100, 16, false},
             Fall{257, 44100, 16, false},  // 1 in its low byte
             Fall{1, 44100, 0, false},
             Fall{1, 44100, 24, false},
             Fall{1, 44100, 272, false},  // 16 in its low byte
             Fall{1, 0, 16, false},
             Fall{1, 999, 16, false},
             Fall{1, 4294967295U, 16, false},
         }) {
        const auto welle = Lesen(Riff(Format(1, fall.Channels, fall.Rate, fall.Bits) + kDaten));
        ASSERT_EQ(welle.has_value(), fall.Klingt)
            << fall.Channels << " channels, " << fall.Rate << " Hz, " << fall.Bits << " bits";
        if (welle) {
            EXPECT_EQ(welle->Channels, fall.Channels);
            EXPECT_EQ(welle->Rate, fall.Rate);
            EXPECT_EQ(welle->Bits, fall.Bits);
        }
    }
    EXPECT_FALSE(Lesen(Riff(Format(3, 1, 44100, 16) + kDaten))) << "samples that are not PCM";
}

TEST(Wave, TakesFromADamagedFileWhatIsThere)
{
    const std::string fremd = Stueck("LIST", "odd");
    const std::string langesFormat =
        Stueck("fmt ", kFormat.substr(8) + std::string(2, '\0')) + kDaten;
    struct Fall
    {
        const char* Was;
        std::string Datei;
        std::string Daten;  // empty: nothing sounds
    };
    const std::vector<Fall> faelle = {
        {"a plain wave", kWelle, "abcdef"},
        {"data before the format", Riff(kDaten + kFormat), "abcdef"},
        {"foreign chunks of odd size between", Riff(fremd + kFormat + fremd + kDaten + fremd),
         "abcdef"},
        {"a longer format", Riff(langesFormat), "abcdef"},
        {"two data chunks: the first counts", Riff(kFormat + kDaten + Stueck("data", "ghij")),
         "abcdef"},
        {"half a sample at the end", Riff(kFormat + Stueck("data", "abcde")), "abcd"},
        {"half a frame at the end", Riff(Format(1, 2, 44100, 16) + kDaten), "abcd"},
        {"data cut off", kWelle.substr(0, kWelle.size() - 3), "ab"},
        {"a data size beyond the file", Riff(kFormat + "data" + Zahl(0xFFFFFFFF, 4) + "abcd"),
         "abcd"},
        {"a wrong size of the whole", "RIFF" + Zahl(0, 4) + "WAVE" + kFormat + kDaten, "abcdef"},
        {"bytes behind the last chunk", kWelle + "xyz", "abcdef"},
        {"an empty file", "", ""},
        {"a text", "This is a text and has nothing to do with waves.", ""},
        {"another RIFF", "RIFF" + Zahl(0, 4) + "AVI " + kFormat + kDaten, ""},
        {"big endian", "RIFX" + kWelle.substr(4), ""},
        {"only the head", kWelle.substr(0, 12), ""},
        {"no format", Riff(kDaten), ""},
        {"a short format", Riff(Stueck("fmt ", kFormat.substr(8, 14)) + kDaten), ""},
        {"no data", Riff(kFormat), ""},
        {"empty data", Riff(kFormat + Stueck("data", "")), ""},
        {"less than one frame", Riff(kFormat + Stueck("data", "a")), ""},
        {"a foreign chunk as long as can be", Riff("LIST" + Zahl(0xFFFFFFFF, 4) + kFormat + kDaten),
         ""},
    };
    for (const Fall& fall : faelle) {
        const auto welle = Lesen(fall.Datei);
        EXPECT_EQ(welle ? std::string(welle->Data.begin(), welle->Data.end()) : "", fall.Daten)
            << fall.Was;
    }
}

// Every byte once wrong and every length: whatever is read holds whole frames, and under the
// sanitizers nothing is read that is not there.
TEST(Wave, NoSingleDamageBreaksTheReader)
{
    const std::string gut = Riff(Stueck("LIST", "odd") + kFormat + kDaten);
    std::vector<std::string> dateien;
    for (std::size_t i = 0; i < gut.size(); ++i) {
        dateien.push_back(gut.substr(0, i));
        for (const char wert : {'\0', '\x01', '\x7F', '\xFF'}) {
            dateien.push_back(gut);
            dateien.back()[i] = wert;
        }
    }
    for (const std::string& datei : dateien) {
        if (const auto welle = Lesen(datei)) {
            ASSERT_FALSE(welle->Data.empty());
            ASSERT_EQ(welle->Data.size() % welle->FrameBytes(), 0U);
        }
    }
}

TEST(Wave, OnlyOrdinaryFilesAreOpened)
{
    const test::Folder folder;
    test::WriteFile(folder.Path / "Größe.WAV", kWelle);
    EXPECT_TRUE(LoadWave((folder.Path / "Größe.WAV").string()));
    EXPECT_FALSE(LoadWave(folder.Path.string())) << "a folder";
    EXPECT_FALSE(LoadWave((folder.Path / "fehlt.WAV").string()));
    EXPECT_FALSE(LoadWave(""));
    const std::string rohr = (folder.Path / "rohr").string();
    ASSERT_EQ(::mkfifo(rohr.c_str(), 0600), 0);
    EXPECT_FALSE(LoadWave(rohr)) << "a pipe, whose other end nobody opens";
}

TEST(Wave, TheSevenSoundsOfTheGameAreWaves)
{
    for (const char* name : {"TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV",
                             "BLIP.WAV", "ding.wav"}) {
        const auto welle = LoadWave(std::string(MALVONE_SOURCE_DIR "/assets/sounds/") + name);
        ASSERT_TRUE(welle) << name;
        const std::size_t dauerMs = 1000 * welle->Data.size() / welle->FrameBytes() / welle->Rate;
        EXPECT_GE(dauerMs, 80U) << name;
        EXPECT_LE(dauerMs, 1200U) << name;
    }
}

TEST(Mailbox, OnlyTheLastSoundIsKept)
{
    Mailbox kasten;
    kasten.Post("a");
    kasten.Post("b");
    EXPECT_EQ(kasten.Take().Path, "b");
    EXPECT_EQ(kasten.Take().Path, std::nullopt);
}

TEST(Mailbox, TheThreadIsWokenOnceUntilItHasLooked)
{
    Mailbox kasten;
    int geweckt = 0;
    kasten.SetWaker([&] { ++geweckt; });
    kasten.Post("a");
    kasten.Post("b");
    EXPECT_EQ(geweckt, 1);
    kasten.Take();
    kasten.Close();
    EXPECT_EQ(geweckt, 2);
    EXPECT_TRUE(kasten.Take().End);
    kasten.SetWaker({});
    kasten.Post("c");
    EXPECT_EQ(geweckt, 2);
}

// Where libpulse looks for a server: nowhere.
class OhneServer : public testing::TestWithParam<const char*>
{
protected:
    OhneServer() { ::setenv("PULSE_SERVER", "unix:/nirgends/pulse", 1); }
    ~OhneServer() override { ::unsetenv("PULSE_SERVER"); }

    Sound Klang{GetParam()};
    const std::string Ton = MALVONE_SOURCE_DIR "/assets/sounds/TADA.WAV";
};

TEST_P(OhneServer, ThereIsNoDeviceAndNothingIsSaid)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(Klang.DeviceCount(), 0) << "before the start";
    Klang.Prepare();
    Klang.Prepare();
    for (int i = 0; i < 20 && Klang.DeviceCount() != 0; ++i) {
        // The library may take longer to load than the game would wait.
    }
    EXPECT_EQ(Klang.DeviceCount(), 0);
    Klang.Play(Ton);
    Klang.Play("");
    Klang.Play("/nirgends/TADA.WAV");
    Klang.Finish();
    EXPECT_EQ(Klang.DeviceCount(), 0) << "after the end";
    Klang.Play(Ton);
    Klang.Finish();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_P(OhneServer, ManyThreadsMayPlayCountAndLeaveAtOnce)
{
    std::vector<std::thread> faeden;
    for (int faden = 0; faden < 4; ++faden) {
        faeden.emplace_back([this, faden] {
            for (int i = 0; i < 200; ++i) {
                Klang.Prepare();
                Klang.Play(Ton);
                Klang.DeviceCount();
                if (faden == 0 && i % 20 == 19) {
                    Klang.Finish();
                }
            }
        });
    }
    for (std::thread& faden : faeden) {
        faden.join();
    }
    Klang.Finish();
    EXPECT_EQ(Klang.DeviceCount(), 0);
}

// The library itself, none, and one without the functions.
INSTANTIATE_TEST_SUITE_P(Sound, OhneServer,
                         testing::Values("libpulse.so.0", "libgibtesnicht.so.0", "libm.so.6"));

}  // namespace
}  // namespace malvone
