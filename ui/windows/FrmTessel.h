// FrmTessel.h: the main window, with everything on it and all that it answers.
#pragma once

#include "ui/layer/Instance.h"
#include "ui/windows/Ziffernreihe.h"

namespace malvone {

class FrmTessel final : public Window
{
public:
    FrmTessel();
    ~FrmTessel() override;

    // The menu. mnuTessel and mnuInfo begin at index 1.
    MenuEntry mnuTesselMenu{Named("mnuTesselMenu"), nullptr};
    ControlArray<MenuEntry> mnuTessel{Named("mnuTessel"), Indexes(1, 4), &mnuTesselMenu};
    MenuEntry mnuOptionen{Named("mnuOptionen"), nullptr};
    MenuEntry mnuSound{Named("mnuSound"), &mnuOptionen};
    MenuEntry mnuSoundan{Named("mnuSoundan"), &mnuSound};
    MenuEntry mnuSoundaus{Named("mnuSoundaus"), &mnuSound};
    MenuEntry mnuMenuInfo{Named("mnuMenuInfo"), nullptr};
    ControlArray<MenuEntry> mnuInfo{Named("mnuInfo"), Indexes(1, 4), &mnuMenuInfo};

    Timer Timer1{Named("Timer1")};  // the program's only timer; it makes the arrow blink

    // From front to back: digits lie on their panels, transparent labels on their pictures.
    PictureBox Picture1{Named("Picture1")};  // the board's frame
    ControlArray<Image> imgFeld{Named("imgFeld", &Picture1),
                                {0}};  // 0 is the template of the cells
    // To the right of the client area, never seen: they are there for their access keys.
    ControlArray<CommandButton> cmdSchalt{Named("cmdSchalt"), {3, 2, 1, 0}};
    Image imgNochEinmal{Named("imgNochEinmal")};
    Image lblInfo{Named("lblInfo")};
    Image lblHilfe{Named("lblHilfe")};
    ControlArray<Image> imgDiggiLevel{Named("imgDiggiLevel"), Indexes(0, 1)};
    Image Image4{Named("Image4")};
    ControlArray<Image> imgDiggiPunkte{Named("imgDiggiPunkte"), Indexes(0, 4)};
    Image Image3{Named("Image3")};
    Label lblMeldung{Named("lblMeldung")};  // what the player is to do next
    Label lblSumme{Named("lblSumme")};      // what the move under the pointer is worth
    Image imgWiederholen{Named("imgWiederholen")};
    Image imgNaechsterLevel{Named("imgNaechsterLevel")};
    Image imgNext{Named("imgNext")};
    Image imgStart{Named("imgStart")};
    ControlArray<Label> Label1{Named("Label1"), {1, 0}};
    Label lblNeu{Named("lblNeu")};
    Label lblEnde{Named("lblEnde")};
    ControlArray<Image> imgDiggiLevelPunkte{Named("imgDiggiLevelPunkte"), Indexes(0, 3)};
    Image Image6{Named("Image6")};
    Image Image1{Named("Image1")};

    Ziffernreihe Punkte{"Punkte", imgDiggiPunkte};
    Ziffernreihe LevelPunkte{"Levelpunkte", imgDiggiLevelPunkte};
    Ziffernreihe Level{"Level", imgDiggiLevel};

    std::int16_t PfeilPhase = 0;  // 0 or 1: the look of the blinking arrow

    void Form_Load() override;
    void Form_KeyDown(std::int16_t& KeyCode, std::int16_t Shift) override;
    void Form_QueryUnload(std::int16_t& Cancel, UnloadMode mode) override;
    void Form_Unload() override;

    // The question at the end of a game: a new game, or the end of the program.
    void ExternesEnde();

private:
    void imgFeld_MouseMove(std::int16_t Index);
    void imgFeld_MouseDown(std::int16_t Index, const Mouse& mouse);
    void Picture1_MouseMove();
    void BelegteFelderZaehlen();
    void LeeresFeldBelohnen();
    void LevelAuswerten();

    void lblNeu_Click();
    void lblEnde_Click();
    void cmdSchalt_Click(std::int16_t Index);
    void imgNaechsterLevel_Click();
    void imgWiederholen_Click();
    void PfeileAus();
    void AngebotAus();
    void Timer1_Timer();
    void PfeilBlinken();

    void mnuTessel_Click(std::int16_t Index);
    void mnuInfo_Click(std::int16_t Index);
    void mnuSoundan_Click();
    void mnuSoundaus_Click();

    void lblHilfe_Click();
    void lblHilfe_MouseDown();
    void lblHilfe_MouseUp();
    void lblInfo_Click();
    void lblInfo_MouseDown();
    void lblInfo_MouseUp();

    void PlaceControls();
    void SetLooks();
    void SetMenu();
    void ConnectEvents();
};

extern Instance<FrmTessel> frmTessel;

// The buttons of cmdSchalt and what they do. Index 2, the manual, does nothing.
inline constexpr std::int16_t kSchaltWeiter = 0;
inline constexpr std::int16_t kSchaltWiederholen = 1;
inline constexpr std::int16_t kSchaltEnde = 3;

// The entries of mnuTessel and of mnuInfo.
inline constexpr std::int16_t kMenuNeu = 1;
inline constexpr std::int16_t kMenuWiederholen = 2;
inline constexpr std::int16_t kMenuEnde = 4;
inline constexpr std::int16_t kMenuHilfe = 1;
inline constexpr std::int16_t kMenuInfo = 2;
inline constexpr std::int16_t kMenuBeste = 4;

// Whether menu and keyboard offer to repeat the level.
void WiederholenAnbieten(bool angeboten);

}  // namespace malvone
