// FrmBilder.h: the hidden bank of pictures, read through its controls only.
#pragma once

#include "ui/layer/Instance.h"

namespace malvone {

inline constexpr int kPfeilLeer =
    2;  // the entry of imgPfeil that has no picture and wipes an arrow

class FrmBilder final : public Window
{
public:
    FrmBilder();
    ~FrmBilder() override;

    // Index 0 to 4 is the value of a cell.
    ControlArray<Image> imgBild{Named("imgBild"), Indexes(0, 4)};          // the normal look
    ControlArray<Image> imgVorschau{Named("imgVorschau"), Indexes(0, 4)};  // stones of a group
    ControlArray<Image> imgNeutral{Named("imgNeutral"), Indexes(0, 4)};    // a lone stone
    Image imgGrund{Named("imgGrund")};                                     // the empty cell

    // The two looks of the arrow, and kPfeilLeer.
    ControlArray<Image> imgPfeil{Named("imgPfeil"), Indexes(0, 2)};

    Image cmdHilfeAuswahl{Named("cmdHilfeAuswahl")};
    Image cmdHilfeGruen{Named("cmdHilfeGruen")};
    Image cmdBeschreibungenAuswahl{Named("cmdBeschreibungenAuswahl")};
    Image cmdBeschreibungenFruen{Named("cmdBeschreibungenFruen")};
};

extern Instance<FrmBilder> frmBilder;

}  // namespace malvone
