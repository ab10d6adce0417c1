#pragma once

#include "gfx/Pic16X.h"
#include "objects/Loaded.h"
#include "objects/PictureObject.h"

#include <cstdint>
#include <memory>
#include <string>

// The font of one word; making one makes the font.
class WordFont {
public:
    WordFont();
    platform::Font* Get() const { return font.get(); }

private:
    struct Deleter {
        void operator()(platform::Font* handle) const;
    };
    std::unique_ptr<platform::Font, Deleter> font;
};

// One line of coloured text, rendered into a picture. Words are hit by their rectangle only; they have no mask.
class WordObject : public PictureObject {
public:
    // Stores the text (code page 950) and renders it; `size` and `view` become those of the text, `pos` stays. False
    // for an empty text, which leaves the word without a picture. True although the text could not be rendered: such a
    // word has size (0, 0) and no picture.
    [[nodiscard]] bool SetText(const std::string& newText);
    // Stores the text and renders nothing; SetText renders it later.
    void StoreText(const std::string& newText) { text = newText; }
    const std::string& GetText() const { return text; }
    // The colour of the letters from the next SetText on. Each component is taken modulo 256.
    void SetColor(uint32_t red, uint32_t green, uint32_t blue);
    // 555 colours of the letters and of the background, which is transparent.
    uint16_t GetTextColor() const { return textColor; }
    uint16_t GetKeyColor() const { return keyColor; }
    // The word keeps owning it.
    platform::Font* GetFont() const { return font->Get(); }

    bool HitTest(vec point, vec screen) override;
    void Reset() override;

private:
    std::string text;
    Loaded<WordFont> font;
    uint16_t textColor = SPic16X_::Color16_(0xFF0000); // blue, the value being 0x00BBGGRR
    uint16_t keyColor = SPic16X_::Color16_(0);
};
