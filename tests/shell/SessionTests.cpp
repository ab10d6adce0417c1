#include "platform/CodePage.h"
#include "platform/Path.h"
#include "platform/User.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorFacts.h"
#include "tests/shell/EditorTest.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

// Each file of the folder "sessions" is a designer's session: what the designer does, a line each, and indented below
// it what has changed by then. A line with "> " is done in the dialog that the lines before have opened. Controls,
// commands and keys go by the names that the editor's headers give them; a place is a point of the canvas or the name
// of an object, which is then pointed at inside its corner. Of a new session only what is done need be written: the
// failure shows what changes by it, to be read and taken over.

namespace {

using platform::DialogDriver;
using platform::ScriptedDesktop;

// The constants of the headers, by name.
std::map<std::string, int> NamedNumbers()
{
    std::map<std::string, int> numbers { { "P", 'P' }, { "S", 'S' } };
    for (const char* header : { "/platform/User.h", "/shell/CommandButtons.h", "/resources/ResourceIds.h" }) {
        std::istringstream text(ReadBytes(PROJECT_FOLDER + std::string(header)));
        for (std::string word, type, name, is, value; text >> word;)
            if (word == "constexpr" && text >> type >> name >> is >> value && value.find_first_of("0123456789") == 0)
                numbers[name] = static_cast<int>(std::stoul(value, nullptr, 0));
    }
    return numbers;
}

std::string Rest(std::istringstream& words)
{
    std::string rest;
    std::getline(words, rest);
    return rest;
}

class Sessions : public EditorTest, public testing::WithParamInterface<std::string> {
protected:
    // Plays the lines that come next; with a dialog, those that are meant for it while it is open.
    void PlayLines(const DialogDriver* dialog = nullptr);

    std::vector<std::string> lines;
    std::string played; // how the file reads by what happened

    bool DialogComesNext() const;
    void Given(std::istringstream& words);
    bool Point(const std::string& verb, std::istringstream& words);
    void Act(const std::string& verb, std::istringstream& words);
    void Work(DialogDriver dialog, const std::string& verb, std::istringstream& words);
    int Number(std::istringstream& words) const;
    POINT Place(std::istringstream& words) const;

    // These write down what is new.
    void Tell(const DialogDriver* dialog);
    void TellChanges(const std::string& name, const Facts& facts);
    void TellQuestions(const DialogDriver* dialog);
    std::string InFolder(std::string path) const;

    const std::map<std::string, int> numbers = NamedNumbers();
    size_t next = 0;
    ObjectNames names;
    std::map<std::string, Facts> told;
    size_t messagesTold = 0;
    size_t menusTold = 0;
    size_t filesTold = 0;
    int drawingsTold = 0;
};

bool Sessions::DialogComesNext() const
{
    const auto line = std::find_if(lines.begin() + static_cast<ptrdiff_t>(next), lines.end(),
        [](const std::string& each) { return !each.starts_with("  ") && !each.starts_with("#"); });
    return line != lines.end() && line->starts_with("> ");
}

void Sessions::PlayLines(const DialogDriver* dialog)
{
    while (next < lines.size() && (!dialog || (dialog->IsOpen() && DialogComesNext()))) {
        const std::string& line = lines[next++];
        if (line.starts_with("  "))
            continue;
        played += line + "\n";
        if (line.empty() || line.starts_with("#"))
            continue;
        std::istringstream words(line.substr(dialog ? 2 : 0));
        std::string verb;
        words >> verb >> std::ws;
        if (!dialog && DialogComesNext())
            desktop.OnDialog([this](const DialogDriver& opened) {
                Tell(&opened);
                PlayLines(&opened);
            });
        dialog ? Work(*dialog, verb, words) : Act(verb, words);
        const size_t length = played.size();
        Tell(dialog);
        if (verb == "given")
            played.resize(length);
    }
}

int Sessions::Number(std::istringstream& words) const
{
    std::string name;
    words >> name >> std::ws;
    const auto number = numbers.find(name);
    if (number == numbers.end())
        ADD_FAILURE() << "no such name: " << name;
    return number == numbers.end() ? 0 : number->second;
}

POINT Sessions::Place(std::istringstream& words) const
{
    POINT place {};
    if (words >> place.x >> place.y)
        return place;
    words.clear();
    std::string name;
    words >> name;
    const ScreenObject* object = names.Find(name);
    EXPECT_TRUE(object) << "no such object: " << name;
    return object ? POINT { object->GetPos().x + 5, object->GetPos().y + 5 } : POINT {};
}

// The mouse, a right press with the item that is chosen ("-": none) and where the pointer lies then. False for another
// verb.
bool Sessions::Point(const std::string& verb, std::istringstream& words)
{
    const bool shift = verb.starts_with("shift-");
    using Gesture = decltype(&ScriptedDesktop::Press);
    const std::map<std::string, Gesture> gestures { { "press", &ScriptedDesktop::Press },
        { "again", &ScriptedDesktop::PressAgain }, { "move", &ScriptedDesktop::MoveTo },
        { "release", &ScriptedDesktop::Release }, { "right", &ScriptedDesktop::RightPress } };
    const auto gesture = gestures.find(verb.substr(shift ? 6 : 0));
    if (gesture == gestures.end())
        return false;
    const POINT place = Place(words);
    if (words >> std::ws && !words.eof()) {
        const int item = words.peek() == '-' ? words.get() * 0 : Number(words);
        words >> std::ws;
        desktop.AnswerMenu(static_cast<uint32_t>(item), words.eof() ? std::nullopt : std::optional(Place(words)));
    }
    (desktop.*gesture->second)(place.x, place.y, shift ? MK_SHIFT : 0);
    return true;
}

// What is there before the session; nothing is told about it.
void Sessions::Given(std::istringstream& words)
{
    std::string what;
    words >> what >> std::ws;
    vec pos { 0, 0 };
    vec size { 0, 0 };
    if (what == "kinds") {
        MakeAllKinds();
    } else if (what == "picture" && words >> pos.x >> pos.y >> size.x >> size.y) {
        AddPicture(pos, size);
        PresentFrame();
    } else {
        folder.Write(what, Rest(words));
    }
}

void Sessions::Act(const std::string& verb, std::istringstream& words)
{
    if (verb == "given") {
        Given(words);
    } else if (verb == "frame") {
        uint32_t milliseconds = 0;
        words >> milliseconds;
        desktop.Advance(milliseconds);
        PresentFrame();
    } else if (verb == "button") {
        desktop.ClickButton(Number(words));
    } else if (verb == "key" || verb == "ctrl-key") {
        desktop.Key(Number(words), verb == "key" ? 0 : MK_CONTROL);
    } else if (verb == "command") {
        SendMessageA(shell.mainWindow, WM_COMMAND, static_cast<WPARAM>(Number(words)), 0);
    } else if (verb == "file") {
        const std::string name = Rest(words);
        name == "-" ? desktop.CancelFileDialog() : desktop.AnswerFileDialog(name);
    } else if (verb == "contains") {
        std::string name;
        words >> name >> std::ws;
        EXPECT_TRUE(ReadBytes(folder.Path() + "/" + name).find(Rest(words)) != std::string::npos) << words.str();
    } else if (verb == "ends") {
        played += "  status " + std::to_string(RunToTheEnd()) + "\n";
    } else {
        EXPECT_TRUE(Point(verb, words)) << "no such act: " << verb;
    }
    desktop.PlayInput();
}

void Sessions::Work(DialogDriver dialog, const std::string& verb, std::istringstream& words)
{
    if (verb == "move")
        return dialog.Move(300, 300); // the canvas below is uncovered
    if (verb == "close")
        return dialog.Handle()->closeBox ? dialog.CloseBox()
                                         : static_cast<void>(SendMessageA(dialog.Handle(), WM_CLOSE, 0, 0));
    if (verb == "point")
        return desktop.PointTo(Place(words));
    const int id = Number(words);
    const std::string value = Rest(words);
    if (verb == "key")
        dialog.Key(id);
    else if (verb == "press")
        dialog.Press(id);
    else if (verb == "select")
        dialog.Select(id, std::stoi(value));
    else if (verb == "enter")
        dialog.Enter(id, value);
    else if (verb == "paste") // letters into a field for digits, too
        SetWindowTextA(GetDlgItem(dialog.Handle(), id), platform::CodePageFromUtf8(value).c_str());
    else if (verb == "send") // the word's other half tells what happened to the control
        SendMessageA(dialog.Handle(), WM_COMMAND, static_cast<WPARAM>(1 << 16 | id), 0);
    else if (verb == "behind") // the main window hears a key
        SendMessageA(shell.mainWindow, WM_KEYDOWN, static_cast<WPARAM>(id), 0);
    else
        ADD_FAILURE() << "no such act: " << verb;
}

std::string Sessions::InFolder(std::string path) const
{
    const size_t found = path.find(folder.Path());
    return found == std::string::npos ? path : path.replace(found, folder.Path().size(), "~");
}

void Sessions::Tell(const DialogDriver* dialog)
{
    names.Refresh(shell.document);
    TellQuestions(dialog);
    Facts editor = FactsOf(shell, names);
    editor["captured"] = desktop.Capture() == shell.mainWindow ? "yes" : "no";
    editor["file"] = InFolder(platform::ExactNativePath(shell.editing.GetFileName()));
    editor["folder"] = InFolder(std::filesystem::current_path());
    TellChanges("editor", editor);
    for (const auto& object : shell.document.GetObjects())
        TellChanges(names.Of(object.get()), FactsOf(*object));
    if (dialog && dialog->IsOpen())
        TellChanges("dialog", FactsOf(*dialog, numbers));
    else
        told.erase("dialog");
    if (dialog && !dialog->IsOpen())
        played += "  ended with " + std::to_string(dialog->Handle()->result) + "\n";
    if (std::exchange(drawingsTold, desktop.TimesDrawn()) != desktop.TimesDrawn())
        played += "  drawn\n";
}

void Sessions::TellChanges(const std::string& name, const Facts& facts)
{
    Facts& before = told[name];
    std::string news;
    for (const auto& [property, value] : facts)
        if (!before.contains(property) || before[property] != value)
            news += (news.empty() ? "  " + name + ": " : "; ") + property + " " + (value.empty() ? "none" : value);
    before = facts;
    if (!news.empty())
        played += news + "\n";
}

void Sessions::TellQuestions(const DialogDriver* dialog)
{
    for (; menusTold < desktop.Menus().size(); ++menusTold) {
        const platform::ShownMenu& menu = desktop.Menus()[menusTold];
        played += "  menu " + std::to_string(menu.at.x - shell.mainWindow->place.left) + ","
            + std::to_string(menu.at.y - shell.mainWindow->place.top) + ":";
        for (const platform::MenuItem& item : menu.items)
            played += " /" + std::string(item.text);
        played += "\n";
    }
    for (; filesTold < desktop.FileDialogs().size(); ++filesTold) {
        const platform::FileRequest& request = desktop.FileDialogs()[filesTold];
        EXPECT_EQ(request.owner, shell.mainWindow);
        played += "  which " + request.label + " " + request.pattern + (request.mustExist ? " that exists" : "")
            + " in " + InFolder(request.folder) + "?\n";
    }
    for (; messagesTold < desktop.MessageBoxes().size(); ++messagesTold) {
        const platform::ShownMessage& message = desktop.MessageBoxes()[messagesTold];
        EXPECT_EQ(message.owner, dialog ? dialog->Handle() : shell.mainWindow);
        played += "  message " + message.caption + ": " + InFolder(message.text) + "\n";
    }
}

TEST_P(Sessions, ChangeWhatTheySay)
{
    const std::string path = SHELL_SESSIONS "/" + GetParam() + ".txt";
    std::istringstream file(ReadBytes(path));
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    Tell(nullptr);
    played.clear();
    PlayLines();
    EXPECT_EQ(played, ReadBytes(path));
}

std::vector<std::string> SessionNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(SHELL_SESSIONS))
        names.push_back(entry.path().stem());
    std::sort(names.begin(), names.end());
    return names;
}

INSTANTIATE_TEST_SUITE_P(
    Designers, Sessions, testing::ValuesIn(SessionNames()), [](const auto& test) { return test.param; });

} // namespace
