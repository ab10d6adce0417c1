#include "shell/ObjectCommands.h"

#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/PictureObject.h"
#include "objects/SelectboxObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "shell/FileDialogs.h"
#include "shell/ShellContext.h"
#include "shell/WordDialogs.h"

#include <memory>

namespace {

void RefreshObjectCount()
{
    Shell().editing.SetObjectCount(Shell().document.GetLayerCount());
}

// Asks for a picture file and puts an object that shows it on top.
template <class Kind> void LoadFromFile(PictureMode mode, void (ScreenDocument::*add)(std::unique_ptr<Kind>))
{
    PathBuffer path;
    if (!OpenImageFileDialog(path) || !CheckIsNoAlphaFile(path))
        return;
    auto object = std::make_unique<Kind>();
    object->SetMode(mode);
    object->SetFileName(path);
    static_cast<void>(object->Load());
    (Shell().document.*add)(std::move(object));
    RefreshObjectCount();
}

void InsertFromWordDialog(DLGPROC procedure)
{
    DialogBoxParamA(Shell().instance, "WordObjectAddition", Shell().mainWindow, procedure, 0);
    RefreshObjectCount();
}

} // namespace

void LoadPicture()
{
    LoadFromFile(ModeMoving, &ScreenDocument::AddPicture);
}

void LoadButton()
{
    LoadFromFile(ModeButton, &ScreenDocument::AddButton);
}

void LoadAnimation()
{
    LoadFromFile(ModeAnimation, &ScreenDocument::AddAnimation);
}

void InsertWord()
{
    InsertFromWordDialog(AddWordDialogProc);
}

void InsertCheckBox()
{
    InsertFromWordDialog(AddCheckBoxDialogProc);
}

void InsertSelectbox()
{
    auto selectbox = std::make_unique<SelectboxObject>();
    static_cast<void>(selectbox->Build());
    for (const char* choice :
        { u8"第一個選項"_big5, u8"第二個選項"_big5, u8"第三個選項"_big5, u8"第四個選項"_big5, u8"第五個選項"_big5 })
        selectbox->AddString(choice);
    Shell().document.AddSelectbox(std::move(selectbox));
    RefreshObjectCount();
}

void StartNewScreen()
{
    Shell().document.Clear();
    Shell().editing.Reset();
}
