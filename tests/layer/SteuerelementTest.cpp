// SteuerelementTest.cpp: properties, control arrays, and what single kinds of control do.
#include <gtest/gtest.h>

#include "tests/layer/Probe.h"

namespace malvone {
namespace {

TEST(Eigenschaft, EveryNewValueIsToldOnceAndTheSameValueNever)
{
    const struct
    {
        const char* Erwartet;
        std::function<void()> Setzen;
    } cases[] = {
        {"changed vorn Geometry", [] { probe->vorn.Left = 7; }},
        {"changed vorn Geometry", [] { probe->vorn.Move(7, 8); }},
        {"changed vorn Visible", [] { probe->vorn.Visible = false; }},
        {"changed vorn Enabled", [] { probe->vorn.Enabled = false; }},
        {"changed vorn Text", [] { probe->vorn.Caption = "neu"; }},
        {"changed vorn Look", [] { probe->vorn.ForeColor = 255; }},
        {"changed vorn Look",
         [] {
             probe->vorn.TextFont = Font{"Arial", 8, true};
         }},
        {"changed vorn Tip", [] { probe->vorn.ToolTipText = "tip"; }},
        {"changed vorn Tip", [] { probe->vorn.MousePointer = Pointer::Hand; }},
        {"changed innen(2) Data", [] { probe->innen(2).Tag = "4"; }},
        {"changed kasten Picture", [] { probe->kasten.Picture = Picture(kGross); }},
        {"changed punkt(1) State", [] { probe->punkt(1).Checked = true; }},
        {"changed uhr State", [] { probe->uhr.Interval = 300; }},
        {"changed feld(0) State", [] { probe->feld(0).Locked = true; }},
        {"changed feld(0) Select", [] { probe->feld(0).SelLength = 1; }},
        {"changed strich Geometry", [] { probe->strich.X2 = 1; }},
        {"changed fleck Look", [] { probe->fleck.FillColor = 1; }},
        {"changed probe Text", [] { probe->Caption = "neu"; }},
        {"changed probe Geometry", [] { probe->Width = 1; }},
    };
    Schicht schicht;
    Load(probe);
    Notizen.clear();
    schicht.Bindung.MitAenderungen = true;
    for (const auto& c : cases) {
        c.Setzen();
        EXPECT_EQ(NotizenSeitdem(), Verlauf{c.Erwartet});
        c.Setzen();
        EXPECT_EQ(NotizenSeitdem(), Verlauf{}) << c.Erwartet;
    }
}

TEST(Eigenschaft, CopyTakesTheValueAndLeavesTheOwner)
{
    Schicht schicht;
    probe->vorn.Caption = "Text";
    probe->innen(0).Picture = Picture(kKlein);
    probe->innen(0).Tag = "3";
    Notizen.clear();
    schicht.Bindung.MitAenderungen = true;
    probe->knopf(1).Caption = probe->vorn.Caption;
    probe->innen(2).Picture = probe->innen(0).Picture;
    probe->innen(2).Tag = probe->innen(0).Tag;
    EXPECT_EQ(NotizenSeitdem(), (Verlauf{"changed knopf(1) Text", "changed innen(2) Geometry",
                                         "changed innen(2) Picture", "changed innen(2) Data"}));
    probe->vorn.Caption = "anderer";
    EXPECT_EQ(probe->knopf(1).Caption.Get(), "Text");
    EXPECT_EQ(probe->innen(2).Tag->Number(), 3);
}

TEST(Eigenschaft, NothingIsToldWhileAWindowIsMadeOrAfterTheEnd)
{
    Schicht schicht;
    schicht.Bindung.MitAenderungen = true;
    Load(probe);
    EXPECT_EQ(NotizenSeitdem(), (Verlauf{"loaded probe", "Form_Load"}));
    App.Ende();
    Notizen.clear();
    probe->vorn.Caption = "nach dem Ende";
    probe->Caption = "nach dem Ende";
    probe->feld(0).SetFocus();
    probe->innen.Load(7);
    EXPECT_EQ(NotizenSeitdem(), Verlauf{});
}

TEST(Steuerfeld, HasGapsAndBeginsAnywhere)
{
    const Schicht schicht;
    const struct
    {
        bool Hat;
        bool Erwartet;
    } cases[] = {
        {probe->punkt.Has(0), false}, {probe->punkt.Has(1), true},  {probe->punkt.Has(2), false},
        {probe->punkt.Has(4), true},  {probe->punkt.Has(5), false}, {probe->punkt.Has(-1), false},
        {probe->knopf.Has(2), false}, {probe->knopf.Has(3), true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.Hat, c.Erwartet) << &c - cases;
    }
    EXPECT_EQ(probe->punkt.End(), 5);
    EXPECT_EQ(probe->punkt(4).FullName(), "punkt(4)");
    EXPECT_EQ(probe->Find("punkt(4)"), &probe->punkt(4));
    EXPECT_EQ(probe->Find("punkt(3)"), nullptr);
    EXPECT_EQ(probe->Find("punkt"), nullptr);
    EXPECT_EQ(probe->Find("vorn"), &probe->vorn);
}

TEST(Steuerfeld, NewElementIsAHiddenCopyOfElementZeroBehindAllOthers)
{
    Schicht schicht;
    Image& vorlage = probe->innen(0);
    vorlage.Stretch = true;
    vorlage.Picture = Picture(kKlein);
    vorlage.Tag = "2";
    vorlage.ToolTipText = "Stein";
    vorlage.MousePointer = Pointer::Hand;
    vorlage.Enabled = false;
    probe->FrontToBack();
    Notizen.clear();
    schicht.Bindung.MitAenderungen = true;
    Image& neu = probe->innen.Load(5);
    EXPECT_EQ(NotizenSeitdem().front(), "added innen(5)");
    EXPECT_FALSE(neu.Visible);
    EXPECT_FALSE(neu.Enabled);
    EXPECT_EQ((std::vector{neu.Left.Get(), neu.Top.Get(), neu.Width.Get(), neu.Height.Get()}),
              (std::vector<Twips>{100, 100, 300, 300}));
    EXPECT_TRUE(neu.Stretch);
    EXPECT_EQ(neu.Picture->Name(), "klein");
    EXPECT_EQ(neu.Tag->Number(), 2);
    EXPECT_EQ(neu.ToolTipText.Get(), "Stein");
    EXPECT_EQ(neu.MousePointer, Pointer::Hand);
    EXPECT_EQ(neu.Container(), &probe->kasten);
    EXPECT_EQ(probe->Controls().back(), &neu);
    EXPECT_TRUE(probe->innen.Has(5));
    EXPECT_FALSE(probe->innen.Has(4));

    neu.Tag = "9";
    EXPECT_EQ(&probe->innen.Load(5), &neu);
    EXPECT_EQ(neu.Tag->Number(), 9);
    Notizen.clear();
    neu.RaiseClick();
    EXPECT_EQ(NotizenSeitdem(), Verlauf{"click innen(5)"});
}

TEST(Bild, TakesTheSizeOfItsPictureUnlessItStretches)
{
    const struct
    {
        bool Streckt;
        Picture Bild;
        Twips Width;
        Twips Height;
    } cases[] = {
        {false, Picture(kGross), 1500, 750}, {false, Picture(kKlein), 150, 300},
        {false, Picture(), 111, 222},        {true, Picture(kGross), 111, 222},
        {true, Picture(), 111, 222},
    };
    const Schicht schicht;
    for (const auto& c : cases) {
        Image& bild = probe->hinten;
        bild.Picture = Picture();
        bild.Move(5, 6, 111, 222);
        bild.Stretch = c.Streckt;
        bild.Picture = c.Bild;
        EXPECT_EQ(
            (std::vector{bild.Left.Get(), bild.Top.Get(), bild.Width.Get(), bild.Height.Get()}),
            (std::vector<Twips>{5, 6, c.Width, c.Height}));
    }
    probe->hinten.Stretch = false;
    probe->hinten.Picture = Picture(kGross);
    probe->hinten.Picture = Picture();
    EXPECT_EQ(probe->hinten.Width.Get(), 1500.0F) << "an image without a picture keeps its size";
}

TEST(Textfeld, TypingReplacesTheSelectionByWhatAFileCanHold)
{
    const struct
    {
        const char* Alt;
        std::int32_t Start;
        std::int32_t Laenge;
        const char* Getippt;
        const char* Neu;
        std::int32_t NeuerStart;
    } cases[] = {
        {"Spieler", 0, 7, "Anna", "Anna", 4},
        {"Anna", 4, 0, "!", "Anna!", 5},
        {"Anna", 0, 0, "Frau ", "Frau Anna", 5},
        {"Jürgen", 1, 1, "ö", "Jörgen", 2},
        {"äöü", 2, 1, "ß€", "äöß€", 4},
        {"Anna", 1, 2, "", "Aa", 1},
        {"Anna", 99, 99, "x", "Annax", 5},
        {"Anna", -5, 2, "x", "xna", 1},
        {"Anna", 2, -1, "x", "Anxna", 3},
        {"Anna", 4, 0, "☃", "Anna", 4},
        {"Anna", 4, 0, "a\tb\r\nc", "Annaabc", 7},
        {"", 0, 0, "漢x字", "x", 1},
    };
    const Schicht schicht;
    for (const auto& c : cases) {
        TextBox& feld = probe->feld(0);
        feld.Text = c.Alt;
        feld.SelStart = c.Start;
        feld.SelLength = c.Laenge;
        feld.Locked = true;
        feld.Type(c.Getippt);
        EXPECT_EQ(feld.Text.Get(), c.Alt) << "locked";
        feld.Locked = false;
        feld.Type(c.Getippt);
        EXPECT_EQ(feld.Text.Get(), c.Neu) << c.Alt;
        EXPECT_EQ(feld.SelStart, c.NeuerStart) << c.Alt << " + " << c.Getippt;
        EXPECT_EQ(feld.SelLength, 0) << c.Alt;
    }

    TextBox& feld = probe->feld(0);
    feld.SelLength = 7;
    feld.Text = "Spieler";
    feld.SelStart = 0;
    feld.Type("日本");
    EXPECT_EQ(feld.Text.Get(), "Spieler") << "foreign letters alone replace nothing";
    EXPECT_EQ(feld.SelLength, 7);
    feld.Type("ö" + std::string(300, 'x'));
    EXPECT_EQ(feld.Text.Get(), "ö" + std::string(254, 'x')) << "no more than there is room for";
    feld.Type("y");
    EXPECT_EQ(feld.Text.Get(), "ö" + std::string(254, 'x'));
}

TEST(Liste, KeepsItsItemsInTheOrderOfAdding)
{
    const Schicht schicht;
    ListBox& liste = probe->liste;
    liste.AddItem("b");
    liste.AddItem("a");
    liste.SetList(1, "c");
    liste.SetList(2, "nicht da");
    liste.SetList(-1, "nicht da");
    EXPECT_EQ(liste.ListCount(), 2);
    EXPECT_EQ(
        (std::vector<std::string>{liste.List(-1), liste.List(0), liste.List(1), liste.List(2)}),
        (std::vector<std::string>{"", "b", "c", ""}));
    liste.Clear();
    EXPECT_EQ(liste.ListCount(), 0);
}

TEST(Text, TagIsANumberOnlyAsPlainDigits)
{
    const struct
    {
        const char* Text;
        std::int32_t Zahl;
    } cases[] = {{"0", 0},          {"4", 4},   {"-3", -3},
                 {"007", 7},        {"", 0},    {" 4", 0},
                 {"4 ", 0},         {"x", 0},   {"2147483647", 2147483647},
                 {"2147483648", 0}, {"1.5", 0}, {"+1", 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(TagText(c.Text).Number(), c.Zahl) << c.Text;
        EXPECT_EQ(TagText(c.Text).Text(), c.Text);
    }
    EXPECT_EQ(TagText(std::int32_t{-12}).Text(), "-12");
    EXPECT_NE(TagText("07"), TagText("7")) << "texts are compared, not numbers";
}

TEST(Text, AccessKeyIsTheLetterBehindTheAmpersand)
{
    const struct
    {
        const char* Caption;
        char Taste;
        const char* Gelesen;
    } cases[] = {
        {"Spiel begi&nnen", 'N', "Spiel beginnen"},
        {"b&eenden", 'E', "beenden"},
        {"&Spiel  ", 'S', "Spiel  "},
        {"Sound", 0, "Sound"},
        {"am Ende &", 0, "am Ende "},
        {"", 0, ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(AccessKey(c.Caption), c.Taste) << c.Caption;
        EXPECT_EQ(PlainCaption(c.Caption), c.Gelesen);
    }
}

}  // namespace
}  // namespace malvone
