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

// Returns whether the cell has the colour, be it newly marked or not.
bool MarkierenWennFarbe(int zelle, std::int16_t farbe)
{
    if (Zellwert(zelle) != farbe) {
        return false;
    }
    Satz(zelle).Markiert = True;
    return true;
}

bool RechtsPruefen(int zelle, std::int16_t farbe)
{
    return zelle <= kZellen - kReihen && MarkierenWennFarbe(zelle + kReihen, farbe);
}

bool LinksPruefen(int zelle, std::int16_t farbe)
{
    return zelle > kReihen && MarkierenWennFarbe(zelle - kReihen, farbe);
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
        RechtsPruefen(i, farbe);
        LinksPruefen(i, farbe);
        if (Satz(i).*richtung.Rand != False) {
            return;
        }
        MarkierenWennFarbe(i + richtung.Schritt, farbe);
        if (Satz(i + richtung.Schritt).Markiert == False) {
            return;
        }
    }
}

// A pass goes on to the edge of the column and acts on each marked cell that it meets. Returns
// whether a test forward has found the colour.
using Seitentest = bool (*)(int zelle, std::int16_t farbe);
bool Durchgang(int zelle, std::int16_t farbe, Richtung richtung, Seitentest vor, Seitentest zurueck)
{
    bool gefunden = false;
    for (int k = zelle;; k += richtung.Schritt) {
        const bool markiert = Satz(k).Markiert != False;
        if (markiert) {
            gefunden = vor(k, farbe) || gefunden;
            zurueck(k, farbe);
        }
        if (Satz(k).*richtung.Rand != False) {
            return gefunden;
        }
        if (markiert) {
            MarkierenWennFarbe(k + richtung.Schritt, farbe);
        }
    }
}

bool Spaltengang(int zelle, std::int16_t farbe, Seitentest vor, Seitentest zurueck)
{
    const bool oben = Durchgang(zelle, farbe, kAufwaerts, vor, zurueck);
    const bool unten = Durchgang(zelle, farbe, kAbwaerts, vor, zurueck);
    return oben || unten;
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

void StartSpalteMarkieren(int zelle)
{
    const auto farbe = static_cast<std::int16_t>(Zellwert(zelle));
    Satz(zelle).Markiert = True;
    StartGang(zelle, farbe, kAufwaerts);
    StartGang(zelle, farbe, kAbwaerts);
}

void NachRechtsAusbreiten(std::int16_t farbe)
{
    while (Spaltengang(HoechsteMarkierte(), farbe, RechtsPruefen, LinksPruefen)) {
    }
}

void NachLinksAusbreiten(std::int16_t farbe)
{
    while (Spaltengang(NiedrigsteMarkierte(), farbe, LinksPruefen, RechtsPruefen)) {
    }
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
