// FrmMsgOk.h: the message window that tells the player something and has one way out.
#pragma once

#include "ui/layer/Instance.h"

namespace malvone {

class FrmMsgOk final : public Window
{
public:
    FrmMsgOk();
    ~FrmMsgOk() override;

    // From front to back.
    PictureBox Picture1{Named("Picture1")};  // the white panel
    Label lblTitel{Named("lblTitel", &Picture1)};
    Label lblMeldung{Named("lblMeldung", &Picture1)};
    Image Image2{Named("Image2")};  // close icon
    Label lblName{Named("lblName")};
    Label lblOk{Named("lblOk")};  // hot area over the painted button

    void Form_Activate() override;
    void Form_KeyDown(std::int16_t& KeyCode, std::int16_t Shift) override;
    void Form_MouseMove(const Mouse& mouse) override;

private:
    void lblOk_Click();
    void Image2_Click();
    void lblName_MouseMove(const Mouse& mouse);
};

extern Instance<FrmMsgOk> frmMsgOk;

}  // namespace malvone
