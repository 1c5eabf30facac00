// DesignTest.cpp: all windows as they are designed, row by row against one file.
#include <gtest/gtest.h>

#include <set>

#include "tests/drehbuch/Commands.h"
#include "tests/support/Folder.h"
#include "ui/layer/App.h"
#include "ui/layer/Instance.h"

namespace malvone::test {
namespace {

// What a row leaves out.
const std::set<std::string> kUsual = {
    "Visible True",    "Enabled True",   "TabStop True",     "Transparent True",
    "KeyPreview True", "Checked False",  "Locked False",     "Default False",
    "Stretch False",   "Border False",   "MinButton False",  "Picture -",
    "MaxButton False", "MousePointer 0", "TabIndex 0",       "Alignment 0",
    "Interval 0",      "SelStart 0",     "SelLength 0",      "ListCount 0",
    "Left 0",          "Top 0",          "ForeColor 0",      "Icon -",
    "List -",          "Tag ",           "ToolTipText \"\"", "BackColor 16777215"};

std::string Row(PropertyOwner& owner)
{
    std::string row;
    for (const script::Value& value : script::ValuesOf(owner)) {
        const std::string told = std::string(value.Property) + " " + value.Text;
        row += kUsual.contains(told) ? "" : "; " + told;
    }
    const Control* in = nullptr;
    if (const auto* const window = dynamic_cast<const Window*>(&owner)) {
        row += "; BorderStyle " + std::to_string(static_cast<int>(window->BorderStyle));
    } else if (const auto* const visual = dynamic_cast<const Visual*>(&owner)) {
        row += visual->ByArrows ? "; by arrows" : "";
        in = visual->Container();
    } else if (const auto* const entry = dynamic_cast<const MenuEntry*>(&owner)) {
        row += entry->Shortcut.Code == 0 ? ""
                                         : "; key " + std::to_string(entry->Shortcut.Code) + "/" +
                                               std::to_string(entry->Shortcut.Shift);
        in = entry->Parent();
    }
    return row + (in == nullptr ? "" : "; in " + in->FullName());
}

// From front to back. Elements of an array that are alike stand in one row, with their indexes.
TEST(Design, AllWindowsStandAsInTheFile)
{
    App.Finish();  // after the end windows are made as they are designed, and nothing is loaded
    std::vector<std::pair<std::string, std::string>> rows;
    for (const std::string name : {"frmTessel", "frmMsgOk", "frmMsgJa", "frmBeste", "frmBilder",
                                   "frmDigital", "frmHintergrund"}) {
        Window& window = InstanceBase::Find(name)->Touch();
        rows.emplace_back(name, Row(window));
        std::vector<Control*> controls(window.FrontToBack().begin(), window.FrontToBack().end());
        for (Control* const control : window.Controls()) {
            if (dynamic_cast<const Visual*>(control) == nullptr) {
                controls.push_back(control);
            }
        }
        for (Control* const control : controls) {
            const std::string row = Row(*control);
            const std::string array = name + "." + std::string(control->Name()) + "(";
            if (rows.back().first.starts_with(array) && rows.back().second == row) {
                std::string& indexes = rows.back().first;
                indexes.insert(indexes.size() - 1, "," + std::to_string(control->Index()));
            } else {
                rows.emplace_back(name + "." + control->FullName(), row);
            }
            EXPECT_EQ(window.Find(control->FullName()), control) << "two of one name";
        }
    }
    std::string now;
    for (const auto& [name, row] : rows) {
        now += name + row + "\n";
    }
    App.Finish();
    // After an intended change, read this file and copy it over the kept one.
    WriteFile(MALVONE_BINARY_DIR "/design.txt", now);
    EXPECT_EQ(Contents(MALVONE_SOURCE_DIR "/tests/windows/design.txt"), now);
}

}  // namespace
}  // namespace malvone::test
