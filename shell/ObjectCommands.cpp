#include "shell/ObjectCommands.h"

#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/PictureObject.h"
#include "objects/SelectboxObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "shell/CommandButtons.h"
#include "shell/FileDialogs.h"
#include "shell/ShellContext.h"
#include "shell/WordDialogs.h"

#include <memory>

namespace {

void RefreshObjectCount()
{
    Shell().editing.SetObjectCount(Shell().document.GetLayerCount());
}

bool AskForPicture(PathBuffer& path)
{
    return OpenImageFileDialog(path) && CheckIsNoAlphaFile(path);
}

// A picture that cannot be loaded is added all the same; it draws nothing.
void LoadPicture()
{
    PathBuffer path;
    if (!AskForPicture(path))
        return;
    auto picture = std::make_unique<PictureObject>();
    picture->SetMode(ModeMoving);
    picture->SetFileName(path);
    static_cast<void>(picture->Load());
    Shell().document.AddPicture(std::move(picture));
    RefreshObjectCount();
}

void LoadButton()
{
    PathBuffer path;
    if (!AskForPicture(path))
        return;
    auto button = std::make_unique<ButtonObject>();
    button->SetMode(ModeButton);
    button->SetFileName(path);
    button->SetBoundaryCheck(true);
    static_cast<void>(button->Load());
    Shell().document.AddButton(std::move(button));
    RefreshObjectCount();
}

void LoadAnimation()
{
    PathBuffer path;
    if (!AskForPicture(path))
        return;
    auto animation = std::make_unique<AnimationObject>();
    animation->SetMode(ModeAnimation);
    animation->SetFileName(path);
    static_cast<void>(animation->Load());
    Shell().document.AddAnimation(std::move(animation));
    RefreshObjectCount();
}

void InsertFromWordDialog(DLGPROC procedure)
{
    DialogBoxParamA(Shell().instance, "WordObjectAddition", Shell().mainWindow, procedure, 0);
    RefreshObjectCount();
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

} // namespace

void RunObjectCommand(WORD id)
{
    switch (id) {
    case CommandLoadPicture:
        LoadPicture();
        break;
    case CommandLoadButton:
        LoadButton();
        break;
    case CommandLoadAnimation:
        LoadAnimation();
        break;
    case CommandInsertWord:
        InsertFromWordDialog(AddWordDialogProc);
        break;
    case CommandInsertCheckBox:
        InsertFromWordDialog(AddCheckBoxDialogProc);
        break;
    case CommandInsertSelectbox:
        InsertSelectbox();
        break;
    case CommandNew:
        StartNewScreen();
        break;
    default:
        break;
    }
}
