// FrmTessel.cpp: places, looks, words and events of the main window.
#include "ui/windows/FrmTessel.h"

#include "ui/windows/Design.h"

namespace malvone {

Instance<FrmTessel> frmTessel{"frmTessel"};

void WiederholenAnbieten(bool angeboten)
{
    frmTessel->mnuTessel(kMenuWiederholen).Enabled = angeboten;
    frmTessel->cmdSchalt(kSchaltWiederholen).Visible = angeboten;
}

FrmTessel::FrmTessel() : Window("frmTessel", 11325, 6945)
{
    Role = WindowRole::Main;
    Caption = "Form1";
    BorderStyle = Border::Sizable;
    Picture = PictureNamed("frmTessel");
    Icon = PictureNamed("frmTessel.Icon");
    Picture1.Picture = PictureNamed("frmTessel.Picture1");
    imgFeld(0).ByArrows = true;  // and so are its copies, the cells
    imgNaechsterLevel.ByArrows = true;
    imgWiederholen.ByArrows = true;
    PlaceControls();
    SetLooks();
    SetMenu();
    ConnectEvents();
}

FrmTessel::~FrmTessel() = default;

void FrmTessel::PlaceControls()
{
    const design::Bounds bounds[] = {
        {Picture1, 3750, 150, 6945, 5055},               //
        {imgFeld(0), 420, 570, 495, 495},                //
        {cmdSchalt(3), 11700, 270, 1425, 435},           //
        {cmdSchalt(2), 11640, 810, 1635, 435},           //
        {cmdSchalt(1), 11400, 1350, 1905, 435},          //
        {cmdSchalt(0), 11580, 2010, 1635, 435},          //
        {imgNochEinmal, 10620, 6030, 495, 360},          //
        {lblInfo, 270, 1920, 1440, 630},                 //
        {lblHilfe, 240, 1230, 1440, 630},                //
        {imgDiggiLevel(0), 2520, 4500, 210, 420},        //
        {imgDiggiLevel(1), 2310, 4500, 210, 420},        //
        {Image4, 90, 4380, 2865, 630},                   //
        {imgDiggiPunkte(0), 2610, 3030, 210, 420},       //
        {imgDiggiPunkte(1), 2400, 3030, 210, 420},       //
        {imgDiggiPunkte(2), 2190, 3030, 210, 420},       //
        {imgDiggiPunkte(3), 1980, 3030, 210, 420},       //
        {imgDiggiPunkte(4), 1770, 3030, 210, 420},       //
        {Image3, 150, 2940, 2865, 630},                  //
        {lblMeldung, 3240, 5910, 4035, 705},             //
        {lblSumme, 3660, 5280, 3795, 465},               //
        {imgWiederholen, 7590, 5940, 2865, 630},         //
        {imgNaechsterLevel, 7590, 5250, 2865, 630},      //
        {imgNext, 10590, 5310, 495, 360},                //
        {imgStart, 3150, 5310, 495, 360},                //
        {Label1(1), 1320, 330, 1815, 345},               //
        {Label1(0), 1290, 330, 1815, 345},               //
        {lblNeu, 210, 5220, 2835, 615},                  //
        {lblEnde, 180, 5970, 1965, 615},                 //
        {imgDiggiLevelPunkte(0), 2580, 3750, 210, 420},  //
        {imgDiggiLevelPunkte(1), 2370, 3750, 210, 420},  //
        {imgDiggiLevelPunkte(2), 2160, 3750, 210, 420},  //
        {imgDiggiLevelPunkte(3), 1950, 3750, 210, 420},  //
        {Image6, 120, 3660, 2865, 630},                  //
        {Image1, 60, 5190, 3000, 1440},                  //
    };
    design::Apply(bounds);
}

void FrmTessel::SetLooks()
{
    constexpr Font kTitle{"Arial", 14.25F, true};
    const design::LabelLook labels[] = {
        {lblMeldung, "", {"Arial", 9.0F, true}, 0x0000FF, Alignment::Centre},
        {lblSumme, "", {"Arial", 9.75F, true}, 0x0000C0, Alignment::Centre},
        {Label1(1), "Malvone", kTitle, 0x0000C0, Alignment::Left},
        {Label1(0), "Malvone", kTitle, 0xFFFF00, Alignment::Left},
    };
    const design::Tip tips[] = {
        {cmdSchalt(3), Pointer::Default, "Klicken Sie hier, um das Spiel zu beenden"},
        {cmdSchalt(2), Pointer::Default, "Klicken Sie hier, um die Spielanleitung zu lesen"},
        {cmdSchalt(1), Pointer::Default, "Klicken Sie hier, um das letzte Spiel zu wiederholen"},
        {cmdSchalt(0), Pointer::Default, "Klicken Sie hier, um ein Spiel zu beginnen"},
        {lblInfo, Pointer::Default, "Allgemeine Informationen"},
        {lblHilfe, Pointer::Default, "Beschreibung der Auswahl"},
        // By design (woertlich): one would expect "Alte". Players know the words as they are.
        // Test: Design.AllWindowsStandAsInTheFile
        {imgWiederholen, Pointer::Hand, "Alten Bildanordnung wiederholen"},
        {imgNaechsterLevel, Pointer::Hand, "Nächsten Level beginnen"},
        {lblNeu, Pointer::Hand, "Neues Spiel beginnen"},
        {lblEnde, Pointer::Hand, "Spiel beenden"},
    };
    const design::Shows pictures[] = {
        {imgNochEinmal, "frmBilder.imgPfeil(1)"},
        {lblInfo, "frmBilder.cmdBeschreibungenAuswahl"},
        {lblHilfe, "frmBilder.cmdHilfeAuswahl"},
        {Image4, "frmTessel.Image4"},
        {Image3, "frmTessel.Image3"},
        {imgWiederholen, "frmTessel.imgWiederholen"},
        {imgNaechsterLevel, "frmTessel.imgNaechsterLevel"},
        {imgNext, "frmBilder.imgPfeil(1)"},
        {imgStart, "frmBilder.imgPfeil(1)"},
        {Image6, "frmTessel.Image6"},
        {Image1, "frmTessel.Image1"},
    };
    design::Apply(labels);
    design::Apply(tips);
    design::Apply(pictures);

    cmdSchalt(kSchaltEnde).Caption = "b&eenden";
    cmdSchalt(2).Caption = "Spiel&anleitung";
    cmdSchalt(kSchaltWiederholen).Caption = "Spiel &wiederholen";
    cmdSchalt(kSchaltWeiter).Caption = "Spiel &beginnen";
    cmdSchalt(kSchaltWeiter).Default = true;
    for (int i = 0; i < cmdSchalt.End(); ++i) {
        cmdSchalt(i).TabIndex = static_cast<std::int16_t>(i);
    }
}

void FrmTessel::SetMenu()
{
    const design::Entry entries[] = {
        {mnuTesselMenu, "&Spiel             ", {}},
        {mnuTessel(kMenuNeu), "&Neues Spiel    ", {'N', kCtrlKey}},
        {mnuTessel(kMenuWiederholen), "Spiel &wiederholen", {'W', kCtrlKey}},
        {mnuTessel(3), "-", {}},
        {mnuTessel(kMenuEnde), "b&eenden", {'E', kCtrlKey}},
        {mnuOptionen, "&Optionen            ", {}},
        {mnuSound, "Sound", {}},
        {mnuSoundan, "an", {}},
        {mnuSoundaus, "aus", {}},
        {mnuMenuInfo, "&Information               ", {}},
        {mnuInfo(kMenuHilfe), "Spielanleitung      ", {kKeyF1, 0}},
        {mnuInfo(kMenuInfo), "allgemeines...", {}},
        {mnuInfo(3), "-", {}},
        {mnuInfo(kMenuBeste), "Beste Spieler...", {}},
    };
    design::Apply(entries);
    mnuSoundan.Checked = true;
}

void FrmTessel::ConnectEvents()
{
    mnuTessel.Click = [this](std::int16_t Index) { mnuTessel_Click(Index); };
    mnuInfo.Click = [this](std::int16_t Index) { mnuInfo_Click(Index); };
    mnuSoundan.Click = [this] { mnuSoundan_Click(); };
    mnuSoundaus.Click = [this] { mnuSoundaus_Click(); };
    Timer1.Tick = [this] { Timer1_Timer(); };

    imgFeld.MouseMove = [this](std::int16_t Index, const Mouse&) { imgFeld_MouseMove(Index); };
    imgFeld.MouseDown = [this](std::int16_t Index, const Mouse& mouse) {
        imgFeld_MouseDown(Index, mouse);
    };
    Picture1.MouseMove = [this] { Picture1_MouseMove(); };

    cmdSchalt.Click = [this](std::int16_t Index) { cmdSchalt_Click(Index); };
    imgNaechsterLevel.Click = [this] { imgNaechsterLevel_Click(); };
    imgWiederholen.Click = [this] { imgWiederholen_Click(); };
    lblNeu.Click = [this] { lblNeu_Click(); };
    lblEnde.Click = [this] { lblEnde_Click(); };

    lblHilfe.Click = [this] { lblHilfe_Click(); };
    lblHilfe.MouseDown = [this] { lblHilfe_MouseDown(); };
    lblHilfe.MouseUp = [this] { lblHilfe_MouseUp(); };
    lblInfo.Click = [this] { lblInfo_Click(); };
    lblInfo.MouseDown = [this] { lblInfo_MouseDown(); };
    lblInfo.MouseUp = [this] { lblInfo_MouseUp(); };
}

}  // namespace malvone
