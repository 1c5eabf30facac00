// FrmBeste.cpp: places, looks and words of the best-players window.
#include "ui/windows/FrmBeste.h"

#include <string>

#include "ui/windows/Design.h"

namespace malvone {

Instance<FrmBeste> frmBeste{"frmBeste"};

FrmBeste::FrmBeste() : Window("frmBeste", 5130, 4845)
{
    Caption = "Beste Spieler ";
    BorderStyle = Border::FixedSingle;
    Picture = PictureNamed("frmBeste");
    Icon = PictureNamed("frmBeste.Icon");

    const design::Bounds bounds[] = {
        {cmdTessel, 8550, 3660, 2205, 495},      //
        {lstPunkte, 9150, 60, 825, 2205},        //
        {lstName, 8940, 90, 825, 2205},          //
        {txtSpieler(9), 8790, 2490, 1275, 315},  //
        {txtSpieler(8), 8610, 2280, 1275, 315},  //
        {txtSpieler(7), 8940, 1920, 1275, 315},  //
        {txtSpieler(6), 8790, 1680, 1245, 315},  //
        {txtSpieler(5), 8640, 360, 1245, 315},   //
        {txtSpieler(4), 120, 2850, 2655, 315},   //
        {txtSpieler(3), 180, 2340, 2655, 315},   //
        {txtSpieler(2), 150, 1800, 2655, 315},   //
        {txtSpieler(1), 150, 1320, 2655, 315},   //
        {txtSpieler(0), 660, 780, 2205, 405},    //
        {cmdEnde, 990, 4260, 2145, 495},         //
        {lblTessel, 870, 3630, 2205, 525},       //
        {shpTessel, 8340, 2940, 2205, 465},      //
        {shpEnde, 9180, 3390, 1515, 495},        //
        {Label2, 3720, 180, 1245, 285},          //
        {Label1, 1110, 180, 2355, 375},          //
    };
    constexpr Font kHead{"MS Sans Serif", 12.0F, true};
    const design::LabelLook looks[] = {
        {Label2, "Punkte", kHead, 0x0000FF, Alignment::Left},
        {Label1, "Name des Spielers", kHead, 0x0000FF, Alignment::Left},
    };
    const design::Tip tips[] = {
        {cmdTessel, Pointer::Default, "Rücksetzen aller Namen und Punkte"},
        {cmdEnde, Pointer::Hand, "Fenster schließen"},
        {lblTessel, Pointer::Hand, "Einträge zurücksetzen"},
    };
    const design::Shows pictures[] = {
        {cmdEnde, "frmBeste.cmdEnde"},
        {lblTessel, "frmBeste.lblTessel"},
    };
    design::Apply(bounds);
    design::Apply(looks);
    design::Apply(tips);
    design::Apply(pictures);

    cmdTessel.Caption = "&Alle Einträge löschen";
    shpTessel.FillColor = Rgb(0xFF0000);
    shpEnde.FillColor = Rgb(0x008000);
    for (int i = 0; i < txtSpieler.End(); ++i) {
        txtSpieler(i).Text = "Text1";
        txtSpieler(i).TextFont = Font{"Arial", 12.0F, true};
    }

    for (int platz = 0; platz < kPlaetze; ++platz) {
        const int einer = platz * kZiffernJePlatz;
        Punkte.emplace_back("Punkte, Platz " + std::to_string(platz + 1), imgDiggi,
                            Indexes(einer, einer + kZiffernJePlatz - 1));
    }

    // All rows start at the place of the first units digit; loading arranges them.
    constexpr int kNieSichtbar = kZiffernJePlatz - 1;  // the seventh place of each row
    for (int i = 0; i < imgDiggi.End(); ++i) {
        imgDiggi(i).Move(4830, 720, 210, 420);
        imgDiggi(i).Visible = i % kZiffernJePlatz != kNieSichtbar;
    }

    Line2.X1 = 3600;
    Line2.Y1 = 120;
    Line2.X2 = 3600;
    Line2.Y2 = 3330;
    Line2.BorderColor = Rgb(0xFFFFFF);
    Line1.X1 = 1290;
    Line1.Y1 = 600;
    Line1.X2 = 5040;
    Line1.Y2 = 600;
    Line1.BorderColor = Rgb(0xFFFFFF);

    cmdTessel.Click = [this] { cmdTessel_Click(); };
    cmdEnde.Click = [this] { cmdEnde_Click(); };
    lblTessel.Click = [this] { lblTessel_Click(); };
}

FrmBeste::~FrmBeste() = default;

}  // namespace malvone
