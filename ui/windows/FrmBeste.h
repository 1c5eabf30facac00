// FrmBeste.h: the best-players window, which also holds the list in memory.
#pragma once

#include <vector>

#include "ui/layer/Instance.h"
#include "ui/windows/Ziffernreihe.h"

namespace malvone {

inline constexpr int kPlaetze = 5;         // places of the list, 0 is the best
inline constexpr int kZiffernJePlatz = 7;  // digit places of a row; index 7p is the units digit

class FrmBeste final : public Window
{
public:
    FrmBeste();
    ~FrmBeste() override;

    // From front to back. What lies outside the client area is never seen: the two lists are the
    // best list in memory, txtSpieler(5) to (9) hold the points as text, cmdTessel is there for
    // Alt+A.
    CommandButton cmdTessel{Named("cmdTessel")};
    ListBox lstPunkte{Named("lstPunkte")};
    ListBox lstName{Named("lstName")};
    ControlArray<TextBox> txtSpieler{Named("txtSpieler"), {9, 8, 7, 6, 5, 4, 3, 2, 1, 0}};
    Image cmdEnde{Named("cmdEnde")};
    Image lblTessel{Named("lblTessel")};
    Shape shpTessel{Named("shpTessel")};
    Shape shpEnde{Named("shpEnde")};
    ControlArray<Image> imgDiggi{Named("imgDiggi"), Indexes(0, kPlaetze* kZiffernJePlatz - 1)};
    Label Label2{Named("Label2")};
    Label Label1{Named("Label1")};
    Line Line2{Named("Line2")};
    Line Line1{Named("Line1")};

    std::vector<Ziffernreihe> Punkte;  // one row for each place of the list

    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyDown(std::int16_t& KeyCode, std::int16_t Shift) override;
    void Form_Unload() override;

private:
    void cmdEnde_Click();
    void cmdTessel_Click();
    void lblTessel_Click();

    void ZeilenAnordnen();
    void PunkteAnzeigen();
    void FelderSperren();
};

extern Instance<FrmBeste> frmBeste;

}  // namespace malvone
