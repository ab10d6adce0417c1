#include "objects/WordObject.h"
#include "tests/objects/ObjectTest.h"

namespace {

using WordObjectTest = ObjectTest;

TEST_F(WordObjectTest, ShowsItsLettersAloneInTheColourThatItWasRenderedWith)
{
    WordObject word;
    word.SetText("text");
    word.SetColor(256 + 255, 0x7F00, 8); // components count modulo 256
    for (const uint16_t color : { blue, uint16_t { 0x7C01 } }) {
        Draw(word);
        EXPECT_GT(Drawn()[color], 20);
        EXPECT_EQ(Drawn().size(), 1U);
        word.SetText(word.GetText());
    }
    EXPECT_TRUE(word.HitTest(word.GetSize(), word.GetSize()));
    EXPECT_TRUE(word.SetText("\xFF\xA4") && Draw(word)); // no characters at all
    EXPECT_FALSE(word.SetText(""));
    EXPECT_FALSE(Draw(word) || word.HitTest({ 0, 0 }, {}));
}

} // namespace
