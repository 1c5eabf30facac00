// Sound without a server: which files are waves, and that a game without sound is held up nowhere.
#include "ui/sound/Klang.h"
#include "ui/sound/Briefkasten.h"
#include "ui/sound/Welle.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace malvone {
namespace {

using namespace std::chrono_literals;
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

std::optional<Welle> Lesen(const std::string& datei)
{
    const Bytes bytes(datei.begin(), datei.end());
    return WelleLesen(bytes);
}

const std::string kFormat = Format(1, 1, 44100, 16);
const std::string kDaten = Stueck("data", "abcdef");
const std::string kWelle = Riff(kFormat + kDaten);

// A folder that goes with the test.
class Ordner
{
public:
    Ordner()
    {
        std::string muster = (std::filesystem::temp_directory_path() / "klang-XXXXXX").string();
        Pfad = ::mkdtemp(muster.data());
    }
    ~Ordner() { std::filesystem::remove_all(Pfad); }
    Ordner(const Ordner&) = delete;
    Ordner& operator=(const Ordner&) = delete;

    std::string Datei(const std::string& name, const std::string& inhalt) const
    {
        const std::string pfad = (Pfad / name).string();
        std::ofstream(pfad, std::ios::binary) << inhalt;
        return pfad;
    }

    std::filesystem::path Pfad;
};

TEST(Welle, KnowsTheFormatsThatCanSound)
{
    struct Fall
    {
        std::uint32_t Kanaele, Rate, Bits;
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
        const auto welle = Lesen(Riff(Format(1, fall.Kanaele, fall.Rate, fall.Bits) + kDaten));
        ASSERT_EQ(welle.has_value(), fall.Klingt)
            << fall.Kanaele << " channels, " << fall.Rate << " Hz, " << fall.Bits << " bits";
        if (welle) {
            EXPECT_EQ(welle->Kanaele, fall.Kanaele);
            EXPECT_EQ(welle->Rate, fall.Rate);
            EXPECT_EQ(welle->Bits, fall.Bits);
        }
    }
    EXPECT_FALSE(Lesen(Riff(Format(3, 1, 44100, 16) + kDaten))) << "samples that are not PCM";
}

TEST(Welle, TakesFromADamagedFileWhatIsThere)
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
        EXPECT_EQ(welle ? std::string(welle->Daten.begin(), welle->Daten.end()) : "", fall.Daten)
            << fall.Was;
    }
}

// Every byte once wrong and every length: whatever is read holds whole frames, and under the
// sanitizers nothing is read that is not there.
TEST(Welle, NoSingleDamageBreaksTheReader)
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
            ASSERT_FALSE(welle->Daten.empty());
            ASSERT_EQ(welle->Daten.size() % welle->RahmenBytes(), 0U);
        }
    }
}

TEST(Welle, OnlyOrdinaryFilesAreOpened)
{
    const Ordner ordner;
    EXPECT_TRUE(WelleLaden(ordner.Datei("Größe.WAV", kWelle)));
    EXPECT_FALSE(WelleLaden(ordner.Pfad.string())) << "a folder";
    EXPECT_FALSE(WelleLaden((ordner.Pfad / "fehlt.WAV").string()));
    EXPECT_FALSE(WelleLaden(""));
    const std::string rohr = (ordner.Pfad / "rohr").string();
    ASSERT_EQ(::mkfifo(rohr.c_str(), 0600), 0);
    EXPECT_FALSE(WelleLaden(rohr)) << "a pipe, whose other end nobody opens";
}

TEST(Welle, TheSevenSoundsOfTheGameAreWaves)
{
    for (const char* name : {"TADA.WAV", "WHOOSH.WAV", "CHIMES.WAV", "FRAGE.WAV", "FEHLER.WAV",
                             "BLIP.WAV", "ding.wav"}) {
        const auto welle = WelleLaden(std::string(MALVONE_SOURCE_DIR "/assets/sounds/") + name);
        ASSERT_TRUE(welle) << name;
        const std::size_t dauerMs = 1000 * welle->Daten.size() / welle->RahmenBytes() / welle->Rate;
        EXPECT_GE(dauerMs, 80U) << name;
        EXPECT_LE(dauerMs, 1200U) << name;
    }
}

TEST(Briefkasten, OnlyTheLastSoundIsKept)
{
    Briefkasten kasten;
    kasten.Einwerfen("a");
    kasten.Einwerfen("b");
    EXPECT_EQ(kasten.Holen().Pfad, "b");
    EXPECT_EQ(kasten.Holen().Pfad, std::nullopt);
}

TEST(Briefkasten, TheThreadIsWokenOnceUntilItHasLooked)
{
    Briefkasten kasten;
    int geweckt = 0;
    kasten.WeckerStellen([&] { ++geweckt; });
    kasten.Einwerfen("a");
    kasten.Einwerfen("b");
    EXPECT_EQ(geweckt, 1);
    kasten.Holen();
    kasten.Schliessen();
    EXPECT_EQ(geweckt, 2);
    EXPECT_TRUE(kasten.Holen().Ende);
    kasten.WeckerStellen({});
    kasten.Einwerfen("c");
    EXPECT_EQ(geweckt, 2);
}

// Where libpulse looks for a server: nowhere.
class OhneServer : public testing::TestWithParam<const char*>
{
protected:
    OhneServer() { ::setenv("PULSE_SERVER", "unix:/nirgends/pulse", 1); }
    ~OhneServer() override { ::unsetenv("PULSE_SERVER"); }

    Klang Sound{GetParam()};
    const std::string Welle = MALVONE_SOURCE_DIR "/assets/sounds/TADA.WAV";
};

TEST_P(OhneServer, ThereIsNoDeviceAndNothingIsSaid)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(Sound.GeraeteZahl(), 0) << "before the start";
    Sound.Vorbereiten();
    Sound.Vorbereiten();
    for (int i = 0; i < 20 && Sound.GeraeteZahl() != 0; ++i) {
        // The library may take longer to load than the game would wait.
    }
    EXPECT_EQ(Sound.GeraeteZahl(), 0);
    Sound.Spielen(Welle);
    Sound.Spielen("");
    Sound.Spielen("/nirgends/TADA.WAV");
    Sound.Beenden();
    EXPECT_EQ(Sound.GeraeteZahl(), 0) << "after the end";
    Sound.Spielen(Welle);
    Sound.Beenden();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_P(OhneServer, ManyThreadsMayPlayCountAndLeaveAtOnce)
{
    std::vector<std::thread> faeden;
    for (int faden = 0; faden < 4; ++faden) {
        faeden.emplace_back([this, faden] {
            for (int i = 0; i < 200; ++i) {
                Sound.Vorbereiten();
                Sound.Spielen(Welle);
                Sound.GeraeteZahl();
                if (faden == 0 && i % 20 == 19) {
                    Sound.Beenden();
                }
            }
        });
    }
    for (std::thread& faden : faeden) {
        faden.join();
    }
    Sound.Beenden();
    EXPECT_EQ(Sound.GeraeteZahl(), 0);
}

// The library itself, none, and one without the functions.
INSTANTIATE_TEST_SUITE_P(Klang, OhneServer,
                         testing::Values("libpulse.so.0", "libgibtesnicht.so.0", "libm.so.6"));

}  // namespace
}  // namespace malvone
