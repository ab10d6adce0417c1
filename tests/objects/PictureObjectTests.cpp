#include "objects/PictureObject.h"
#include "tests/objects/ObjectTest.h"

#include <sys/stat.h>
#include <tuple>

class PictureObjectTest : public ObjectTest {
protected:
    // 11 by 4 pixels of red with a hole of pure green and an edge of it at the right.
    PictureObjectTest()
    {
        BmpFile file(11, 4);
        file.palette[0] = 0xF80000;
        file.palette[1] = 0x00FF00;
        for (const auto& [x, y] : { vec(8, 1), { 10, 0 }, { 10, 1 }, { 10, 2 }, { 10, 3 } })
            file.At(x, y) = 1;
        file.Write("logo.bmp");
    }

    static constexpr uint16_t red = 0x7C00;
    PictureObject picture;
};

TEST_F(PictureObjectTest, TakesPureGreenAsTransparentUnlessThereIsACompanion)
{
    ASSERT_EQ(mkfifo("logoa.bmp", 0600), 0); // no companion
    ASSERT_TRUE(Load(picture, "logo.bmp"));
    EXPECT_TRUE(Draw(picture));
    EXPECT_EQ(Count(red), 39);
    EXPECT_EQ(Drawn(), 39);
    EXPECT_EQ(picture.GetSize(), vec(11, 4)); // not trimmed
    EXPECT_FALSE(picture.PixelHit({ 8, 1 }));
    std::filesystem::rename("logo.bmp", "logo.bmp.bmp");
    BmpFile alphas(11, 4, 247);
    std::fill_n(alphas.indices.begin(), 11, uint8_t { 0 });
    alphas.Write("logoa.bmp.bmp");
    ASSERT_TRUE(Load(picture, "logo.bmp.bmp"));
    EXPECT_TRUE(Draw(picture));
    EXPECT_EQ(Drawn(), 33);
    EXPECT_EQ(picture.GetSize(), vec(11, 4));
    EXPECT_FALSE(picture.PixelHit({ 0, 1 })); // nearly opaque is not hit
    for (const auto& [alpha, pixels] : { std::pair(7U, 0), { 256U + 7U, 0 }, { 256U + 248U, 33 } }) {
        picture.SetAlpha(alpha);
        EXPECT_TRUE(Draw(picture));
        EXPECT_EQ(Drawn(), pixels) << alpha;
        EXPECT_TRUE(picture.HitTest({ 0, 0 }, {})) << alpha; // seen or not
    }
}

TEST_F(PictureObjectTest, KeepsItsPlaceAloneAfterAFailedLoad)
{
    ASSERT_TRUE(Load(picture, "logo.bmp"));
    picture.SetPos({ 5, 6 });
    EXPECT_FALSE(Load(picture, "logo.BMP")); // refused: nothing changes
    EXPECT_TRUE(picture.PixelHit({ 5, 6 }));
    EXPECT_FALSE(Load(picture, "missing.bmp"));
    EXPECT_EQ(picture.GetPos(), vec(5, 6));
    EXPECT_FALSE(Draw(picture));
    EXPECT_FALSE(picture.HitTest({ 5, 6 }, { 800, 600 }));
    EXPECT_FALSE(picture.PixelHit({ 5, 6 }));
}

TEST_F(PictureObjectTest, IsHitOnePixelBeyondItsViewButByPixelOnlyWithin)
{
    ASSERT_TRUE(Load(picture, "logo.bmp"));
    picture.SetPos({ -5, 3 });
    picture.SetSrc({ 1, 1 });
    picture.SetView({ 9, 2 });
    const std::tuple<vec, bool, bool> cases[] = { { { 0, 3 }, true, true }, { { -1, 3 }, false, false },
        { { 2, 3 }, true, false }, { { 3, 4 }, true, true }, { { 4, 4 }, true, false }, { { 5, 3 }, false, false },
        { { 1, 5 }, true, false }, { { 1, 6 }, false, false }, { { 0, 2 }, false, false } };
    for (const auto& [point, hit, pixelHit] : cases) {
        EXPECT_EQ(picture.HitTest(point, { 11, 4 }), hit) << point;
        EXPECT_EQ(picture.PixelHit(point), pixelHit) << point;
    }
    picture.SetBoundaryCheck(true);
    EXPECT_TRUE(picture.HitTest({ 6, 7 }, { 11, 5 })); // in the whole picture again
    picture.SetView({ 9, 2 });
    EXPECT_FALSE(picture.HitTest({ 0, 3 }, { 11, 4 })); // fills the screen, whatever is in view
    EXPECT_TRUE(picture.HitTest({ 0, 3 }, { 9, 2 }));
    picture.SetPos({ 0, -2 });
    EXPECT_FALSE(picture.PixelHit({ 0, -1 }));
    picture.SetView({ 5, 4 });
    EXPECT_TRUE(picture.PixelHit({ 4, 0 }));
    EXPECT_FALSE(picture.PixelHit({ 5, 0 }));
}

TEST_F(PictureObjectTest, IsCutToPictureAndCanvasWhateverItsFieldsSay)
{
    ASSERT_TRUE(Load(picture, "logo.bmp"));
    const std::tuple<vec, vec, vec, int> cases[] = { { { 796, 598 }, { 0, 2 }, { 11, 4 }, 4 * 2 },
        { { -4, -1 }, { 0, 0 }, { 11, 3 }, 7 * 2 - 3 }, { { 10, 10 }, { -2, -3 }, { 5, 4 }, 3 * 1 },
        { { 1 - INT32_MAX, 0 }, { 2 - INT32_MAX, 0 }, vec(INT32_MAX), 1 * 4 },
        { vec(INT32_MIN), vec(INT32_MIN), vec(INT32_MAX), 0 }, { { 0, 0 }, { 0, 0 }, { 5, INT32_MIN }, 0 } };
    for (const auto& [pos, src, view, pixels] : cases) {
        picture.SetPos(pos);
        picture.SetSrc(src);
        picture.SetView(view);
        EXPECT_TRUE(Draw(picture));
        EXPECT_EQ(Count(red), pixels) << pos;
        EXPECT_FALSE(picture.PixelHit({ INT32_MAX, 0 })) << pos; // neither in the picture nor in its mask
    }
}
