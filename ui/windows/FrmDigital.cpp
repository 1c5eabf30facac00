// FrmDigital.cpp: the eleven pictures of a digit place.
#include "ui/windows/FrmDigital.h"

#include "ui/windows/Pictures.h"

namespace malvone {

Instance<FrmDigital> frmDigital{"frmDigital"};

FrmDigital::FrmDigital() : Window("frmDigital", 6000, 4500)
{
    Caption = "Form1";
    for (int ziffer = 0; ziffer < imgDiggi.End(); ++ziffer) {
        imgDiggi(ziffer).Picture = PictureNamed("frmDigital." + imgDiggi(ziffer).FullName());
    }
}

FrmDigital::~FrmDigital() = default;

}  // namespace malvone
