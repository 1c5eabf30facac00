// FrmMsgJa.cpp: places, looks and words of the message window that asks a question.
#include "ui/windows/FrmMsgJa.h"

#include "ui/windows/Design.h"

namespace malvone {

Instance<FrmMsgJa> frmMsgJa{"frmMsgJa"};

FrmMsgJa::FrmMsgJa() : Window("frmMsgJa", 5880, 3540)
{
    Role = WindowRole::Message;
    Caption = "Form1";
    ShowInTaskbar = false;
    Picture = PictureNamed("frmMsgJa");
    Picture1.Border = true;
    Image1.Stretch = true;

    const design::Bounds bounds[] = {
        {Picture1, 60, 750, 5745, 2025},   //
        {lblTitel, 120, 990, 5505, 945},   //
        {lblMeldung, 120, 30, 5475, 825},  //
        {Image1, 5460, 60, 315, 315},      //
        {lblNein, 480, 2910, 2205, 375},   //
        {lblJa, 3330, 2880, 2175, 435},    //
        {lblName, 930, 180, 3915, 315},    //
    };
    // The texts are placeholders; every use sets its own.
    constexpr Font kText{"Arial", 9.75F, true};
    constexpr Font kName{"Arial", 12.0F, true};
    const design::LabelLook looks[] = {
        {lblTitel, "Titel", kText, 0xFF00FF, Alignment::Centre},
        {lblMeldung, "Meldung", kText, 0x0000FF, Alignment::Centre},
        {lblName, "Name", kName, 0xE0E0E0, Alignment::Centre},
    };
    const design::Tip tips[] = {
        {Image1, Pointer::Hand, "schließen"},
        {lblNein, Pointer::Hand, "Fenster schließen ohne Bestätigung"},
        {lblJa, Pointer::Hand, "Bestätigen"},
    };
    const design::Shows pictures[] = {{Image1, "frmMsgJa.Image1"}};
    design::Apply(bounds);
    design::Apply(looks);
    design::Apply(tips);
    design::Apply(pictures);
    lblTitel.Transparent = false;
    lblMeldung.Transparent = false;

    lblJa.Click = [this] { lblJa_Click(); };
    lblNein.Click = [this] { lblNein_Click(); };
    Image1.Click = [this] { Image1_Click(); };
    lblName.MouseMove = [this](const Mouse& mouse) { lblName_MouseMove(mouse); };
}

FrmMsgJa::~FrmMsgJa() = default;

}  // namespace malvone
