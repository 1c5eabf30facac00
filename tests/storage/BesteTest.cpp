// BesteTest.cpp: the best list in its file and in memory, and which result comes into it.
#include <gtest/gtest.h>

#include "state/Spielstand.h"
#include "storage/modBeste.h"
#include "tests/support/StilleBindung.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

namespace fs = std::filesystem;
using Texte = std::vector<std::string>;

const std::string kNamen = "Niemand\r\nNiemand\r\nNiemand\r\nNiemand\r\nNiemand\r\n";
const std::string kVorgabe = kNamen + "5000\r\n4700\r\n4400\r\n4100\r\n3800\r\n";

const std::string kKeinEintrag =
    "frmMsgOk: Ein Eintrag in die Liste der »Besten Spieler«\r\nist leider nicht möglich! | "
    "\r\nMehr Erfolg beim nächsten Spiel.";
const std::string kNeueBestmarke =
    "frmMsgJa: Sehr gut!!\r\nSie haben eine neue Bestmarke erreicht. | "
    "Möchten Sie sich in die Liste der »Besten Spieler« eintragen?";
const std::string kNeuesSpiel =
    "frmMsgJa: \r\nDas aktuelle Spiel ist beendet.\r\nMöchten Sie ein neues Spiel beginnen?\" | "
    "\r\n»Neues Spiel« bestätigen";
const std::string kNichtGespeichert =
    "frmMsgOk: \r\nDie Werte für »Beste Spieler«\r\nkonnten nicht gespeichert werden. | "
    "\r\n\r\nFehler beim Speichern";

std::string NichtLesbar(int nummer)
{
    return "frmMsgOk: \r\nDie Daten für »Beste Spieler«\r\nkonnten nicht gelesen werden! | "
           "\r\nFehlernummer: " +
           std::to_string(nummer);
}

Texte Inhalt(const ListBox& liste)
{
    Texte texte;
    for (int i = 0; i < liste.ListCount(); ++i) {
        texte.push_back(liste.List(i));
    }
    return texte;
}

// Started, with a list of the test's own in the file.
struct Gestartet : Programm
{
    explicit Gestartet(const std::string& liste = kVorgabe)
    {
        DateiSchreiben(Bestendatei(), liste);
        Starten();
    }
    // The end of a game with so many points.
    void Ende(std::int32_t punkte, std::deque<Antwort> antworten)
    {
        Antworten(std::move(antworten));
        Stand.PunkteGesamt = punkte;
        BestePruefen();
    }
};

TEST(BesteLesen, ADamagedFileIsReadAsFarAsItGoes)
{
    const Texte niemand(5, "Niemand");
    const struct
    {
        const char* Was;
        std::string Inhalt;
        int Fehlernummer;
        Texte Namen;
        Texte Punkte;
    } cases[] = {
        {"default", kVorgabe, 0, niemand, {"5000", "4700", "4400", "4100", "3800"}},
        {"eleven lines", kVorgabe + "x\r\n", 0, niemand, {"5000", "4700", "4400", "4100", "3800"}},
        {"nine lines", kNamen + "1\n2\n3\n4\n", 62, niemand, {"1", "2", "3", "4"}},
        {"three lines", "a\rb\rc", 62, {"a", "b", "c"}, {}},
        {"empty", "", 62, {}, {}},
        {"zeros", std::string(100, '\0'), 62, {std::string(100, '\0')}, {}},
        {"one long line", std::string(1 << 20, 'x'), 57, {}, {}},
        {"no numbers",
         "a\nb\nc\nd\ne\nf\n\n-\n99999999999\n1",
         0,
         {"a", "b", "c", "d", "e"},
         {"f", "", "-", "99999999999", "1"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Was);
        Gestartet programm(c.Inhalt);
        programm.VerlaufSeitdem();
        programm.Antworten({Klick("lblOk")});
        EXPECT_EQ(Inhalt(frmBeste->lstName), c.Namen);  // the first touch reads the file
        EXPECT_EQ(Inhalt(frmBeste->lstPunkte), c.Punkte);
        EXPECT_EQ(programm.VerlaufSeitdem(),
                  c.Fehlernummer == 0 ? Verlauf{} : Verlauf{NichtLesbar(c.Fehlernummer)});
        EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), c.Inhalt);
    }
}

TEST(BesteLesen, AFileThatCannotBeOpenedIsToldByItsNumber)
{
    const struct
    {
        int Fehler;
        int Nummer;
    } cases[] = {{ENOENT, 53}, {EACCES, 70}, {EISDIR, 75}, {EIO, 57}};
    for (const auto& c : cases) {
        Gestartet programm;
        programm.VerlaufSeitdem();
        programm.Plattform.Gestoert = TestPlattform::Aufruf::Open;
        programm.Plattform.Fehler = c.Fehler;
        programm.Antworten({Klick("lblOk")});
        EXPECT_EQ(frmBeste->lstName.ListCount() + frmBeste->lstPunkte.ListCount(), 0);
        EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{NichtLesbar(c.Nummer)});
    }
}

TEST(BesteSpeichern, NamesComeBackAsTheyWere)
{
    const Texte namen = {"Jürgen »€« Groß", "\"a\", b, 'c'", "  vorn und hinten  ", "",
                         std::string(60000, 'x')};
    const Texte punkte = {"9", " 8 ", "-", "", "2147483647"};
    Gestartet programm;
    frmBeste->lstName.Clear();
    frmBeste->lstPunkte.Clear();
    for (std::size_t i = 0; i < namen.size(); ++i) {
        frmBeste->lstName.AddItem(namen[i]);
        frmBeste->lstPunkte.AddItem(punkte[i]);
    }
    BesteSpeichern();
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei()),
              "J\xFCrgen \xBB\x80\xAB Gro\xDF\r\n\"a\", b, 'c'\r\n  vorn und hinten  \r\n\r\n" +
                  namen[4] + "\r\n9\r\n 8 \r\n-\r\n\r\n2147483647\r\n");
    BesteLesen();
    EXPECT_EQ(Inhalt(frmBeste->lstName), namen);
    EXPECT_EQ(Inhalt(frmBeste->lstPunkte), punkte);
}

TEST(BesteSpeichern, AFailureIsToldAndLeavesTheFile)
{
    Gestartet programm;
    frmBeste->lstName.SetList(0, "neu");
    programm.VerlaufSeitdem();
    programm.Plattform.Gestoert = TestPlattform::Aufruf::Sync;
    programm.Plattform.Fehler = ENOSPC;
    programm.Antworten({Klick("lblOk")});
    BesteSpeichern();
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{kNichtGespeichert});
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), kVorgabe);
    EXPECT_EQ(frmBeste->lstName.List(0), "neu");
}

TEST(BesteVorgabe, ADefaultListThatCannotBeWrittenIsSilent)
{
    Gestartet programm("old");
    programm.VerlaufSeitdem();
    programm.Plattform.Gestoert = TestPlattform::Aufruf::Rename;
    programm.Plattform.Fehler = EACCES;
    BesteVorgabe();
    EXPECT_EQ(programm.VerlaufSeitdem(), Verlauf{});
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), "old");
}

const std::string kFuenf = "A\r\nB\r\nC\r\nD\r\nE\r\n500\r\n400\r\n300\r\n200\r\n100\r\n";

TEST(BesteEintragen, TheEntryMovesTheWorseOnesDown)
{
    const struct
    {
        std::int32_t Punkte;
        Texte Namen;
        Texte Werte;
    } cases[] = {
        {501, {"Spieler", "A", "B", "C", "D"}, {"501", "500", "400", "300", "200"}},
        {500, {"A", "Spieler", "B", "C", "D"}, {"500", "500", "400", "300", "200"}},
        {301, {"A", "B", "Spieler", "C", "D"}, {"500", "400", "301", "300", "200"}},
        {201, {"A", "B", "C", "Spieler", "D"}, {"500", "400", "300", "201", "200"}},
        {101, {"A", "B", "C", "D", "Spieler"}, {"500", "400", "300", "200", "101"}},
    };
    for (const auto& c : cases) {
        Gestartet programm(kFuenf);
        Texte namen;
        Texte werte;
        std::optional<std::string> datei;
        programm.Ende(c.Punkte, {Taste('J'),
                                 [&](Window& fenster) {
                                     namen = Inhalt(frmBeste->lstName);
                                     werte = Inhalt(frmBeste->lstPunkte);
                                     datei = Dateiinhalt(programm.Bestendatei());
                                     RaiseClick(*fenster.Find("cmdEnde"));
                                 },
                                 Taste('J')});
        EXPECT_EQ(namen, c.Namen);
        EXPECT_EQ(werte, c.Werte);
        EXPECT_EQ(datei, kFuenf) << "the file is written when the window closes, not before";
        std::string neu;
        for (const Texte& texte : {c.Namen, c.Werte}) {
            for (const std::string& text : texte) {
                neu += text + "\r\n";
            }
        }
        EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), neu);
    }
}

TEST(BestePruefen, OnlyAGreaterResultTakesAPlace)
{
    const struct
    {
        std::int32_t Punkte;
        int Platz;
    } cases[] = {{-1, -1},  {0, -1},   {3800, -1}, {3801, 4}, {4100, 4},
                 {4700, 2}, {4999, 1}, {5000, 1},  {5001, 0}, {2147483647, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Punkte);
        Gestartet programm;
        programm.VerlaufSeitdem();
        programm.Ende(c.Punkte, {Taste(kKeyEsc), Taste(kKeyEsc)});
        EXPECT_EQ(Beste.EintragPlatz, c.Platz);
        EXPECT_EQ(Beste.EndPunkte, c.Punkte);
        EXPECT_EQ(Beste.EintragModus, False);
        EXPECT_EQ(programm.VerlaufSeitdem(),
                  (Verlauf{c.Platz == -1 ? kKeinEintrag : kNeueBestmarke, kNeuesSpiel}));
        EXPECT_TRUE(App.Ended());
        EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), kVorgabe);
    }
}

TEST(BestePruefen, TheEndOfAGameLeadsThroughTheEntryIntoTheNext)
{
    Gestartet programm;
    programm.VerlaufSeitdem();
    programm.Ende(6000, {Taste('J'), [](Window&) { frmBeste->txtSpieler(0).Type("Jörg €"); },
                         Klick("cmdEnde"), Taste('J')});
    EXPECT_EQ(programm.VerlaufSeitdem(), (Verlauf{kNeueBestmarke, "frmBeste", kNeuesSpiel}));
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei())->substr(0, 17), "J\xF6rg \x80\r\nNiemand\r\n");
    EXPECT_EQ(Stand.RundenZahl, 1);
    EXPECT_EQ(Beste.EndPunkte, 0);
}

TEST(BestePruefen, APlaceWithoutANumberCountsAsNothing)
{
    const struct
    {
        const char* Liste;
        std::int32_t Punkte;
        int Platz;
    } cases[] = {
        {"a\nb\nc\nd\ne\n500\nx\n300\n200\n100\n", 1, 1}, {"a\nb\nc\nd\ne\n99999999999\n", 1, 0},
        {"a\nb\nc\nd\ne\n500\n400\n300\n", 10, 3},  // the last two lines are missing
        {"a\nb\nc\nd\ne\n500\n400\n300\n", 0, -1},        {"", 1, 0},
        {"a\nb\nc\nd\ne\n-5\n-6\n\n\n\n", 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Liste);
        Gestartet programm(c.Liste);
        static_cast<void>(frmBeste->Name());
        programm.Ende(c.Punkte, {Taste('N'), Taste('N')});
        EXPECT_EQ(Beste.EintragPlatz, c.Platz);
        EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), c.Liste);
    }
}

TEST(BestePruefen, AnEntryInADamagedListIsSavedWithEmptyPlaces)
{
    Gestartet programm("a\nb\n");
    programm.Ende(7, {Klick("lblOk"), Taste('J'), Klick("cmdEnde"), Taste('J')});
    EXPECT_EQ(Dateiinhalt(programm.Bestendatei()), "Spieler\r\na\r\nb\r\n\r\n\r\n"
                                                   "7\r\n\r\n\r\n\r\n\r\n");
}

}  // namespace
}  // namespace malvone
