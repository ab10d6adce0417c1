#include "tests/script/ScreenText.h"

#include "platform/CodePage.h"

#include <fstream>
#include <iterator>
#include <utility>

namespace {

std::string Quoted(const std::string& text)
{
    std::string quoted = " \"";
    for (const char character : platform::Utf8FromCodePage(text)) {
        if (character >= 0 && character < ' ')
            quoted.append("<").append(std::to_string(character)).append(">");
        else
            quoted += character;
    }
    return quoted + '"';
}

std::string Numbers(vec value)
{
    return " (" + std::to_string(value.x) + ", " + std::to_string(value.y) + ")";
}

// One line for each object of a kind: what all kinds have, then what `own` adds.
template <class Object, class Own>
std::string Lines(const char* kind, const std::vector<std::unique_ptr<Object>>& objects, Own own)
{
    std::string lines;
    for (const auto& object : objects)
        lines += kind + Numbers(object->GetPos()) + " layer " + std::to_string(object->GetLayer()) + " alpha "
            + std::to_string(object->GetAlpha()) + own(*object) + "\n";
    return lines;
}

template <class Object>
void Take(std::vector<std::unique_ptr<Object>>& from, ObjectKind kind, std::vector<std::unique_ptr<ScreenObject>>& to)
{
    for (auto& object : from) {
        object->SetKind(kind);
        object->SetLayer(static_cast<int32_t>(to.size()));
        to.push_back(std::move(object));
    }
}

} // namespace

std::string ReadBytes(const std::string& nativePath)
{
    std::ifstream file(nativePath, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

std::string Describe(const ParsedScreen& screen)
{
    return (screen.screenSize ? "ScreenSize" + Numbers(*screen.screenSize) + "\n" : "")
        + (screen.screenPos ? "ScreenPos" + Numbers(*screen.screenPos) + "\n" : "")
        + Lines("Picture", screen.pictures,
            [](const auto& picture) { return " view" + Numbers(picture.GetView()) + Quoted(picture.GetFileName()); })
        + Lines("Button", screen.buttons,
            [](const auto& button) {
                return " sections " + std::to_string(button.GetSections()) + Quoted(button.GetFileName());
            })
        + Lines("Animation", screen.animations,
            [](const auto& animation) {
                return " sections " + std::to_string(animation.GetSections()) + " interval "
                    + std::to_string(animation.GetInterval()) + Quoted(animation.GetFileName());
            })
        + Lines("Word", screen.words, [](const auto& word) { return Quoted(word.GetText()); })
        + Lines("CheckBox", screen.checkBoxes, [](const auto& checkBox) { return Quoted(checkBox.GetLabelText()); })
        + Lines("Selectbox", screen.selectboxes, [](const auto& box) {
              std::string text = Quoted(box.GetUpFile()) + Quoted(box.GetDownFile()) + Quoted(box.GetEditFile()) + ":";
              for (const auto& choice : box.GetChoices())
                  text += Quoted(choice.text);
              return text;
          });
}

std::vector<std::unique_ptr<ScreenObject>> TakeObjects(ParsedScreen screen)
{
    for (auto& picture : screen.pictures)
        picture = std::make_unique<Sized<PictureObject>>(*picture, picture->GetView());
    std::vector<std::unique_ptr<ScreenObject>> objects;
    Take(screen.pictures, KindPicture, objects);
    Take(screen.buttons, KindButton, objects);
    Take(screen.animations, KindAnimation, objects);
    Take(screen.words, KindWord, objects);
    Take(screen.checkBoxes, KindCheckBox, objects);
    Take(screen.selectboxes, KindSelectbox, objects);
    return objects;
}
