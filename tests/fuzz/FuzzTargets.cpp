#include "tests/fuzz/FuzzTargets.h"

#include "objects/CanvasDrawing.h"
#include "platform/scripted/ScriptedDesktop.h"
#include "script/ScriptParser.h"
#include "script/ScriptWriter.h"
#include "shell/ScriptCommands.h"
#include "shell/ShellContext.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <vector>

namespace {

void DrawPicture(SPicOwner_ picture)
{
    if (!picture)
        return;
    SPic16X_::ConvertTo555_(picture.get());
    std::vector<uint8_t> mask(SPic16X_::MaskSize_(picture.get()));
    SPic16X_::MakeMask_(picture.get(), mask.data(), 31);
    std::vector<uint16_t> canvas(size_t { ScreenWidth } * ScreenHeight);
    const vec size { picture->width, picture->height };
    for (const uint32_t alpha : { 255U, 100U })
        DrawOnCanvas(picture.get(), canvas.data(), 2 * ScreenWidth, { 3, 5 }, { 1, 0 }, size, alpha);
}

// The object is pressed, hit-tested and given an appearance effect.
void WorkObject(ScreenDocument& document, int32_t index)
{
    ScreenObject* object = nullptr;
    document.GetObject(index, object);
    const vec pos = object->GetPos();
    for (const ObjectMessage message : { MsgMouseMove, MsgLeftDown, MsgLeftUp })
        object->HandleMessage(message, 0, static_cast<uint32_t>(MAKELPARAM(pos.x, pos.y)));
    object->PixelHit(pos);
    object->SetEffect(static_cast<EffectKind>(EffectNone + static_cast<uint32_t>(index) % 6));
    document.StartEffect(index);
    document.GetObjectAt(object, pos);
}

// No script gives an object a quote or, once it is prepared, a position or alpha with a minus sign: none could be
// saved.
void CheckThatItCanBeSaved(ScreenDocument& document)
{
    PrepareForSaving(document);
    bool storable = !ComposeScript({ .objects = document.GetObjects() }).unstorableText;
    for (const auto& object : document.GetObjects())
        storable = storable && object->GetPos().x >= 0 && object->GetPos().y >= 0
            && static_cast<int32_t>(object->GetAlpha()) >= 0;
    if (!storable)
        std::abort();
}

} // namespace

void FuzzScript(std::string_view bytes)
{
    const platform::ScriptedDesktop quiet;
    ScriptTokenizer tokens;
    ParsedScreen screen;
    if (tokens.TokenizeText(std::string(bytes)))
        static_cast<void>(ScriptParser::ParseTokens(tokens, screen));
}

void FuzzBmp(std::string_view bytes)
{
    const TemporaryFolder folder;
    folder.Write("a.bmp", std::string(bytes));
    for (const uint32_t trim : { 0U, 1U }) {
        DrawPicture(SPicOwner_(SPic16X_::LoadBmpKey_("a.bmp", 0, 255, 0, trim, nullptr, nullptr, nullptr)));
        DrawPicture(SPicOwner_(SPic16X_::LoadBmpAlpha_("a.bmp", "a.bmp", trim, nullptr)));
    }
}

void FuzzRender(std::string_view bytes)
{
    const TemporaryFolder folder;
    folder.Write("screen.tobrik", std::string(bytes));
    platform::ScriptedDesktop desktop;
    ShellContext shell;
    std::filesystem::current_path(FUZZ_WORKSPACE);
    LoadScreenScript(folder.Path() + "/screen.tobrik");
    ScreenDocument& document = shell.document;
    document.Render();
    for (int32_t i = 0; i < document.GetObjectCount(); ++i)
        WorkObject(document, i);
    desktop.Advance(100);
    document.Render();
    CheckThatItCanBeSaved(document);
    while (document.GetObjectCount() > 1)
        document.RemoveObject(document.GetObjectCount() / 2);
    document.Render();
}
