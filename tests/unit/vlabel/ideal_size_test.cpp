// SetIdealSize, GetProperty and Test. The caption "aaaa" ends at X = 400 and Y = 240; a pixel is 15
// twips.
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/placed_label.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class IdealSize : public ::testing::Test {
 protected:
    IdealSize() { label_.Placed().StartNew(); }

    LabelScene Scene(float width, float height) {
        LabelScene scene;
        scene.caption = u"aaaa";
        scene.width = width;
        scene.height = height;
        return scene;
    }

    /// Returns the size of a label of `scene` after SetIdealSize, as "width x height".
    std::string Fitted(const LabelScene& scene) {
        label_.SetUp(scene);
        label_->SetIdealSize();
        return Size();
    }
    std::string Size() {
        return ToLine(label_.Surface().CurrentWidth()) + " x " +
               ToLine(label_.Surface().CurrentHeight());
    }
    /// Whether `action` resizes the control, even to its present size.
    template <typename Action>
    bool Resizes(Action&& action) {
        return label_.Uses(u"Surface.Size", 1, action);
    }

    PlacedLabel label_;
};

TEST_F(IdealSize, WidthIsLeftAloneFromOneToTwoPixelsAboveTheContent) {
    EXPECT_EQ(Fitted(Scene(0, 260)), "416.5 x 260");
    EXPECT_EQ(Fitted(Scene(400, 260)), "416.5 x 260");
    EXPECT_EQ(Fitted(Scene(414.5F, 260)), "416.5 x 260");
    EXPECT_EQ(Fitted(Scene(415, 260)), "415 x 260");
    EXPECT_EQ(Fitted(Scene(430, 260)), "430 x 260");
    EXPECT_EQ(Fitted(Scene(430.5F, 260)), "428.5 x 260");
    EXPECT_EQ(Fitted(Scene(3000, 260)), "428.5 x 260");
}

TEST_F(IdealSize, HeightIsLeftAloneFromOneToTwoPixelsAboveTheContent) {
    EXPECT_EQ(Fitted(Scene(420, 0)), "420 x 256.5");
    EXPECT_EQ(Fitted(Scene(420, 254.5F)), "420 x 256.5");
    EXPECT_EQ(Fitted(Scene(420, 255)), "420 x 255");
    EXPECT_EQ(Fitted(Scene(420, 270)), "420 x 270");
    EXPECT_EQ(Fitted(Scene(420, 270.5F)), "420 x 268.5");
    EXPECT_EQ(Fitted(Scene(420, 5000)), "420 x 268.5");
}

TEST_F(IdealSize, OneAndAHalfPixelsWiderIsKeptAndThreeShrinkTo1Point9) {
    EXPECT_EQ(Fitted(Scene(422.5F, 260)), "422.5 x 260");
    EXPECT_FALSE(Resizes([&] { Fitted(Scene(422.5F, 260)); }));
    EXPECT_EQ(Fitted(Scene(445, 260)), "428.5 x 260");
}

TEST_F(IdealSize, TwiceInARowResizesAtMostOnce) {
    for (const LabelScene& scene :
         {Scene(0, 0), Scene(3000, 3000), Scene(0, 3000), Scene(420, 0)}) {
        Fitted(scene);
        const std::string size = Size();
        EXPECT_FALSE(Resizes([&] { label_->SetIdealSize(); }));
        EXPECT_EQ(Size(), size);
    }
}

TEST_F(IdealSize, WithWordWrapItNeitherDrawsNorResizes) {
    LabelScene scene = Scene(3000, 3000);
    scene.wordWrap = true;
    label_.SetUp(scene);
    const std::int64_t calls = label_.Faults().Calls();
    label_->SetIdealSize();
    EXPECT_EQ(label_.Faults().Calls(), calls);
    EXPECT_EQ(Size(), "3000 x 3000");
}

TEST_F(IdealSize, CountsTheIndentAndTheLastSpacing) {
    LabelScene scene = Scene(0, 0);
    scene.caption = u"aaaa|before:100|";
    scene.bulletIndent = 200;
    EXPECT_EQ(Fitted(scene), "616.5 x 356.5");
}

TEST_F(IdealSize, DrawsAnewSoThatTheExtentIsCurrent) {
    Fitted(Scene(3000, 1500));
    label_->pLetCaption(u"aa");
    label_->SetIdealSize();
    EXPECT_EQ(Size(), "228.5 x 268.5");
}

TEST_F(IdealSize, SumsBeyond16BitsAreReportedAndNothingResized) {
    LabelScene scene = Scene(0, 0);
    scene.caption = u"|before:32497|aaaa";  // 32737: two pixels more are 32767
    EXPECT_EQ(Fitted(scene), "416.5 x 32753.5");
    EXPECT_THAT(label_.TakeLog(), IsEmpty());

    scene.caption = u"|before:32498|aaaa";  // two pixels more are too much
    EXPECT_EQ(Fitted(scene), "0 x 0");
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 6 in SetIdealSize"));

    scene.caption = u"|before:32513|aaaa";  // here one pixel more is too much
    EXPECT_EQ(Fitted(scene), "0 x 0");
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 6 in SetIdealSize"));
}

TEST_F(IdealSize, ResizingRedrawsASurfaceThatKeepsItsPicture) {
    for (const bool keeps : {false, true}) {
        label_.SetUp(Scene(3000, 1500));
        label_.Surface().SetAutoRedraw(keeps);
        EXPECT_EQ(label_.Uses(u"Surface.Cls", 2, [&] { label_->SetIdealSize(); }), keeps);
    }
}

// ---- GetProperty

class GetProperty : public IdealSize {};

TEST_F(GetProperty, GivesWidthAndHeightInAnyCase) {
    label_.SetUp(Scene(422.5F, 260));
    EXPECT_EQ(label_->GetProperty(u"WIDTH"), Value(422.5F));
    EXPECT_EQ(label_->GetProperty(u"width"), Value(422.5F));
    EXPECT_EQ(label_->GetProperty(u"Height"), Value(260.0F));
}

TEST_F(GetProperty, IsEmptyForOtherNames) {
    EXPECT_EQ(label_->GetProperty(u"left"), Value(Empty()));
    EXPECT_EQ(label_->GetProperty(u""), Value(Empty()));
    EXPECT_EQ(label_->GetProperty(u"width "), Value(Empty()));
}

TEST_F(GetProperty, IsEmptyAfterAnError) {
    label_.Faults().FailCall(u"Surface.Width", 1, ErrorNumber::InternalError);
    EXPECT_EQ(label_->GetProperty(u"width"), Value(Empty()));
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 51 in GetProperty"));
}

// ---- Test

TEST_F(IdealSize, TestAssignsTheCaption) {
    label_.SetUp(Scene(3000, 1500));
    label_.Paint();
    label_->Test(u"bb");
    EXPECT_EQ(label_->pGetCaption(), u"bb");
    EXPECT_THAT(label_.TakeLog(), ElementsAre("changed Caption"));
    EXPECT_EQ(ToLines(label_.Picture()).substr(0, 27), "Cls\nPrint (0, 0) \"bb\" 10 0x");
}

}  // namespace

}  // namespace lumenkit::testing
