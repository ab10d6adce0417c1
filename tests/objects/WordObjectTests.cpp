#include "objects/WordObject.h"
#include "tests/objects/ObjectTest.h"

using WordObjectTest = ObjectTest;

TEST_F(WordObjectTest, ShowsItsLettersAloneInTheColourThatItWasRenderedWith)
{
    WordObject word;
    word.SetText("text");
    EXPECT_EQ(word.GetSize(), vec(28, 14));
    word.SetColor(0x7FFF, 0x7F00, 8); // components count modulo 256
    for (const uint16_t color : { blue, uint16_t { 0x7C01 } }) {
        EXPECT_TRUE(Draw(word) && Count(color) > 20);
        EXPECT_EQ(Count(color) + Count(untouched), std::ssize(canvas));
        word.SetText(word.GetText());
    }
    EXPECT_TRUE(word.HitTest(word.GetSize(), {}) && word.SetText("\xFF\xA4") && Draw(word)); // no characters at all
    EXPECT_FALSE(word.SetText("") || Draw(word) || word.HitTest({ 0, 0 }, {}));
}
