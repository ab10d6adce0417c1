#pragma once

#include "objects/Loaded.h"
#include "objects/PictureObject.h"
#include "objects/ScreenObject.h"
#include "objects/WordObject.h"

#include <cstdint>
#include <memory>
#include <string>

// A check box: a box picture that a click toggles, followed by a label. `size` is box, gap and label together, as tall
// as the box.
class CheckBoxObject : public ScreenObject {
public:
    CheckBoxObject() { boundaryCheck = true; }

    // Makes the box from its file and the label from its text and lays them out; to be called again when the text
    // changes. False for an empty text: there is no label then, and without one nothing is drawn or hit. A missing box
    // picture is no failure.
    [[nodiscard]] bool Build();
    // Code page 950; takes effect with the next Build.
    void SetLabelText(const std::string& text) { labelText = text; }
    const std::string& GetLabelText() const { return labelText; }

    bool Draw(uint16_t* dest, int32_t pitch) override;
    // A left press on the box toggles it. Always false.
    bool HandleMessage(ObjectMessage msg, uint32_t wParam, uint32_t lParam) override;
    bool HitTest(vec point, vec screen) override;
    bool PixelHit(vec point) override; // always false
    void Reset() override;

    bool IsEnabled() const { return state != stateDisabled; }
    // Enabling starts unchecked.
    void SetEnabled(bool enable);
    // The section of the box picture that is shown: 0 unchecked, 1 checked, 3 disabled.
    int32_t GetState() const { return state; }

    // The parts, null while they are not built. The check box keeps owning them.
    const PictureObject* GetBox() const { return box->get(); }
    const WordObject* GetLabel() const { return label->get(); }
    const std::string& GetBoxFile() const { return boxFile; }
    // One section of the box picture.
    vec GetBoxSize() const { return boxSize; }
    vec GetLabelOffset() const { return labelOffset; }
    vec GetLabelSize() const { return labelSize; }

private:
    static constexpr int32_t stateUnchecked = 0;
    static constexpr int32_t stateChecked = 1;
    static constexpr int32_t stateDisabled = 3;

    bool IsBuilt() const { return *box && *label; }

    int32_t gap = 5; // pixels between box and label
    Loaded<std::unique_ptr<PictureObject>> box;
    std::string boxFile = "ro_chkbox.bmp";
    vec boxSize { 0, 0 };
    int32_t sections = 4;
    int32_t state = stateUnchecked;
    Loaded<std::unique_ptr<WordObject>> label;
    std::string labelText;
    vec labelOffset { 0, 0 };
    vec labelSize { 0, 0 };
};
