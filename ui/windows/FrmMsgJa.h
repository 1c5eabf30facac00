// FrmMsgJa.h: the message window that asks a question.
#pragma once

#include "ui/layer/Instance.h"

namespace malvone {

class FrmMsgJa final : public Window
{
public:
    FrmMsgJa();
    ~FrmMsgJa() override;

    // From front to back.
    PictureBox Picture1{Named("Picture1")};  // the white panel
    Label lblTitel{Named("lblTitel", &Picture1)};
    Label lblMeldung{Named("lblMeldung", &Picture1)};
    Image Image1{Named("Image1")};    // close icon
    Label lblNein{Named("lblNein")};  // hot areas over the painted buttons
    Label lblJa{Named("lblJa")};
    Label lblName{Named("lblName")};

    void Form_Activate() override;
    void Form_KeyDown(std::int16_t& KeyCode, std::int16_t Shift) override;
    void Form_MouseMove(const Mouse& mouse) override;
    void Form_QueryUnload(std::int16_t& Cancel, UnloadMode mode) override;

private:
    void Antworten(std::int16_t antwort);
    void lblJa_Click();
    void lblNein_Click();
    void Image1_Click();
    void lblName_MouseMove(const Mouse& mouse);
};

extern Instance<FrmMsgJa> frmMsgJa;

}  // namespace malvone
