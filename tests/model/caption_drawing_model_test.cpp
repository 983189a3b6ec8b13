// The label against the literal model of its drawing, on generated captions and settings.
#include <limits>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/model/label_scene_generator.h"
#include "tests/model/literal_caption_drawing.h"
#include "tests/support/placed_label.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {

namespace {

constexpr int sceneCount = 100'000;
constexpr int longSceneCount = 200;

// Every branch of the model, so that the generator cannot lose what it is for.
constexpr std::string_view everyBranch[] = {
    "an error is reported",
    "before",
    "before is negative",
    "bold off",
    "bold on",
    "bullet",
    "bullet of R <= 2",
    "bullet of R <= 255",
    "bullet of R <= 3",
    "bullet of R <= 4",
    "bullet of R <= 5",
    "bullet of R <= 6",
    "bullet of R <= 7",
    "bullet of R > 255",
    "bullet, commands before it",
    "color",
    "compiling reports",
    "ideal size: higher",
    "ideal size: kept",
    "ideal size: lower",
    "ideal size: narrower",
    "ideal size: wider",
    "italic off",
    "italic on",
    "no wrap",
    "prefix not at the line start",
    "size does not lower the line",
    "size is ignored",
    "size raises the line",
    "the drawing's own error",
    "unknown command",
    "wrap: a blank in the first place is no break",
    "wrap: blank run",
    "wrap: breaks",
    "wrap: empty run",
    "wrap: empty run starts a new line",
    "wrap: gives up",
    "wrap: looks for an earlier blank",
    "wrap: rest fits",
    "wrap: rest fits just",
    "wrap: starts a new line",
    "wrap: the limit becomes 0",
    "wrap: the limit survives a break",
    "wrap: too wide, printed whole",
};

std::string Describe(const LabelScene& scene) {
    return "caption \"" + ToUtf8(scene.caption) + "\", prefix \"" + ToUtf8(scene.bulletPrefix) +
           "\", indent " + std::to_string(scene.bulletIndent) + ", wrap " +
           std::to_string(scene.wordWrap) + ", width " + ToLine(scene.width) + ", height " +
           ToLine(scene.height) + ", font " + ToLine(scene.font) + ", visible to " +
           ToLine(scene.visibleBottom);
}

// The picture without what begins where nothing can be seen.
LabelPicture Visible(LabelPicture picture, float visibleBottom) {
    std::erase_if(picture.items, [&](const PictureItem& item) {
        const auto* print = std::get_if<PrintedText>(&item);
        return print != nullptr && print->y >= visibleBottom;
    });
    return picture;
}

class CaptionDrawingModel : public ::testing::Test {
 protected:
    CaptionDrawingModel() { label_.Placed().StartNew(); }

    void Compare(LabelScene scene) {
        SCOPED_TRACE(Describe(scene));
        const float visibleBottom = scene.visibleBottom;
        model_.SetUp(scene);
        model_.DisplayCaption();
        const LabelPicture expected = model_.Picture();
        ExpectSame(Draw(label_, scene), Visible(expected, visibleBottom));

        scene.visibleBottom = std::numeric_limits<float>::infinity();
        ExpectSame(Draw(label_, scene), expected);

        model_.SetIdealSize();
        label_->SetIdealSize();
        EXPECT_EQ(label_.Surface().CurrentWidth(), model_.Width());
        EXPECT_EQ(label_.Surface().CurrentHeight(), model_.Height());
        EXPECT_EQ(label_.TakeLog(), model_.Picture().reports);
    }

    static void ExpectSame(const LabelPicture& drawn, const LabelPicture& expected) {
        if (drawn != expected) {
            ADD_FAILURE() << "drawn:\n" << ToLines(drawn) << "model:\n" << ToLines(expected);
        }
    }

    LabelSceneGenerator generator_{TestSeed()};
    PlacedLabel label_;
    LiteralLabel model_;
};

TEST_F(CaptionDrawingModel, AgreesOnGeneratedScenes) {
    for (int i = 0; i < sceneCount && !HasFailure(); ++i) {
        Compare(generator_.Scene());
    }
    for (int i = 0; i < longSceneCount && !HasFailure(); ++i) {
        Compare(generator_.LongScene());
    }
    std::vector<std::string_view> taken;
    for (const auto& [branch, count] : model_.Branches()) {
        taken.push_back(branch);
    }
    EXPECT_THAT(taken, ::testing::ElementsAreArray(everyBranch));
}

}  // namespace

}  // namespace lumenkit::testing
