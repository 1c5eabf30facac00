// Meldungen.cpp: shows the two message windows, and answers their events.
#include "ui/services/Meldungen.h"

#include <string>

#include "ui/layer/App.h"
#include "ui/services/Handbuch.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmMsgOk.h"
#include "ui/windows/FrmTessel.h"

namespace malvone {

namespace {

constexpr const char* kHandbuch = "Meldefenster.pdf";

template<class Fenster>
void TexteSetzen(Fenster& fenster, std::string_view meldung, std::string_view titel)
{
    fenster.lblMeldung.Caption = std::string(meldung);
    fenster.lblTitel.Caption = std::string(titel);
}

void Zentrieren(Window& fenster)
{
    fenster.Move(frmTessel->Left + (frmTessel->Width - fenster.Width) / 2,
                 frmTessel->Top + (frmTessel->Height - fenster.Height) / 2);
}

// The window has no title bar and is dragged by its surface, with the left button alone.
void FensterZiehen(Window& fenster, const Mouse& mouse)
{
    if (mouse.Button == kLeftButton) {
        fenster.Drag();
    }
}

}  // namespace

std::string TitelMitVersion()
{
    return "Malvone  Vers.: " + std::to_string(App.Major) + "." + std::to_string(App.Minor) + "." +
           std::to_string(App.Revision);
}

void MeldungZeigen(std::string_view meldung, std::string_view titel)
{
    TexteSetzen(*frmMsgOk, meldung, titel);
    Zentrieren(*frmMsgOk);
    frmMsgOk->Show(ShowMode::Modal);
}

void MeldungZeigen(std::string_view meldung, std::string_view titel, Versatz versatz)
{
    TexteSetzen(*frmMsgOk, meldung, titel);
    frmMsgOk->Move(frmTessel->Left + versatz.Links, frmTessel->Top + versatz.Oben);
    frmMsgOk->Show(ShowMode::Modal);
}

bool FrageStellen(std::string_view meldung, std::string_view titel)
{
    TexteSetzen(*frmMsgJa, meldung, titel);
    Zentrieren(*frmMsgJa);
    frmMsgJa->Show(ShowMode::Modal);
    return MsgAntwort == kAntwortJa && !App.Ended();
}

void FrmMsgOk::Form_Activate()
{
    lblName.Caption = TitelMitVersion();
}

void FrmMsgOk::Form_KeyDown(std::int16_t& KeyCode, std::int16_t /*Shift*/)
{
    switch (KeyCode) {
    case kKeyEsc: Unload(); break;
    case kKeyF1: HandbuchOeffnen(kHandbuch); break;
    default: break;
    }
}

void FrmMsgOk::Form_MouseMove(const Mouse& mouse)
{
    FensterZiehen(*this, mouse);
}

void FrmMsgOk::lblName_MouseMove(const Mouse& mouse)
{
    FensterZiehen(*this, mouse);
}

void FrmMsgOk::lblOk_Click()
{
    Unload();
}

void FrmMsgOk::Image2_Click()
{
    Unload();
}

void FrmMsgJa::Form_Activate()
{
    lblName.Caption = TitelMitVersion();
}

void FrmMsgJa::Form_KeyDown(std::int16_t& KeyCode, std::int16_t /*Shift*/)
{
    switch (KeyCode) {
    case kKeyEsc: Antworten(kAntwortGeschlossen); break;
    case 'J': Antworten(kAntwortJa); break;
    case 'N': Antworten(kAntwortNein); break;
    case kKeyF1: HandbuchOeffnen(kHandbuch); break;
    default: break;
    }
}

void FrmMsgJa::Form_MouseMove(const Mouse& mouse)
{
    FensterZiehen(*this, mouse);
}

void FrmMsgJa::lblName_MouseMove(const Mouse& mouse)
{
    FensterZiehen(*this, mouse);
}

// A question that the system closes has no answer; that to an earlier question must not count.
void FrmMsgJa::Form_QueryUnload(std::int16_t& /*Cancel*/, UnloadMode mode)
{
    if (mode != UnloadMode::Code) {
        MsgAntwort = kAntwortGeschlossen;
    }
}

void FrmMsgJa::Antworten(std::int16_t antwort)
{
    MsgAntwort = antwort;
    Unload();
}

void FrmMsgJa::lblJa_Click()
{
    Antworten(kAntwortJa);
}

void FrmMsgJa::lblNein_Click()
{
    Antworten(kAntwortNein);
}

void FrmMsgJa::Image1_Click()
{
    Antworten(kAntwortGeschlossen);
}

}  // namespace malvone
