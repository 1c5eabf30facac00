// Hintergrund.cpp: the backdrop covers the screen and leaves the front to the game.
#include "ui/layer/App.h"
#include "ui/windows/FrmHintergrund.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

void FrmHintergrund::Form_Load()
{
    Move(0, 0, Screen.Width, Screen.Height);
    Image1.Move(0, 0, Width, Height);
}

void FrmHintergrund::Form_Activate()
{
    frmTessel->Show();
}

}  // namespace malvone
