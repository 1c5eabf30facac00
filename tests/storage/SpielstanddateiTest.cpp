// SpielstanddateiTest.cpp: the board that a repeat brings back, and what is left when it cannot.
#include "storage/Spielstanddatei.h"

#include <gtest/gtest.h>

#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "tests/support/StilleBindung.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

namespace fs = std::filesystem;

constexpr const char* kTitel = " | \r\n»Level wiederholen« ist nicht möglich.";
const std::string kNichtGeschrieben =
    std::string("frmMsgOk: Das Schreiben der Daten in die Datei »tessel.ini«\r\n"
                "ist fehlgeschlagen.") +
    kTitel;
const std::string kNichtGespeichert =
    std::string("frmMsgOk: Die zur Wiederholung des Levels erforderliche Datei »tessel.ini«\r\n"
                "wurde nicht gespeichert.") +
    kTitel;
const std::string kNichtLesbar =
    std::string("frmMsgOk: \r\nBeim Einlesen der Werte für die Wiederholung des Levels ist ein "
                "Fehler aufgetreten.") +
    kTitel;

// Values as text, one cell to a character.
std::string Brett()
{
    std::string brett;
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
        brett += frmTessel->imgFeld(zelle).Tag->Text();
    }
    return brett;
}

std::string Bilder()
{
    std::string bilder;
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
        char bild = '?';
        for (int wert = 0; wert <= kFarben; ++wert) {
            if (frmTessel->imgFeld(zelle).Picture == frmBilder->imgBild(wert).Picture) {
                bild = static_cast<char>('0' + wert);
            }
        }
        bilder += bild;
    }
    return bilder;
}

void BrettSetzen(const std::string& brett)
{
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
        const std::string wert(1, brett[static_cast<std::size_t>(zelle - 1)]);
        frmTessel->imgFeld(zelle).Tag = wert;
        frmTessel->imgFeld(zelle).Picture = frmBilder->imgBild(std::stoi(wert)).Picture;
    }
}

std::string Zeilen(const std::string& werte)
{
    std::string zeilen;
    for (const char wert : werte) {
        zeilen += std::string(1, wert) + "\r\n";
    }
    return zeilen;
}

// All 140 values differ from their neighbours, so that no mistaken order goes unseen.
std::string Muster(int versatz)
{
    std::string werte;
    for (int i = 0; i < kZellen; ++i) {
        werte += static_cast<char>('1' + (i + i / 7 + versatz) % kFarben);
    }
    return werte;
}

// A level of which the end has come: the repeat is on offer.
class Spielstanddatei : public testing::Test
{
protected:
    Programm programm;

    void SetUp() override
    {
        programm.Starten();
        Stand.RundenZahl = 3;
        BrettSetzen(Muster(0));
        frmTessel->mnuTessel(2).Enabled = true;
        frmTessel->cmdSchalt(1).Visible = true;
        frmTessel->imgWiederholen.Visible = true;
        frmTessel->imgNochEinmal.Visible = true;
        frmTessel->imgNaechsterLevel.Visible = true;
    }
    // In the order of the set-up above: what of the repeat is still on offer.
    static std::string Angebot()
    {
        const bool offen[] = {frmTessel->mnuTessel(2).Enabled, frmTessel->cmdSchalt(1).Visible,
                              frmTessel->imgWiederholen.Visible, frmTessel->imgNochEinmal.Visible,
                              frmTessel->imgNaechsterLevel.Visible};
        std::string text;
        for (const bool ja : offen) {
            text += ja ? '1' : '0';
        }
        return text;
    }
};

TEST_F(Spielstanddatei, TheFileHoldsOneLineForEachCell)
{
    DateiSchreiben(programm.Standdatei(), std::string(5000, 'x'));
    StandSpeichern();
    EXPECT_EQ(Dateiinhalt(programm.Standdatei()), Zeilen(Muster(0)));
    EXPECT_EQ(Dateiinhalt(programm.Standdatei())->size(), 420U);
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{});
}

TEST_F(Spielstanddatei, ARepeatBringsTheBoardBackAndCountsTheLevel)
{
    StandSpeichern();
    BrettSetzen(Muster(1));
    Stand.MarkiertZahl = 2;
    Zellen[7] = {True, True, False, False};
    StandLaden();
    EXPECT_EQ(Brett(), Muster(0));
    EXPECT_EQ(Bilder(), Muster(0));
    EXPECT_EQ(Zellen[7].Vorschau, False);
    EXPECT_EQ(Zellen[7].Markiert, True);
    EXPECT_EQ(Stand.MarkiertZahl, 2);
    EXPECT_EQ(Stand.RundenZahl, 4);
    EXPECT_EQ(Angebot(), "00111");
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{});
}

TEST_F(Spielstanddatei, EmptyCellsOtherLineEndsAndMoreLinesAreRead)
{
    const std::string werte = "0" + Muster(2).substr(1);
    std::string lf = Zeilen(werte);
    std::erase(lf, '\r');
    std::string cr = Zeilen(werte);
    std::erase(cr, '\n');
    const std::string lang = Zeilen(werte) + "more\r\n";
    const std::string ohneEnde = lf.substr(0, lf.size() - 1);
    const std::string blanks = " " + std::string(werte, 0, 1) + " \r\n" + Zeilen(werte).substr(3);
    for (const std::string& inhalt : {lf, cr, lang, ohneEnde, blanks}) {
        BrettSetzen(Muster(0));
        DateiSchreiben(programm.Standdatei(), inhalt);
        StandLaden();
        EXPECT_EQ(Brett(), werte);
        EXPECT_EQ(Bilder(), werte);
    }
}

TEST_F(Spielstanddatei, AMissingFileLeavesTheNextLevelAlone)
{
    fs::remove(programm.Standdatei());
    std::string beiMeldung;
    programm.Antworten({[&](Window& fenster) {
        beiMeldung = Angebot();
        RouteKey(fenster, {kKeyEsc, 0});
    }});
    StandLaden();
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{kNichtGespeichert});
    EXPECT_EQ(beiMeldung, "11111");
    EXPECT_EQ(Angebot(), "00001");
    EXPECT_EQ(Stand.RundenZahl, 3);
    EXPECT_EQ(Brett(), Muster(0));
}

TEST_F(Spielstanddatei, ADamagedFileLeavesTheBoardAlone)
{
    const std::string gut = Zeilen(Muster(2));
    const std::string vorn = gut.substr(0, gut.size() - 3);  // 139 lines
    const struct
    {
        const char* Was;
        std::string Inhalt;
    } cases[] = {
        {"empty", ""},
        {"139 lines", vorn},
        {"text", vorn + "x\r\n"},
        {"empty line", vorn + "\r\n"},
        {"more than a number", vorn + "2 2\r\n"},
        {"more than 16 bit", vorn + "65537\r\n"},
        {"fraction", vorn + "2.0\r\n"},
        {"binary", std::string(1000, '\0')},
        {"UTF-16", std::string("\xFF\xFE"
                               "1\0\r\0\n\0",
                               8) +
                       gut},
        {"one long line", std::string(1 << 20, '1')},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Was);
        SetUp();
        DateiSchreiben(programm.Standdatei(), c.Inhalt);
        std::string beiMeldung;
        programm.Antworten({[&](Window& fenster) {
            beiMeldung = Angebot();
            RouteKey(fenster, {kKeyEsc, 0});
        }});
        programm.VerlaufSeitdem();
        StandLaden();
        EXPECT_EQ(programm.VerlaufSeitdem(), (Verlauf{"sound FEHLER.WAV", kNichtLesbar}));
        EXPECT_EQ(beiMeldung, "00111");
        EXPECT_EQ(Angebot(), "00001");
        EXPECT_EQ(Stand.RundenZahl, 3);
        EXPECT_EQ(Brett(), Muster(0));
        EXPECT_EQ(Bilder(), Muster(0));
        EXPECT_EQ(Dateiinhalt(programm.Standdatei()), c.Inhalt);
    }
}

TEST_F(Spielstanddatei, AFolderInThePlaceOfTheFileIsAReadFailure)
{
    fs::create_directory(programm.Standdatei());
    programm.Antworten({Klick("lblOk"), Klick("lblOk")});
    StandSpeichern();
    StandLaden();
    EXPECT_EQ(programm.VerlaufSeitdem(),
              (Verlauf{kNichtGeschrieben, "sound FEHLER.WAV", kNichtLesbar}));
    EXPECT_EQ(Brett(), Muster(0));
}

TEST_F(Spielstanddatei, AValueWithoutPictureStopsAtItsCell)
{
    for (const std::string schlecht : {"5", "9", "-1", "32767", "-32768"}) {
        SCOPED_TRACE(schlecht);
        SetUp();
        const std::string neu = Muster(1);
        DateiSchreiben(programm.Standdatei(),
                       Zeilen(neu.substr(0, 76)) + schlecht + "\r\n" + Zeilen(neu.substr(77)));
        programm.Antworten({Taste(kKeyEsc)});
        StandLaden();
        EXPECT_EQ(Brett(), neu.substr(0, 76) + schlecht + Muster(0).substr(77));
        EXPECT_EQ(Bilder(), neu.substr(0, 76) + Muster(0).substr(76));
        EXPECT_EQ(Stand.RundenZahl, 3);
        EXPECT_EQ(Angebot(), "00001");
    }
}

TEST_F(Spielstanddatei, AfterAValueWithoutPictureEveryClickIsSurvived)
{
    DateiSchreiben(programm.Standdatei(),
                   Zeilen(Muster(1).substr(0, 76)) + "32767\r\n" + Zeilen(Muster(1).substr(77)));
    StandLaden();
    for (int zelle = 1; zelle <= kZellen; ++zelle) {
        const EventScope scope;
        frmTessel->imgFeld(zelle).MouseMove.Raise(static_cast<std::int16_t>(zelle), {});
        frmTessel->imgFeld(zelle).MouseDown.Raise(static_cast<std::int16_t>(zelle),
                                                  {kLeftButton, 0, 0, 0});
    }
}

TEST_F(Spielstanddatei, AFailedWriteIsToldAndMetByTheRepeat)
{
    StandSpeichern();
    programm.Plattform.Gestoert = TestPlattform::Aufruf::Write;
    programm.Plattform.Fehler = ENOSPC;
    programm.Antworten({Klick("lblOk"), Klick("lblOk")});
    StandSpeichern();
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{kNichtGeschrieben});
    EXPECT_EQ(Angebot(), "11111");
    StandLaden();
    EXPECT_EQ(programm.VerlaufSeitdem(), (Verlauf{"sound FEHLER.WAV", kNichtLesbar}));
}

TEST_F(Spielstanddatei, ASnapshotThatWasNeverCreatedIsMissing)
{
    StandSpeichern();
    programm.Plattform.Gestoert = TestPlattform::Aufruf::Open;
    programm.Plattform.Fehler = EACCES;
    programm.Antworten({Klick("lblOk"), Klick("lblOk")});
    StandSpeichern();
    programm.Plattform.Gestoert = TestPlattform::Aufruf::Keiner;
    StandLaden();
    EXPECT_EQ(programm.VerlaufSeitdem(), (Verlauf{kNichtGeschrieben, kNichtGespeichert}));
}

}  // namespace
}  // namespace malvone
