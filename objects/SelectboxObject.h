#pragma once

#include "objects/ButtonObject.h"
#include "objects/Loaded.h"
#include "objects/PictureObject.h"
#include "objects/ScreenObject.h"
#include "objects/TextList.h"
#include "objects/WordObject.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// One choice of a select box. It is rendered when it is shown, and no longer than that.
struct SelectboxChoice {
    const WordObject* word = nullptr; // null while another choice is shown, and for an empty text
    vec offset { 0, 0 }; // of the word, from the select box's pos
    std::string text;
};

// A select box: an edit box that shows one choice out of a list, with an up and a down button that step through it and
// repeat while they are held. `size` is the edit box.
class SelectboxObject : public ScreenObject {
public:
    SelectboxObject() { boundaryCheck = true; }

    // Makes the edit box and the buttons from their files, the built-in ones where none was given, and lays them out.
    // Always true: a part whose picture is missing is not drawn and not hit.
    [[nodiscard]] bool Build();

    // Appends a choice. Always true.
    bool AddString(const std::string& text);
    // Nothing for an index outside the list.
    void RemoveString(int32_t index);
    int32_t GetCount() const { return static_cast<int32_t>(choices.GetCount()); }
    // The empty text for an index outside the list.
    std::string GetString(int32_t index) const;
    // The words stay the select box's, until it is drawn again.
    std::vector<SelectboxChoice> GetChoices() const;

    bool Draw(uint16_t* dest, int32_t pitch) override;
    // True for a left press on one of the buttons, which also steps.
    bool HandleMessage(ObjectMessage msg, uint32_t wParam, uint32_t lParam) override;
    bool HitTest(vec point, vec screen) override;
    bool PixelHit(vec point) override; // always false
    void Reset() override;

    // Index of the choice shown; brought into range by drawing, so it may be outside between two frames.
    int32_t GetCurrent() const { return current; }
    // -1 while the up button is held, 1 while the down button is, else 0; and the tick count of the last step.
    int32_t GetScroll() const { return scroll; }
    uint32_t GetScrollTick() const { return scrollTick; }

    // Picture files of the parts; Build puts the built-in name where one is empty.
    void SetEditFile(const std::string& name) { editFile = name; }
    const std::string& GetEditFile() const { return editFile; }
    void SetUpFile(const std::string& name) { upFile = name; }
    const std::string& GetUpFile() const { return upFile; }
    void SetDownFile(const std::string& name) { downFile = name; }
    const std::string& GetDownFile() const { return downFile; }

    // The parts, null before Build. The select box keeps owning them.
    const PictureObject* GetEditPicture() const { return editPicture->get(); }
    const ButtonObject* GetUpButton() const { return upButton->get(); }
    const ButtonObject* GetDownButton() const { return downButton->get(); }
    // Offsets are from `pos`; the size of a button is that of one section.
    vec GetEditSize() const { return editSize; }
    vec GetUpOffset() const { return upOffset; }
    vec GetUpSize() const { return upSize; }
    vec GetDownOffset() const { return downOffset; }
    vec GetDownSize() const { return downSize; }

private:
    void PlaceParts();
    void RepeatHeldStep();
    void KeepCurrentInRange();
    WordObject* RenderCurrent();

    Loaded<std::unique_ptr<PictureObject>> editPicture;
    vec editSize { 0, 0 };
    std::string editFile;
    Loaded<std::unique_ptr<ButtonObject>> upButton;
    vec upOffset { 0, 0 };
    vec upSize { 0, 0 };
    std::string upFile;
    Loaded<std::unique_ptr<ButtonObject>> downButton;
    vec downOffset { 0, 0 };
    vec downSize { 0, 0 };
    std::string downFile;
    TextList choices;
    Loaded<std::unique_ptr<WordObject>> shownWord; // the choice drawn last that had a text
    int32_t current = 0;
    int32_t scroll = 0;
    uint32_t scrollTick = 0;
};
