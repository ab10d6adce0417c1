#include "objects/AnimationObject.h"
#include "objects/ScreenDocument.h"
#include "platform/headless/HeadlessDesktop.h"
#include "tests/objects/FakePicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

const ScreenObject* Add(ScreenDocument& document, vec pos, vec size, FakePicture::Log* log = nullptr)
{
    document.AddPicture(std::make_unique<FakePicture>(pos, size, log));
    return document.GetObjects().back().get();
}

TEST(ScreenDocument, KeepsLayersInOrderThroughAnyEditing)
{
    std::mt19937 random(1);
    ScreenDocument document;
    std::vector<const ScreenObject*> list, stack; // by index and by layer
    for (int32_t step = 0; step < 2000; ++step) {
        const auto index = static_cast<int32_t>(random() % 8);
        const bool known = index < static_cast<int32_t>(list.size());
        const auto place = known ? std::find(stack.begin(), stack.end(), list.begin()[index]) : stack.end();
        const bool down = random() % 2 == 0;
        const auto action = random() % 100;
        if (action == 0) {
            document.Clear();
            list.clear();
            stack.clear();
        } else if (action < 35) {
            list.push_back(Add(document, { 0, 0 }, { 10, 10 }));
            stack.push_back(list.back());
        } else if (action < 70) {
            const bool moves = known && place != (down ? stack.begin() : stack.end() - 1);
            ASSERT_EQ(document.MoveLayer(index, down), moves);
            if (moves)
                std::iter_swap(place, down ? place - 1 : place + 1);
        } else {
            ASSERT_EQ(document.RemoveObject(index), known);
            if (known) {
                stack.erase(place);
                list.erase(list.begin() + index);
            }
        }
        ASSERT_EQ(document.GetLayerCount(), document.GetObjectCount());
        ASSERT_TRUE(std::equal(list.begin(), list.end(), document.GetObjects().begin(), document.GetObjects().end(),
            [](const ScreenObject* wanted, const auto& object) { return wanted == object.get(); }));
        for (size_t layer = 0; layer < stack.size(); ++layer)
            ASSERT_EQ(stack[layer]->GetLayer(), static_cast<int32_t>(layer));
    }
}

TEST(ScreenDocument, FindsTheTopmostObjectAndSelectsWhatHasACornerAndItsCentreStrictlyInside)
{
    ScreenDocument document;
    Add(document, { 0, 0 }, { 50, 50 });
    Add(document, { 40, 40 }, { 50, 50 });
    int32_t index = 7;
    EXPECT_TRUE(document.FindObjectAt({ 50, 50 }, index) && index == 1);
    EXPECT_TRUE(document.FindObjectAt({ 39, 50 }, index) && index == 0);
    EXPECT_FALSE(document.FindObjectAt({ 91, 50 }, index));
    EXPECT_EQ(index, -1);

    EXPECT_TRUE(document.IsObjectInRect(1, { 64, 64 }, { 91, 91 }));
    EXPECT_FALSE(document.IsObjectInRect(1, { 65, 65 }, { 91, 91 })); // the centre is on the edge
    EXPECT_FALSE(document.IsObjectInRect(1, { 41, 41 }, { 89, 89 })); // no corner
}

TEST(ScreenDocument, RendersBackgroundsFirstThenEveryLayerFittedByItsRule)
{
    platform::HeadlessDesktop desktop;
    FakePicture::Log log;
    ScreenDocument document;
    Add(document, { -5, 1 }, { 50, 50 }, &log);
    Add(document, { -5, 2 }, { 50, 50 }, &log);
    document.GetObjects()[1]->SetBoundaryCheck(true);
    document.MoveLayer(0, false);
    document.AddAnimation(std::make_unique<AnimationObject>());
    ScreenObject& animation = *document.GetObjects().back();
    animation.SetBoundaryCheck(true);
    animation.SetPos({ -5, 3 });
    document.AddBackground(std::make_unique<FakePicture>(vec(0, 0), vec(900, 700), &log));

    document.Render();
    ASSERT_EQ(log.size(), 3U);
    EXPECT_EQ(log[0].GetView(), vec(800, 600));
    EXPECT_TRUE(log[1].GetPos() == vec(0, 2) && log[1].GetView() == vec(50, 50));
    EXPECT_TRUE(log[2].GetPos() == vec(0, 1) && log[2].GetSrc() == vec(5, 0) && log[2].GetView() == vec(45, 50));
    EXPECT_EQ(animation.GetSrc(), vec(5, 0)); // cropped whatever its boundaryCheck says

    animation.SetLayer(9); // leaves layer 2 without object: drawing goes on, the search from the top ends there
    document.Render();
    EXPECT_EQ(log.size(), 6U);
    ASSERT_EQ(desktop.DebugMessages().size(), 1U);
    EXPECT_EQ(desktop.DebugMessages()[0].bytes, " Layer 2 is no object\n");
    ScreenObject* object = nullptr;
    EXPECT_FALSE(document.GetObjectAt(object, { 10, 10 }));
}

} // namespace
