// Verlassen.cpp: the question before the main window closes, and the end of the program.
#include "ui/layer/App.h"
#include "ui/services/Klaenge.h"
#include "ui/services/Meldungen.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

// The question is the same, whoever closes the window and why.
void FrmTessel::Form_QueryUnload(std::int16_t& Cancel, UnloadMode /*mode*/)
{
    SoundSpielen(kTonBeginn);
    if (!FrageStellen("\r\nSind Sie sicher,\r\ndass Sie das Spiel beenden möchten?\"",
                      "\r\n»Beenden« bestätigen")) {
        Cancel = 1;
    }
}

// All windows go with the program.
void FrmTessel::Form_Unload()
{
    App.Ende();
}

}  // namespace malvone
