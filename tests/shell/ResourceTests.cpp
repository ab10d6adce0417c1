#include "platform/CodePage.h"
#include "resources/ProgramResources.h"
#include "tests/shell/EditorTest.h"

#include <sstream>

namespace {

// The files in cases/ say what there has to be. A line of dialogs.txt is a row of the dialog: labels and frames with
// the control that they name; the buttons. Rectangles are (x, y, width, height).

template <class... Parts> std::string Text(const Parts&... parts)
{
    std::ostringstream out;
    (out << ... << parts);
    return out.str();
}

std::string Rectangle(int x, int y, int width, int height)
{
    return Text(" (", x, ", ", y, ", ", width, ", ", height, ")");
}

std::string Described(const platform::DialogControl& control)
{
    constexpr const char* kinds[] = { "label", "frame", "edit", "list", "box", "button" };
    return Text(kinds[static_cast<size_t>(control.kind)], control.id == -1 ? "" : Text(" ", control.id),
        *control.text ? Text(" \"", control.text, "\"") : "", control.displayOnly ? " display only" : "",
        control.digitsOnly ? " digits only" : "", control.sorted ? " sorted" : "",
        Rectangle(control.x, control.y, control.width, control.height));
}

TEST(ProgramResources, HoldTheSixDialogs)
{
    std::string found;
    for (const auto& dialog : ProgramResources().dialogs) {
        found += Text(dialog.name, " \"", dialog.title, "\" ", dialog.width, " x ", dialog.height,
            dialog.closeBox ? ", close box\n" : "\n");
        const char* before = "  ";
        for (const auto& control : dialog.controls) {
            found += before + Described(control);
            before = control.id == -1 || control.kind == platform::ControlKind::PushButton ? "; " : "\n  ";
        }
        found += "\n";
    }
    EXPECT_EQ(found, ReadBytes(SHELL_CASES "/dialogs.txt"));
}

TEST(ProgramResources, HoldTheFourContextMenus)
{
    std::string found;
    for (const auto& menu : ProgramResources().menus) {
        found += Text(menu.name, ":");
        for (const auto& item : menu.items)
            found += Text(" ", item.id, " \"", item.text, "\",");
        found += "\n";
    }
    EXPECT_EQ(found, ReadBytes(SHELL_CASES "/menus.txt"));
}

class CommandButtons : public EditorTest { };

TEST_F(CommandButtons, StandBesideTheCanvas)
{
    std::string found;
    for (const auto& button : shell.mainWindow->children) {
        const RECT& place = button->place;
        found += Text(button->id, " \"", platform::Utf8FromCodePage(button->text), "\"",
            Rectangle(place.left, place.top, place.right - place.left, place.bottom - place.top),
            button->visible ? "\n" : " hidden\n");
    }
    EXPECT_EQ(found, ReadBytes(SHELL_CASES "/command-buttons.txt"));
}

} // namespace
