// FrmHintergrund.h: the backdrop that lies behind the game and covers the whole screen.
#pragma once

#include "ui/layer/Instance.h"

namespace malvone {

class FrmHintergrund final : public Window
{
public:
    FrmHintergrund();
    ~FrmHintergrund() override;

    Image Image1{Named("Image1")};

    void Form_Load() override;
    void Form_Activate() override;
};

extern Instance<FrmHintergrund> frmHintergrund;

}  // namespace malvone
