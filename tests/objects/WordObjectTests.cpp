#include "objects/WordObject.h"
#include "tests/objects/ObjectTest.h"

using WordObjectTest = ObjectTest;

TEST_F(WordObjectTest, ShowsItsLettersAloneInTheColourThatItWasRenderedWith)
{
    WordObject word;
    ASSERT_TRUE(word.SetText("text"));
    EXPECT_EQ(word.GetSize(), vec(28, 14));
    word.SetColor(0x7FFF, 0x7F00, 8); // components count modulo 256
    for (const uint16_t color : { blue, uint16_t { 0x7C01 } }) {
        EXPECT_TRUE(Draw(word));
        EXPECT_GT(Count(color), 20);
        EXPECT_EQ(Count(color), Drawn());
        EXPECT_TRUE(word.SetText(word.GetText()));
    }
    word.SetView({ 20, 13 });
    for (const auto& [point, hit] : { std::pair(vec(20, 13), true), { { 21, 13 }, false }, { { 20, 14 }, false } })
        EXPECT_EQ(word.HitTest(point, { 28, 14 }), hit) << point;
    EXPECT_TRUE(word.SetText("\xFF\xA4")); // no characters at all
    EXPECT_TRUE(Draw(word));
    EXPECT_FALSE(word.SetText(""));
    EXPECT_FALSE(Draw(word));
    EXPECT_FALSE(word.HitTest({ 0, 0 }, {}));
}
