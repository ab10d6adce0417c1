#include "objects/ScreenDocument.h"
#include "platform/headless/HeadlessDesktop.h"
#include "script/ScriptParser.h"
#include "tests/fuzz/FuzzTargets.h"

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

template <class Object, class Build>
void AddAll(std::vector<std::unique_ptr<Object>>& objects, ScreenDocument& document,
    void (ScreenDocument::*add)(std::unique_ptr<Object>), Build build)
{
    for (auto& object : objects) {
        build(*object);
        (document.*add)(std::move(object));
    }
}

// As loading a screen does it, except that an object without its picture stays in the document.
void AddObjects(ParsedScreen screen, ScreenDocument& document)
{
    const auto load = [](PictureObject& object) { static_cast<void>(object.Load()); };
    const auto render = [](WordObject& word) { word.SetText(std::string(word.GetText())); };
    const auto build = [](auto& object) { object.Build(); };
    AddAll(screen.pictures, document, &ScreenDocument::AddPicture, load);
    AddAll(screen.buttons, document, &ScreenDocument::AddButton, load);
    AddAll(screen.animations, document, &ScreenDocument::AddAnimation, load);
    AddAll(screen.words, document, &ScreenDocument::AddWord, render);
    AddAll(screen.checkBoxes, document, &ScreenDocument::AddCheckBox, build);
    AddAll(screen.selectboxes, document, &ScreenDocument::AddSelectbox, build);
}

// Every object is pressed, hit-tested and, in turn, given each appearance effect.
void WorkObjects(ScreenDocument& document)
{
    for (int32_t i = 0; i < document.GetObjectCount(); ++i) {
        ScreenObject& object = *document.GetObjects()[static_cast<size_t>(i)];
        const vec pos = object.GetPos();
        const auto pointer = static_cast<uint32_t>(MAKELPARAM(pos.x, pos.y));
        for (const ObjectMessage message : { MsgMouseMove, MsgLeftDown, MsgLeftUp })
            object.HandleMessage(message, 0, pointer);
        object.PixelHit(pos);
        ScreenObject* hit = nullptr;
        document.GetObjectAt(hit, pos);
        object.SetEffect(static_cast<EffectKind>(EffectNone + static_cast<uint32_t>(i) % 6));
        document.StartEffect(i);
    }
}

} // namespace

void FuzzRender(std::string_view bytes)
{
    platform::HeadlessDesktop desktop;
    std::filesystem::current_path(FUZZ_WORKSPACE);
    ScriptTokenizer tokens;
    ParsedScreen screen;
    if (!tokens.TokenizeText(std::string(bytes)))
        return;
    static_cast<void>(ScriptParser::ParseTokens(tokens, screen)); // what was read before a fault is shown too
    ScreenDocument document;
    AddObjects(std::move(screen), document);
    document.Render();
    WorkObjects(document);
    desktop.Advance(100);
    document.Render();
    while (document.GetObjectCount() > 1)
        document.RemoveObject(document.GetObjectCount() / 2);
    document.Render();
}
