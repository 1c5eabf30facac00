// SteuereBilder.cpp: what is marked, how it looks, and what it is worth.
#include "board/SteuereBilder.h"

#include <string>

#include "state/Spielstand.h"
#include "state/Zellen.h"
#include "ui/services/Anzeigen.h"
#include "ui/services/Klaenge.h"
#include "ui/windows/FrmBilder.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {
namespace {

constexpr Colour kRot = Rgb(0xFF0000);

// Set when a test to the side finds the colour, even if the neighbour was marked already.
bool RechtsGefunden = false;
bool LinksGefunden = false;

bool HatFarbe(int zelle, std::int16_t farbe)
{
    return Zellwert(zelle) == farbe;
}

bool HatRechts(int zelle)
{
    return zelle < ObersteZelle(kSpalten - 1);
}

bool HatLinks(int zelle)
{
    return zelle > kReihen;
}

void MarkierenWennFarbe(int zelle, std::int16_t farbe)
{
    if (HatFarbe(zelle, farbe)) {
        Satz(zelle).Markiert = True;
    }
}

void RechtsPruefenMelden(int zelle, std::int16_t farbe)
{
    RechtsPruefen(zelle, farbe);
    if (HatFarbe(zelle + kReihen, farbe)) {
        RechtsGefunden = true;
    }
}

void LinksPruefenMelden(int zelle, std::int16_t farbe)
{
    LinksPruefen(zelle, farbe);
    if (HatFarbe(zelle - kReihen, farbe)) {
        LinksGefunden = true;
    }
}

// A direction within a column: a step, and the edge at which it ends.
struct Richtung
{
    int Schritt;
    Flag Zelle::*Rand;
};
constexpr Richtung kAufwaerts{-1, &Zelle::ObererRand};
constexpr Richtung kAbwaerts{+1, &Zelle::UntererRand};

// The walk covers the unbroken run of the start cell: it stops at the first stone of another value.
void StartGang(int zelle, std::int16_t farbe, Richtung richtung)
{
    for (int i = zelle;; i += richtung.Schritt) {
        if (HatRechts(i)) {
            RechtsPruefenMelden(i, farbe);
        }
        if (HatLinks(i)) {
            LinksPruefenMelden(i, farbe);
        }
        if (Satz(i).*richtung.Rand != False) {
            return;
        }
        MarkierenWennFarbe(i + richtung.Schritt, farbe);
        if (Satz(i + richtung.Schritt).Markiert == False) {
            return;
        }
    }
}

// A pass goes on to the edge of the column and acts on each marked cell that it meets.
template<class SeitenPruefen>
void Durchgang(int zelle, std::int16_t farbe, Richtung richtung, SeitenPruefen seitenPruefen)
{
    for (int k = zelle;; k += richtung.Schritt) {
        const bool markiert = Satz(k).Markiert != False;
        if (markiert) {
            seitenPruefen(k);
        }
        if (Satz(k).*richtung.Rand != False) {
            return;
        }
        if (markiert) {
            MarkierenWennFarbe(k + richtung.Schritt, farbe);
        }
    }
}

int HoechsteMarkierte()
{
    int zelle = kZellen;
    while (zelle > 1 && Satz(zelle).Markiert == False) {
        --zelle;
    }
    return zelle;
}

int NiedrigsteMarkierte()
{
    int zelle = 1;
    while (zelle < kZellen && Satz(zelle).Markiert == False) {
        ++zelle;
    }
    return zelle;
}

// All marked cells have just been emptied, so no mark is left behind.
void LeereZellenEntmarken()
{
    for (int i = 1; i <= kZellen; ++i) {
        if (Zellwert(i) == 0) {
            Satz(i).Markiert = False;
            Satz(i).Vorschau = False;
        }
    }
}

std::int32_t Markierte()
{
    std::int32_t zahl = 0;
    for (int i = 1; i <= kZellen; ++i) {
        zahl += Satz(i).Markiert != False ? 1 : 0;
    }
    return zahl;
}

std::int32_t Zugwert(std::int32_t steine)
{
    return steine * steine;
}

}  // namespace

std::int32_t Zellwert(int zelle)
{
    return frmTessel->imgFeld(zelle).Tag->Number();
}

void MarkierungenLoeschen()
{
    Stand.MarkiertZahl = 0;
    for (int i = 1; i <= kZellen; ++i) {
        Satz(i).Markiert = False;
    }
}

void VorschauZuruecknehmen()
{
    for (int i = 1; i <= kZellen; ++i) {
        if (Satz(i).Vorschau != False) {
            BildZeigen(i);
            Satz(i).Vorschau = False;
        }
    }
}

void BildZeigen(int zelle)
{
    const std::int32_t wert = Zellwert(zelle);
    frmTessel->imgFeld(zelle).Picture =
        HatBild(wert) ? frmBilder->imgBild(wert).Picture.Get() : Picture();
}

void FeldLeeren()
{
    for (int i = 1; i <= kZellen; ++i) {
        frmTessel->imgFeld(i).Picture = frmBilder->imgBild(0).Picture;
        frmTessel->imgFeld(i).Tag = "0";
    }
    frmTessel->cmdSchalt(kSchaltWiederholen).Visible = true;
}

void RechtsPruefen(int zelle, std::int16_t farbe)
{
    MarkierenWennFarbe(zelle + kReihen, farbe);
}

void LinksPruefen(int zelle, std::int16_t farbe)
{
    MarkierenWennFarbe(zelle - kReihen, farbe);
}

void StartSpalteMarkieren(int zelle)
{
    const auto farbe = static_cast<std::int16_t>(Zellwert(zelle));
    Satz(zelle).Markiert = True;
    StartGang(zelle, farbe, kAufwaerts);
    StartGang(zelle, farbe, kAbwaerts);
}

void NachRechtsAusbreiten(std::int16_t farbe)
{
    const auto seitenPruefen = [farbe](int k) {
        if (HatRechts(k)) {
            RechtsPruefenMelden(k, farbe);
        }
        if (HatLinks(k)) {
            LinksPruefen(k, farbe);
        }
    };
    do {
        RechtsGefunden = false;
        const int hoechste = HoechsteMarkierte();
        Durchgang(hoechste, farbe, kAufwaerts, seitenPruefen);
        Durchgang(hoechste, farbe, kAbwaerts, seitenPruefen);
    } while (RechtsGefunden);
}

void NachLinksAusbreiten(std::int16_t farbe)
{
    const auto seitenPruefen = [farbe](int k) {
        if (HatLinks(k)) {
            LinksPruefenMelden(k, farbe);
        }
        if (HatRechts(k)) {
            RechtsPruefen(k, farbe);
        }
    };
    do {
        LinksGefunden = false;
        const int niedrigste = NiedrigsteMarkierte();
        Durchgang(niedrigste, farbe, kAufwaerts, seitenPruefen);
        Durchgang(niedrigste, farbe, kAbwaerts, seitenPruefen);
    } while (LinksGefunden);
}

void GruppeVorschauen(std::int16_t farbe)
{
    Stand.MarkiertZahl = 0;
    // A value from a damaged snapshot has no face, so nothing is shown.
    if (!HatBild(farbe)) {
        return;
    }
    int letzte = 0;
    for (int i = 1; i <= kZellen; ++i) {
        if (Satz(i).Markiert != False) {
            frmTessel->imgFeld(i).Picture = frmBilder->imgVorschau(farbe).Picture;
            Satz(i).Vorschau = True;
            ++Stand.MarkiertZahl;
            letzte = i;
        }
    }
    if (Stand.MarkiertZahl == 1) {
        frmTessel->imgFeld(letzte).Picture = frmBilder->imgNeutral(farbe).Picture;
        frmTessel->lblSumme.ForeColor = kRot;
        frmTessel->lblSumme.Caption = "Spielzug ist nicht möglich\r\nEs ist nur ein Feld markiert.";
    } else {
        frmTessel->lblSumme.ForeColor = kDunkelblau;
        frmTessel->lblSumme.Caption =
            "Dieser Spielzug ergibt " + std::to_string(Zugwert(Stand.MarkiertZahl)) + " Punkte!";
    }
}

void ZugAusfuehren()
{
    Stand.ZugPunkte = 0;
    const std::int32_t steine = Markierte();
    if (steine < 2) {
        return;
    }
    SoundSpielen(kTonEntfernt);
    for (int i = 1; i <= kZellen; ++i) {
        if (Satz(i).Markiert != False) {
            frmTessel->imgFeld(i).Picture = frmBilder->imgGrund.Picture;
            frmTessel->imgFeld(i).Tag = "0";
        }
    }
    Stand.ZugPunkte = Zugwert(steine);
    Stand.LevelPunkte += Stand.ZugPunkte;
    Stand.PunkteGesamt += Stand.ZugPunkte;
    AnzeigenAktualisieren();
    LeereZellenEntmarken();
}

}  // namespace malvone
