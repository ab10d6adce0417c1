#include "shell/ScriptCommands.h"

#include "platform/CurrentFolder.h"
#include "platform/User.h"
#include "script/ParsedScreen.h"
#include "script/ScreenBuilder.h"
#include "script/ScreenInfo.h"
#include "script/ScriptParser.h"
#include "script/ScriptTokenizer.h"
#include "script/ScriptWriter.h"
#include "shell/FileDialogs.h"
#include "shell/SaveMessages.h"
#include "shell/ShellContext.h"
#include "shell/WindowLayout.h"

#include <utility>

namespace {

constexpr int unparsableScriptCode = 16;

ScreenInfo DescribeScreen()
{
    return {
        .size = vec(ClientWidth, ClientHeight),
        .pos = vec(0, 0),
        .objects = Shell().document.GetObjects(),
    };
}

// The screen is rebuilt from the file at once, so that it shows what the file holds.
bool SaveAndReload(const std::string& path)
{
    if (!SaveScreenScript(path))
        return false;
    static_cast<void>(LoadScreenScript(path));
    return true;
}

} // namespace

void LoadScript()
{
    PathBuffer path;
    if (OpenScriptFileDialog(path) && CheckIsScriptFile(path))
        static_cast<void>(LoadScreenScript(path));
}

// The dialog moves the current folder, and the screen's pictures are looked for there: while nothing is saved, the
// screen belongs to the folder of before.
void SaveScriptAs()
{
    const platform::CurrentFolder before;
    PathBuffer path;
    if (!OpenScriptFileDialog(path) || !CheckIsScriptFile(path) || !SaveAndReload(path))
        before.GoBack();
}

void QuickSave()
{
    if (Shell().editing.HasFileName()) {
        static_cast<void>(SaveAndReload(std::string(Shell().editing.GetFileName())));
        return;
    }
    // Whether a name was confirmed is not asked, only whether there is one: cancelling leaves none.
    const platform::CurrentFolder before;
    PathBuffer path;
    static_cast<void>(OpenScriptFileDialog(path));
    if (path[0] == '\0' || !CheckIsScriptFile(path) || !SaveAndReload(path))
        before.GoBack();
}

bool LoadScreenScript(const std::string& path)
{
    ParsedScreen screen;
    ScriptTokenizer tokenizer;
    const bool parsed = ScriptParser::Parse(tokenizer, path, screen);
    if (!parsed)
        PostQuitMessage(unparsableScriptCode);

    ShellContext& shell = Shell();
    shell.document.Clear();
    shell.editing.Reset();
    const bool rebuilt = !BuildScreen(std::move(screen), shell.document);
    if (rebuilt)
        shell.editing.SetFileName(path);
    shell.editing.SetObjectCount(shell.document.GetLayerCount());
    return rebuilt;
}

void PrepareForSaving(ScreenDocument& document)
{
    document.FinishEffects();
    document.FitAll();
    constexpr uint32_t largestWritable = 0x7FFFFFFF;
    for (const auto& object : document.GetObjects())
        if (object->GetAlpha() > largestWritable)
            object->SetAlpha(object->GetAlpha() & 0xFF);
}

bool SaveScreenScript(const std::string& path)
{
    PrepareForSaving(Shell().document);
    ScriptWriter writer;
    const platform::FileWriting written = writer.Write(DescribeScreen(), path);
    if (const auto& text = writer.GetUnstorableText()) {
        SayTextCannotBeStored(*text);
        return false;
    }
    if (written != platform::FileWriting::Done) {
        SayFileCannotBeWritten(path, written);
        return false;
    }
    Shell().editing.SetFileName(path);
    return true;
}
