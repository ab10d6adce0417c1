#include "objects/PictureObject.h"
#include "tests/objects/ObjectTest.h"

#include <sys/stat.h>
#include <tuple>

class PictureObjectTest : public ObjectTest {
protected:
    // 11 by 4 pixels of red with a hole of pure green.
    PictureObjectTest()
    {
        BmpFile file(11, 4);
        file.palette[0] = 0xF80000;
        file.palette[1] = 0x00FF00;
        file.At(9, 1) = 1;
        file.Write("logo.bmp");
    }

    static constexpr uint16_t red = 0x7C00;
    PictureObject picture;
};

TEST_F(PictureObjectTest, TakesPureGreenAsTransparentUnlessThereIsACompanion)
{
    ASSERT_EQ(mkfifo("logoa.bmp", 0600), 0); // no companion
    ASSERT_TRUE(Load(picture, "logo.bmp") && Draw(picture));
    EXPECT_EQ(Count(red), 43);
    EXPECT_EQ(Count(untouched), std::ssize(canvas) - 43);
    EXPECT_FALSE(picture.PixelHit({ 9, 1 }));
    std::filesystem::rename("logo.bmp", "logo.bmp.bmp");
    BmpFile(11, 4, 247).Write("logoa.bmp.bmp");
    ASSERT_TRUE(Load(picture, "logo.bmp.bmp") && Draw(picture));
    EXPECT_EQ(Count(untouched), std::ssize(canvas) - 44);
    EXPECT_FALSE(picture.PixelHit({ 0, 0 })); // nearly opaque is not hit
    picture.SetAlpha(7);
    EXPECT_TRUE(Draw(picture) && Count(untouched) == std::ssize(canvas) && picture.HitTest({ 0, 0 }, {})); // unseen
}

TEST_F(PictureObjectTest, KeepsItsPlaceWhenLoadedAgainAndIsNeitherDrawnNorHitAfterAFailedLoad)
{
    ASSERT_TRUE(Load(picture, "logo.bmp"));
    picture.SetPos({ 5, 6 });
    EXPECT_FALSE(Load(picture, "logo.BMP")); // refused: nothing changes
    EXPECT_TRUE(picture.PixelHit({ 5, 6 }));
    EXPECT_FALSE(Load(picture, "missing.bmp"));
    EXPECT_EQ(picture.GetPos(), vec(5, 6));
    EXPECT_FALSE(Draw(picture) || picture.HitTest({ 5, 6 }, { 800, 600 }) || picture.PixelHit({ 5, 6 }));
}

TEST_F(PictureObjectTest, IsHitInItsViewWithOneMorePixelAndByPixelWithin)
{
    ASSERT_TRUE(Load(picture, "logo.bmp"));
    picture.SetPos({ -5, 3 });
    picture.SetSrc({ 1, 1 });
    picture.SetView({ 9, 2 });
    const std::tuple<vec, bool, bool> cases[] = { { { 0, 3 }, true, true }, { { -1, 3 }, false, false },
        { { 3, 3 }, true, false }, { { 4, 4 }, true, false }, { { 3, 5 }, true, false }, { { 5, 3 }, false, false } };
    for (const auto& [point, hit, pixelHit] : cases) {
        EXPECT_EQ(picture.HitTest(point, { 11, 4 }), hit) << point.x << ", " << point.y;
        EXPECT_EQ(picture.PixelHit(point), pixelHit) << point.x << ", " << point.y;
    }
    picture.SetBoundaryCheck(true);
    EXPECT_FALSE(picture.HitTest({ 0, 3 }, { 11, 4 })); // fills the screen
    EXPECT_TRUE(picture.HitTest({ 6, 7 }, { 11, 5 })); // in the whole picture again
}

TEST_F(PictureObjectTest, IsCutToPictureAndCanvasWhateverItsFieldsSay)
{
    ASSERT_TRUE(Load(picture, "logo.bmp"));
    const std::tuple<vec, vec, vec, int> cases[] = { { { 796, 598 }, { 0, 2 }, { 11, 4 }, 4 * 2 },
        { { -4, -1 }, { 0, 0 }, { 11, 3 }, 7 * 2 - 1 }, { { 10, 10 }, { -2, -3 }, { 5, 4 }, 3 * 1 },
        { { 1 - INT32_MAX, 0 }, { 2 - INT32_MAX, 0 }, vec(INT32_MAX), 1 * 4 },
        { vec(INT32_MIN), vec(INT32_MIN), vec(INT32_MAX), 0 }, { { 0, 0 }, { 0, 0 }, { 5, INT32_MIN }, 0 } };
    for (const auto& [pos, src, view, pixels] : cases) {
        picture.SetPos(pos);
        picture.SetSrc(src);
        picture.SetView(view);
        EXPECT_TRUE(Draw(picture));
        EXPECT_EQ(Count(red), pixels) << pos.x << ", " << pos.y;
        picture.PixelHit({ INT32_MAX, 0 }); // reads nothing outside the mask
    }
}
