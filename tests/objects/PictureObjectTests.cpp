#include "objects/PictureObject.h"
#include "tests/objects/ObjectTest.h"

#include <sys/stat.h>

class PictureObjectTest : public KindTest<PictureObject> {
protected:
    // 11 by 4 pixels of red, told as section 30, with a hole of pure green and an edge of it at the right: once alone,
    // once with a companion that hides the first row and is nearly opaque below.
    PictureObjectTest()
    {
        BmpFile file(11, 4);
        file.palette[0] = 0xF80000;
        file.palette[1] = 0x00FF00;
        for (const auto& [x, y] : { vec(8, 1), { 10, 0 }, { 10, 1 }, { 10, 2 }, { 10, 3 } })
            file.At(x, y) = 1;
        file.Write("logo.bmp");
        EXPECT_EQ(mkfifo("logoa.bmp", 0600), 0); // no companion
        file.Write("shaded.bmp.bmp");
        BmpFile alphas(11, 4, 247);
        std::fill_n(alphas.indices.begin(), 11, uint8_t { 0 });
        alphas.Write("shadeda.bmp.bmp");
        On("inside", [this](bool check) { object.SetBoundaryCheck(check); });
        On("hit-on-screen", [this](vec point, vec screen) { return object.HitTest(point, screen); });
    }
};

TEST_F(PictureObjectTest, TakesPureGreenAsTransparentUnlessThereIsACompanion)
{
    Play("picture-transparency");
}

TEST_F(PictureObjectTest, KeepsItsPlaceAloneAfterAFailedLoad)
{
    Play("picture-failed-load");
}

TEST_F(PictureObjectTest, IsHitOnePixelBeyondItsViewButByPixelOnlyWithin)
{
    Play("picture-hits");
}

TEST_F(PictureObjectTest, IsCutToPictureAndCanvasWhateverItsFieldsSay)
{
    Play("picture-cuts");
}
