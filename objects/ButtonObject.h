#pragma once

#include "objects/PictureObject.h"

#include <cstdint>

// A button: a picture cut into equal sections, one per look, that follows the mouse. `size` is one section.
class ButtonObject : public PictureObject {
public:
    ButtonObject() { boundaryCheck = true; }

    // As a picture, then cuts it: side by side when the file name has a "@", stacked when it has a "!", else along the
    // longer side (stacked when square).
    [[nodiscard]] bool Load() override;
    bool Draw(uint16_t* dest, int32_t pitch) override;
    // The mouse's part in the looks. True while the pointer is on the button; for a release, when it completes a click.
    bool HandleMessage(ObjectMessage msg, uint32_t wParam, uint32_t lParam) override;
    bool HitTest(vec point, vec screen) override;
    void Reset() override;

    // Stores the count, at least 1, and cuts a loaded picture anew; `view` stays until the next fitting.
    void SetSections(int32_t count);
    int32_t GetSections() const { return sections; }
    // The look: 0 normal, 1 hover, 2 pressed.
    int32_t GetSection() const { return section; }
    // Whether the sections are stacked top to bottom.
    bool IsVertical() const { return vertical; }

private:
    void CutSections();

    int32_t sections = 4;
    int32_t section = 0;
    bool vertical = false;
};
