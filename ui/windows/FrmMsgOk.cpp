// FrmMsgOk.cpp: places, looks and words of the message window with one way out.
#include "ui/windows/FrmMsgOk.h"

#include "ui/windows/Design.h"

namespace malvone {

Instance<FrmMsgOk> frmMsgOk{"frmMsgOk"};

FrmMsgOk::FrmMsgOk() : Window("frmMsgOk", 5805, 3420)
{
    Role = WindowRole::Message;
    Caption = "Form1";
    ShowInTaskbar = false;
    Picture = PictureNamed("frmMsgOk");
    Picture1.Border = true;
    Image2.Stretch = true;

    const design::Bounds bounds[] = {
        {Picture1, 60, 780, 5655, 2025},  //
        {lblTitel, 30, 990, 5505, 945},   //
        {lblMeldung, 30, 60, 5445, 825},  //
        {Image2, 5370, 90, 315, 315},     //
        {lblName, 960, 180, 4155, 435},   //
        {lblOk, 1800, 2910, 2175, 405},   //
    };
    // The texts are placeholders; every use sets its own.
    constexpr Font kText{"Arial", 9.75F, true};
    constexpr Font kName{"Arial", 14.25F, false};
    const design::LabelLook looks[] = {
        {lblTitel, "Titel", kText, 0xC000C0, Alignment::Centre},
        {lblMeldung, "Meldung", kText, 0x0000FF, Alignment::Centre},
        {lblName, "Name", kName, 0xE0E0E0, Alignment::Centre},
    };
    const design::Tip tips[] = {
        {Image2, Pointer::Hand, "schließen"},
        {lblOk, Pointer::Hand, "Fenster schließen"},
    };
    const design::Shows pictures[] = {{Image2, "frmMsgOk.Image2"}};
    design::Apply(bounds);
    design::Apply(looks);
    design::Apply(tips);
    design::Apply(pictures);
    lblMeldung.Transparent = false;

    lblOk.Click = [this] { lblOk_Click(); };
    Image2.Click = [this] { Image2_Click(); };
    lblName.MouseMove = [this](const Mouse& mouse) { lblName_MouseMove(mouse); };
}

FrmMsgOk::~FrmMsgOk() = default;

}  // namespace malvone
