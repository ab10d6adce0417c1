#include "objects/ButtonObject.h"
#include "tests/objects/ObjectTest.h"

class ButtonObjectTest : public KindTest<ButtonObject> {
protected:
    ButtonObjectTest()
    {
        On("sections", [this](int32_t count) { object.SetSections(count); });
    }
    std::string State() override { return " look" + Told(object.GetSection()); }
};

TEST_F(ButtonObjectTest, IsCutByTheMarkInItsNameElseAlongItsLongerSide)
{
    Play("button-cuts");
}

TEST_F(ButtonObjectTest, FollowsTheMouseThroughTheLooksThatItHas)
{
    Play("button-looks");
}

TEST_F(ButtonObjectTest, ShowsWhatTheFittingLeavesOfASectionWithItsAlpha)
{
    Play("button-fitted");
}
