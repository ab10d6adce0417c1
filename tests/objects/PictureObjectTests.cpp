#include "objects/PictureObject.h"
#include "tests/objects/ObjectTest.h"

#include <limits>

namespace {

class PictureObjectTest : public ObjectTest {
protected:
    // 11 by 4 pixels of red with a hole of pure green.
    PictureObjectTest()
    {
        BmpFile file(11, 4, 0);
        file.palette = { 0xF80000, 0x00FF00 };
        file.palette.resize(256);
        file.At(10, 1) = 1;
        file.Write("logo.bmp");
    }
    bool Load(const std::string& name)
    {
        picture.SetFileName(name);
        return picture.Load();
    }

    PictureObject picture;
};

TEST_F(PictureObjectTest, TakesPureGreenAsTransparentUnlessThereIsACompanion)
{
    ASSERT_TRUE(Load("logo.bmp"));
    EXPECT_EQ(picture.GetSize(), vec(11, 4));
    EXPECT_FALSE(picture.PixelHit({ 10, 1 }));
    Draw(picture);
    EXPECT_EQ(PixelAt(9, 1), 0x7C00);
    EXPECT_EQ(PixelAt(10, 1), untouched);

    std::filesystem::rename("logo.bmp", "logo.bmp.bmp");
    BmpFile(11, 4, 128).Write("logoa.bmp.bmp");
    ASSERT_TRUE(Load("logo.bmp.bmp"));
    Draw(picture);
    EXPECT_NE(PixelAt(10, 1), untouched);
    EXPECT_FALSE(picture.PixelHit({ 0, 0 })); // half seen is not hit
}

TEST_F(PictureObjectTest, KeepsItsPlaceWhenLoadedAgainAndIsNeitherDrawnNorHitAfterAFailedLoad)
{
    WriteBytes("bad.bmp", "BM");
    std::filesystem::create_directory("logoa.bmp"); // no companion
    for (const char* name : { "missing.bmp", "bad.bmp" }) {
        ASSERT_TRUE(Load("logo.bmp"));
        picture.SetPos({ 5, 6 });
        EXPECT_FALSE(Load("logo.BMP")); // refused: nothing changes
        EXPECT_TRUE(picture.PixelHit({ 5, 6 }));
        EXPECT_FALSE(Load(name));
        EXPECT_EQ(picture.GetPos(), vec(5, 6));
        EXPECT_FALSE(Draw(picture) || picture.HitTest({ 5, 6 }, { 800, 600 }) || picture.PixelHit({ 5, 6 }));
    }
}

TEST_F(PictureObjectTest, IsHitInItsViewWithOneMorePixelAndByPixelWithin)
{
    ASSERT_TRUE(Load("logo.bmp"));
    picture.SetPos({ -5, 3 });
    picture.SetView({ 10, 4 });
    const struct {
        vec point;
        bool hit, pixelHit;
    } cases[] = {
        { { 0, 3 }, true, true },
        { { -1, 3 }, false, false },
        { { 4, 6 }, true, true },
        { { 5, 6 }, true, false },
        { { 4, 7 }, true, false },
        { { 6, 3 }, false, false },
    };
    for (const auto& [point, hit, pixelHit] : cases) {
        EXPECT_EQ(picture.HitTest(point, { 11, 4 }), hit) << point.x << ", " << point.y;
        EXPECT_EQ(picture.PixelHit(point), pixelHit) << point.x << ", " << point.y;
    }
    picture.SetBoundaryCheck(true);
    EXPECT_FALSE(picture.HitTest({ 0, 3 }, { 11, 4 })); // fills the screen
}

TEST_F(PictureObjectTest, IsCutToPictureAndCanvasWhateverItsFieldsSay)
{
    constexpr int32_t lowest = std::numeric_limits<int32_t>::min();
    constexpr int32_t highest = std::numeric_limits<int32_t>::max();
    ASSERT_TRUE(Load("logo.bmp"));
    const struct {
        vec pos, src, view, corner;
        int pixels;
    } cases[] = {
        { { 796, 598 }, { 0, 2 }, { 11, 4 }, { 796, 598 }, 4 * 2 },
        { { -4, -1 }, { 0, 1 }, { 11, 3 }, { 0, 0 }, 7 * 2 },
        { { 10, 10 }, { -2, -3 }, { 5, 4 }, { 12, 13 }, 3 * 1 },
        { { 1 - highest, 0 }, { 2 - highest, 0 }, vec(highest), { 0, 0 }, 1 * 4 },
        { vec(lowest), vec(lowest), vec(highest), {}, 0 },
        { vec(highest), vec(highest), vec(highest), {}, 0 },
        { { 0, 0 }, { 0, 0 }, vec(lowest), {}, 0 },
    };
    for (const auto& [pos, src, view, corner, pixels] : cases) {
        picture.SetPos(pos);
        picture.SetSrc(src);
        picture.SetView(view);
        EXPECT_TRUE(Draw(picture));
        EXPECT_EQ(Drawn()[0x7C00], pixels) << pos.x << ", " << pos.y;
        EXPECT_EQ(PixelAt(corner.x, corner.y) == untouched, pixels == 0) << pos.x << ", " << pos.y;
        EXPECT_EQ(picture.GetView(), view);
        picture.PixelHit({ highest, 0 }); // reads nothing outside the mask
    }
}

} // namespace
