// DatenordnerTest.cpp: where the data files lie, and what the player is told when there is no
// place.
#include "storage/Datenordner.h"
#include "state/Pfade.h"

#include <gtest/gtest.h>

#include "storage/Spielstanddatei.h"
#include "storage/Zahlen.h"
#include "storage/modBeste.h"
#include "tests/support/StilleBindung.h"

namespace malvone {
namespace {

namespace fs = std::filesystem;

constexpr const char* kVorgabe = "Niemand\r\nNiemand\r\nNiemand\r\nNiemand\r\nNiemand\r\n"
                                 "5000\r\n4700\r\n4400\r\n4100\r\n3800\r\n";
constexpr const char* kOrdnerFehlt =
    "frmMsgOk: \r\nDas Anlegen des Ordners für die Daten ist fehlgeschlagen! | "
    "\r\nDie Daten für die Stastitik\r\nkönnen nicht gespeichert werden!";

TEST(Datenordner, PathsGetOneBackslash)
{
    EXPECT_EQ(MitBackslash("C:"), "C:\\");
    EXPECT_EQ(MitBackslash("C:\\"), "C:\\");
    EXPECT_EQ(MitBackslash(""), "\\");
}

TEST(Datenordner, OnlyAFreeNameInAnExistingFolderIsAbsent)
{
    const Programm programm;
    DateiSchreiben(programm.Standdatei(), "");
    const struct
    {
        const char* Pfad;
        bool Da;
    } cases[] = {
        {"", false},
        {"C:\\lindenspiele", true},
        {"C:\\lindenspiele\\tessel.ini", true},
        {"C:\\lindenspiele\\fehlt", false},
        {"C:\\fehlt", false},
        {"C:\\fehlt\\tessel.ini", true},
        {"C:\\lindenspiele\\tessel.ini\\x", true},
        {"P:\\ding.wav", true},
        {"P:\\fehlt.wav", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ExistiertDatei(c.Pfad), c.Da) << c.Pfad;
    }
}

TEST(Datenordner, TheFirstStartMakesFolderAndDefaultList)
{
    Programm programm;
    const Verlauf still = {"sound TADA.WAV"};
    EXPECT_EQ(programm.Starten(), still);
    EXPECT_EQ(DatenPfad(), "C:\\lindenspiele\\");
    EXPECT_EQ(BesteDatei(), "C:\\lindenspiele\\malvone.txt");
    EXPECT_EQ(Namen(programm.Datenordner()), (std::vector<std::string>{"malvone.txt"}));
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), kVorgabe);
}

TEST(Datenordner, ALaterStartLeavesFolderAndListAlone)
{
    Programm programm;
    DateiSchreiben(programm.Bestendatei(), "damaged");
    EXPECT_EQ(programm.Starten(), (Verlauf{"sound TADA.WAV"}));
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), "damaged");
}

TEST(Datenordner, WithoutAWindowsFolderTheTwoFilesGoDifferentWays)
{
    Programm programm;
    programm.Plattform.MitWindowsordner = false;
    programm.Antworten({Klick("lblOk")});
    EXPECT_EQ(programm.Starten(),
              (Verlauf{"sound CHIMES.WAV", "sound TADA.WAV",
                       "frmMsgOk: \r\nDie Festplatte auf Ihrem System wurde nicht erkannt! | "
                       "\r\nEin Speichern von Daten ist leider nicht möglich"}));
    EXPECT_EQ(BesteDatei(), "\\malvone.txt");
    EXPECT_EQ(Dateiinhalt(programm.Platte / "malvone.txt"), kVorgabe);
    EXPECT_FALSE(fs::exists(programm.Datenordner()));
    StandSpeichern();
    EXPECT_TRUE(fs::exists(programm.Programmordner / "tessel.ini"));
}

TEST(Datenordner, AFolderThatCannotBeMadeStaysTheDataFolder)
{
    Programm programm;
    DateiSchreiben(programm.Platte, "no folder");
    programm.Antworten({Klick("lblOk")});
    EXPECT_EQ(programm.Starten(), (Verlauf{"sound CHIMES.WAV", "sound TADA.WAV", kOrdnerFehlt}));
    EXPECT_EQ(DatenPfad(), "C:\\lindenspiele\\");
    EXPECT_EQ(Dateiinhalt(programm.Platte), "no folder");
}

TEST(Datenordner, AMissingRootIsMadeWithAllAboveIt)
{
    Programm programm;
    programm.Programmordner /= "";
    const fs::path tief = programm.Ordner.Pfad / ".local" / "share" / "";  // a slash at its end
    TestPlattform plattform(tief, programm.Programmordner, programm.Bindung.Verlauf);
    App.Begin(programm.Bindung, plattform);
    EXPECT_EQ(programm.Starten(), (Verlauf{"sound TADA.WAV"}));
    EXPECT_EQ(Dateiinhalt(tief / "lindenspiele" / "malvone.txt"), kVorgabe);
}

TEST(Zahlen, OnlyDecimalNumbersInRangeAreNumbers)
{
    const struct
    {
        const char* Text;
        std::optional<std::int32_t> Zahl;
    } cases[] = {
        {"0", 0},
        {"3801", 3801},
        {" +42\t", 42},
        {"-7", -7},
        {"007", 7},
        {"2147483647", 2147483647},
        {"-2147483648", -2147483647 - 1},
        {"2147483648", std::nullopt},
        {"99999999999999999999", std::nullopt},
        {"", std::nullopt},
        {"  ", std::nullopt},
        {"+", std::nullopt},
        {"+-1", std::nullopt},
        {"- 1", std::nullopt},
        {"1 2", std::nullopt},
        {"12x", std::nullopt},
        {"0x10", std::nullopt},
        {"1e3", std::nullopt},
        {"4.5", std::nullopt},
        {"٣", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Zahl32(c.Text), c.Zahl) << c.Text;
    }
    EXPECT_EQ(Zahl16("32767"), 32767);
    EXPECT_EQ(Zahl16("-32768"), -32768);
    EXPECT_EQ(Zahl16("32768"), std::nullopt);
    EXPECT_EQ(Zahl16("x"), std::nullopt);
}

}  // namespace
}  // namespace malvone
