// FrmHintergrund.cpp: the backdrop as designed; it takes the size of the screen when it is loaded.
#include "ui/windows/FrmHintergrund.h"

#include "ui/windows/Pictures.h"

namespace malvone {

Instance<FrmHintergrund> frmHintergrund{"frmHintergrund"};

FrmHintergrund::FrmHintergrund() : Window("frmHintergrund", 13920, 10695)
{
    Role = WindowRole::Backdrop;
    Caption = "Form1";
    BackColor = Rgb(0xE0E0E0);
    ShowInTaskbar = false;
    Image1.Stretch = true;
    Image1.Move(0, 0, ClientWidth, ClientHeight);
    Image1.Picture = PictureNamed("frmHintergrund.Image1");
}

FrmHintergrund::~FrmHintergrund() = default;

}  // namespace malvone
