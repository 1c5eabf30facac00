// FrmDigital.h: the hidden bank of the pictures of digits, read through its controls only.
#pragma once

#include "ui/layer/Instance.h"

namespace malvone {

inline constexpr int kZifferLeer = 10;  // all seven segments dark

class FrmDigital final : public Window
{
public:
    FrmDigital();
    ~FrmDigital() override;

    // 0 to 9 show that digit, kZifferLeer is the blank place.
    ControlArray<Image> imgDiggi{Named("imgDiggi"), Indexes(0, kZifferLeer)};
};

extern Instance<FrmDigital> frmDigital;

}  // namespace malvone
