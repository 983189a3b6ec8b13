// Repainting a caption allocates nothing.
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/allocation_counter.h"
#include "tests/support/placed_label.h"

namespace lumenkit::testing {

namespace {

using ::testing::StartsWith;

LabelScene MixedScene() {
    LabelScene scene;
    scene.caption =
        u"|B:1|A title that is long enough to be wrapped more than once|B:0||CR||before:60|* one "
        u"|fore:0,128,0|green|CR||size:14||i:1|* two three four five |font:x|six|CR|a| lone bar";
    scene.bulletPrefix = u"* ";
    scene.bulletIndent = 300;
    scene.wordWrap = true;
    scene.width = 2000;
    return scene;
}

TEST(DrawingAllocations, RepaintAllocatesNothing) {
    for (const bool wrap : {false, true}) {
        PlacedLabel label;
        label.Placed().StartNew();
        LabelScene scene = MixedScene();
        scene.wordWrap = wrap;
        Draw(label, scene);
        const std::int64_t before = AllocationCount();
        label.Placed().Paint();
        EXPECT_EQ(AllocationCount(), before);
        EXPECT_GT(label.Picture().items.size(), 10U);
        EXPECT_GT(AllocationCount(), before);  // Picture copies the items: the counter works
    }
}

TEST(DrawingAllocations, RepaintAfterShorterCaptionsAllocatesNothing) {
    PlacedLabel label;
    label.Placed().StartNew();
    Draw(label, MixedScene());
    LabelScene shorter = MixedScene();
    shorter.caption = u"short";
    Draw(label, shorter);
    Draw(label, MixedScene());
    const std::int64_t before = AllocationCount();
    label.Placed().Paint();
    EXPECT_EQ(AllocationCount(), before);
}

// Whichever allocation fails, the failure is reported to the user and the label keeps its font.
TEST(DrawingAllocations, OutOfMemoryIsReportedAndNothingEscapes) {
    const LabelScene scene = MixedScene();
    PlacedLabel undisturbed;
    undisturbed.Placed().StartNew();
    const LabelPicture whole = Draw(undisturbed, scene);
    std::int64_t failed = 0;
    for (bool pending = false; !pending; ++failed) {
        PlacedLabel label;
        label.Placed().StartNew();
        label.SetUp(scene);
        label.Placed().SetShown(true);
        FailAllocation(failed + 1);
        label.Placed().Paint();
        pending = AllocationFailurePending();
        FailAllocation(0);
        const LabelPicture disturbed = label.Picture();
        EXPECT_EQ(disturbed.font, scene.font);
        EXPECT_EQ(disturbed.foreColor, scene.foreColor);
        if (pending) {
            EXPECT_EQ(disturbed, whole);
        } else {
            // A line or a command that was not stored may cause further errors.
            EXPECT_GE(disturbed.reports.size(), 1U);
            EXPECT_THAT(disturbed.reports.at(0), StartsWith("error 7 in "));
        }
        label->pLetCaption(scene.caption);
        label.TakeLog();
        label.Placed().Paint();
        EXPECT_EQ(label.Picture(), whole);
    }
    EXPECT_GT(failed, 10);
}

}  // namespace

}  // namespace lumenkit::testing
