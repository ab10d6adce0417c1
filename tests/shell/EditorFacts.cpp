#include "tests/shell/EditorFacts.h"

#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/SelectboxObject.h"
#include "platform/CodePage.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"

#include <algorithm>
#include <sstream>
#include <utility>

using platform::Utf8FromCodePage;

namespace {

template <class Value> std::string Words(const Value& value)
{
    std::ostringstream out;
    out << value;
    return out.str();
}

std::string Words(vec value)
{
    return Words(value.x) + "," + Words(value.y);
}

std::string Words(bool value)
{
    return value ? "yes" : "no";
}

} // namespace

void ObjectNames::Refresh(const ScreenDocument& document)
{
    constexpr const char* kinds[] = { "picture", "button", "animation", "word", "checkbox", "selectbox" };
    std::map<const ScreenObject*, std::string> before = std::exchange(names, {});
    for (const auto& object : document.GetObjects()) {
        std::string& name = names[object.get()] = before[object.get()];
        if (name.empty()) {
            const int number = ++met[object->GetKind()];
            name = kinds[object->GetKind() - KindPicture] + (number == 1 ? "" : Words(number));
        }
    }
}

std::string ObjectNames::Of(const ScreenObject* object) const
{
    const auto found = names.find(object);
    if (found == names.end())
        return object ? "one that is gone" : "none";
    return found->second;
}

const ScreenObject* ObjectNames::Find(const std::string& name) const
{
    const auto found = std::find_if(names.begin(), names.end(), [&](const auto& each) { return each.second == name; });
    return found == names.end() ? nullptr : found->first;
}

Facts FactsOf(const ShellContext& shell, const ObjectNames& names)
{
    const EditorState& editing = shell.editing;
    std::string objects;
    for (const auto& object : shell.document.GetObjects())
        objects += (objects.empty() ? "" : ", ") + names.Of(object.get());
    std::string selected;
    for (size_t i = 0; i < editing.GetSelectionCount(); ++i) {
        ScreenObject* object = nullptr;
        shell.document.GetObject(editing.GetSelectedIndex(i), object);
        selected += (i == 0 ? "" : ", ") + names.Of(object) + " from " + Words(editing.GetGrab(i));
    }
    return { { "objects", objects }, { "count", Words(editing.GetObjectCount()) }, { "selected", selected },
        { "current", names.Of(editing.GetCurrentObject()) }, { "dragging", Words(editing.IsDragging()) },
        { "hit", Words(editing.IsPressHit()) }, { "pointer", Words(editing.GetPointer()) },
        { "pressed", Words(editing.GetPressPoint()) }, { "context", Words(editing.GetContextPoint()) } };
}

Facts FactsOf(const ScreenObject& object)
{
    constexpr const char* effects[] = { "none", "from left", "from right", "from top", "from bottom", "fade out" };
    constexpr const char* modes[] = { "static", "", "moving", "button", "animation" };
    Facts facts { { "pos", Words(object.GetPos()) }, { "layer", Words(object.GetLayer()) },
        { "size", Words(object.GetSize()) }, { "view", Words(object.GetView()) }, { "alpha", Words(object.GetAlpha()) },
        { "boundary", Words(object.GetBoundaryCheck()) }, { "effect", effects[object.GetEffect() - EffectNone] },
        { "running", Words(object.GetEffectRunning()) } };
    if (const auto* picture = dynamic_cast<const PictureObject*>(&object))
        facts["mode"] = modes[picture->GetMode()];
    if (const auto* button = dynamic_cast<const ButtonObject*>(&object)) {
        facts["sections"] = Words(button->GetSections());
        facts["section"] = Words(button->GetSection());
    } else if (const auto* animation = dynamic_cast<const AnimationObject*>(&object)) {
        facts["sections"] = Words(animation->GetSections());
        facts["interval"] = Words(animation->GetInterval());
        facts["frame"] = Words(animation->GetFrame());
        facts["playing"] = Words(animation->IsPlaying());
    } else if (const auto* word = dynamic_cast<const WordObject*>(&object)) {
        facts["text"] = Utf8FromCodePage(word->GetText());
        facts["colour"] = Words(word->GetTextColor());
    } else if (const auto* box = dynamic_cast<const CheckBoxObject*>(&object)) {
        facts["label"] = Utf8FromCodePage(box->GetLabelText());
        facts["drawn label"] = box->GetLabel() ? Utf8FromCodePage(box->GetLabel()->GetText()) : "none";
        facts["state"] = Words(box->GetState());
    } else if (const auto* selectbox = dynamic_cast<const SelectboxObject*>(&object)) {
        facts["choices"] = "";
        for (const SelectboxChoice& choice : selectbox->GetChoices())
            facts["choices"] += Utf8FromCodePage(choice.text) + "/";
    }
    return facts;
}

Facts FactsOf(const platform::DialogDriver& dialog, const std::map<std::string, int>& ids)
{
    Facts facts { { "of", dialog.Title() } };
    for (const auto& [name, id] : ids) {
        HWND control = id < PictureModeList ? nullptr : GetDlgItem(dialog.Handle(), id);
        if (!control || control->kind == platform::WindowKind::PushButton)
            continue;
        facts[name] = "\"" + dialog.Value(id) + "\"";
        if (control->kind != platform::WindowKind::DropDown)
            continue;
        facts[name] += " at " + Words(dialog.Selection(id));
        for (const std::string& item : dialog.Items(id))
            facts[name + " entries"] += "/" + item;
    }
    return facts;
}
