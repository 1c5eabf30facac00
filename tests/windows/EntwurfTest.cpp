// EntwurfTest.cpp: all windows as they stand after the start, row by row against one file, and one
// sweep over what must hold of any window.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "tests/drehbuch/Commands.h"
#include "tests/support/Game.h"
#include "ui/layer/Instance.h"
#include "ui/windows/Pictures.h"

namespace malvone::test {
namespace {

// Every property, and what a row leaves out.
constexpr std::pair<const char*, const char*> kProperties[] = {
    {"Left", ""},
    {"Top", ""},
    {"Width", ""},
    {"Height", ""},
    {"ClientWidth", ""},
    {"ClientHeight", ""},
    {"X1", ""},
    {"Y1", ""},
    {"X2", ""},
    {"Y2", ""},
    {"Caption", ""},
    {"Text", ""},
    {"Picture", "-"},
    {"Icon", "-"},
    {"ToolTipText", ""},
    {"Tag", ""},
    {"MousePointer", "0"},
    {"Visible", "True"},
    {"Enabled", "True"},
    {"Checked", "False"},
    {"Locked", "False"},
    {"Interval", ""},
    {"Default", "False"},
    {"TabIndex", "0"},
    {"TabStop", "True"},
    {"Font", ""},
    {"ForeColor", ""},
    {"BackColor", ""},
    {"FillColor", ""},
    {"BorderColor", ""},
    {"Alignment", "0"},
    {"Transparent", "True"},
    {"Border", "False"},
    {"Stretch", "False"},
    {"ListCount", ""},
    {"ShowInTaskbar", "True"},
    {"MinButton", "False"},
    {"MaxButton", "False"},
    {"KeyPreview", "True"},
};

std::string Row(const std::string& path)
{
    std::string row = path;
    for (const auto& [name, usual] : kProperties) {
        const std::string answer = script::AskProperty(path + "." + name);
        if (answer.starts_with("= ") && answer.substr(2) != usual) {
            row += std::string("; ") + name + answer;
        }
    }
    return row;
}

constexpr const char* kWindows[] = {"frmTessel", "frmMsgOk",   "frmMsgJa",      "frmBeste",
                                    "frmBilder", "frmDigital", "frmHintergrund"};

std::string AllWindows()
{
    std::string text;
    for (const std::string name : kWindows) {
        const Window& window = InstanceBase::Find(name)->Touch();
        text += Row(name) +
                "; BorderStyle= " + std::to_string(static_cast<int>(window.BorderStyle)) + "\n";
        for (const Visual* const visual : window.FrontToBack()) {
            const auto* const in = visual->Container();
            text += Row(name + "." + visual->FullName()) +
                    (in == nullptr ? "" : "; in " + in->FullName()) +
                    (visual->ByArrows ? "; by arrows" : "") + "\n";
        }
        for (const Control* const control : window.Controls()) {
            const auto* const entry = dynamic_cast<const MenuEntry*>(control);
            if (entry != nullptr) {
                text += Row(name + "." + entry->FullName()) +
                        (entry->Parent() == nullptr ? "" : "; in " + entry->Parent()->FullName()) +
                        "; key " + std::to_string(entry->Shortcut.Code) + "/" +
                        std::to_string(entry->Shortcut.Shift) + "\n";
            } else if (dynamic_cast<const Visual*>(control) == nullptr) {
                text += Row(name + "." + control->FullName()) + "\n";
            }
        }
    }
    for (const PictureInfo& picture : AllPictures()) {
        text += "picture " + std::string(picture.Name) + " " + std::to_string(picture.Width) + "x" +
                std::to_string(picture.Height) + "\n";
    }
    return text;
}

// From front to back, what lies in a container before it. The text of this run lies in the build
// folder: who has changed a window looks at it and takes it over.
TEST(Entwurf, AllWindowsStandAsInTheFile)
{
    const Game game;
    const std::string now = AllWindows();
    WriteFile(MALVONE_BINARY_DIR "/entwurf.txt", now);
    EXPECT_EQ(Contents(MALVONE_SOURCE_DIR "/tests/windows/entwurf.txt"), now);
}

TEST(Fensterrunde, LoadedWindowsHaveUniqueNamesSizesPicturesAndNoHolesInTheirArrays)
{
    const std::set<std::string> empty = {"imgPfeil(2)", "imgNext", "imgFeld(0)"};
    const Game game;
    std::set<std::string_view> pictures;
    for (const PictureInfo& picture : AllPictures()) {
        EXPECT_TRUE(pictures.insert(picture.Name).second) << picture.Name;
    }
    for (const char* const each : kWindows) {
        const Window& window = InstanceBase::Find(each)->Touch();
        EXPECT_EQ(window.Name(), each);
        std::set<std::string> names;
        std::map<std::string_view, std::set<int>> arrays;
        for (const Control* const control : window.Controls()) {
            const std::string name = control->FullName();
            SCOPED_TRACE(std::string(window.Name()) + "." + name);
            EXPECT_TRUE(names.insert(name).second);
            EXPECT_EQ(window.Find(name), control);
            arrays[control->Name()].insert(control->Index());
            const auto* const visual = dynamic_cast<const Visual*>(control);
            const bool line = dynamic_cast<const Line*>(control) != nullptr;
            EXPECT_TRUE(visual == nullptr || line || name == "imgPfeil(2)" ||
                        (visual->Width > 0 && visual->Height > 0));
            if (const auto* const image = dynamic_cast<const Image*>(control)) {
                EXPECT_EQ(image->Picture->Empty(), empty.contains(name));
                EXPECT_TRUE(empty.contains(name) || pictures.contains(image->Picture->Name()));
            }
        }
        for (const auto& [name, indexes] : arrays) {
            EXPECT_EQ(*indexes.rbegin() - *indexes.begin() + 1, std::ssize(indexes)) << name;
        }
    }
}

}  // namespace
}  // namespace malvone::test
