#include "objects/CheckBoxObject.h"
#include "tests/objects/ObjectTest.h"

class CheckBoxObjectTest : public KindTest<CheckBoxObject> {
protected:
    CheckBoxObjectTest()
    {
        On("label", [this](const std::string& text) { object.SetLabelText(text == "none" ? "" : text); });
        On("build", [this] { return object.Build(); });
        On("enable", [this](bool enable) { return object.SetEnabled(enable), State(); });
        On("letters-beside-box", [this] {
            const auto letter = std::find(canvas.begin() + 57 * ScreenWidth, canvas.end(), blue);
            return (letter - canvas.begin()) % ScreenWidth >= 121;
        });
    }
    std::string State() override { return Told(object.GetState()) + (object.IsEnabled() ? "" : " disabled"); }
};

TEST_F(CheckBoxObjectTest, TogglesByALeftPressOnItsBoxAlone)
{
    Play("checkbox-presses");
}

TEST_F(CheckBoxObjectTest, IsHitWhereItsPartsOrTheGapBetweenThemLie)
{
    Play("checkbox-hits");
}

TEST_F(CheckBoxObjectTest, NeedsItsLabelButNotItsBoxPicture)
{
    Play("checkbox-parts");
}
