// FrmBilder.cpp: which picture each control of the bank holds.
#include "ui/windows/FrmBilder.h"

#include "ui/windows/Pictures.h"

namespace malvone {

Instance<FrmBilder> frmBilder{"frmBilder"};

FrmBilder::FrmBilder() : Window("frmBilder", 6000, 4500)
{
    Caption = "Form1";
    for (Control* const control : Controls()) {
        auto* const image = dynamic_cast<Image*>(control);
        if (image != nullptr && image != &imgPfeil(kPfeilLeer)) {
            image->Picture = PictureNamed("frmBilder." + control->FullName());
        }
    }
}

FrmBilder::~FrmBilder() = default;

}  // namespace malvone
