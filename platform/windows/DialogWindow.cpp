#include "platform/windows/DialogWindow.h"

#include "platform/CodePage.h"
#include "platform/windows/WindowPlacement.h"

namespace platform {

namespace {

constexpr int pixelsPerUnit = 2;
constexpr int dropDownFieldHeight = 24; // a line of text with the field's borders

WindowKind KindOf(ControlKind kind)
{
    switch (kind) {
    case ControlKind::Label:
        return WindowKind::Label;
    case ControlKind::GroupFrame:
        return WindowKind::GroupFrame;
    case ControlKind::Edit:
        return WindowKind::Edit;
    case ControlKind::DropDown:
        return WindowKind::DropDown;
    case ControlKind::CheckBox:
        return WindowKind::CheckBox;
    case ControlKind::PushButton:
        break;
    }
    return WindowKind::PushButton;
}

std::unique_ptr<Window> MakeControl(const DialogControl& source, Window& dialog)
{
    auto control = std::make_unique<Window>();
    control->kind = KindOf(source.kind);
    control->id = source.id;
    control->text = CodePageFromUtf8(source.text ? source.text : "");
    control->parent = &dialog;
    const bool isDropDown = source.kind == ControlKind::DropDown;
    const int height = source.height * pixelsPerUnit;
    control->place = PlaceAt(source.x * pixelsPerUnit, source.y * pixelsPerUnit, source.width * pixelsPerUnit,
        isDropDown ? dropDownFieldHeight : height);
    control->openHeight = isDropDown ? height : 0;
    control->visible = true;
    control->enabled = !source.displayOnly;
    control->digitsOnly = source.digitsOnly;
    control->sorted = source.sorted;
    return control;
}

} // namespace

std::unique_ptr<Window> MakeDialogWindow(const DialogTemplate& source, Window* owner)
{
    auto dialog = std::make_unique<Window>();
    dialog->kind = WindowKind::Dialog;
    dialog->text = CodePageFromUtf8(source.title);
    dialog->parent = owner;
    dialog->closeBox = source.closeBox;
    for (const DialogControl& control : source.controls)
        dialog->children.push_back(MakeControl(control, *dialog));
    PlaceDialog(*dialog, source.width * pixelsPerUnit, source.height * pixelsPerUnit);
    return dialog;
}

} // namespace platform
