// Compares the label with the literal model of its drawing on generated captions and settings.
#include <array>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "tests/model/drawing_comparison.h"
#include "tests/model/label_scene_generator.h"
#include "tests/support/corpus.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {

namespace {

constexpr int sceneCount = 100'000;
constexpr int longSceneCount = 200;

// All branches of the model. If the generator stops producing one, the test fails.
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

TEST(CaptionDrawingModel, AgreesOnGeneratedScenes) {
    LabelSceneGenerator generator(TestSeed());
    DrawingComparison comparison;
    for (int i = 0; i < Rounds(sceneCount); ++i) {
        ASSERT_EQ(comparison.Difference(generator.Scene()), "");
    }
    for (int i = 0; i < Rounds(longSceneCount); ++i) {
        ASSERT_EQ(comparison.Difference(generator.LongScene()), "");
    }
    std::vector<std::string_view> taken;
    for (const auto& [branch, count] : comparison.Branches()) {
        taken.push_back(branch);
    }
    if (RunsAllRounds()) {
        EXPECT_THAT(taken, ::testing::ElementsAreArray(everyBranch));
    }
}

// The corpus holds the seeds and the findings of the fuzzers.
TEST(CaptionDrawingModel, AgreesOnTheCorpus) {
    DrawingComparison comparison;
    ForEachCorpusFile("drawing", [&](std::string_view bytes) {
        EXPECT_EQ(comparison.Difference(SceneFromBytes(bytes)), "");
    });
}

// Runs that need about a thousand wrapping steps, at the start of a line and after other text.
// After other text, one of the steps starts a new line.
TEST(CaptionDrawingModel, AgreesWhereWrappingGivesUp) {
    DrawingComparison comparison;
    for (const TextView before : {u"", u"x|I:1|", u"xxxxxxxxxxxxxxx|I:1|"}) {
        for (int words = 990; words <= 1010; ++words) {
            LabelScene scene{.caption = Text(before), .bulletPrefix = {}, .font = {}};
            for (int word = 0; word < words; ++word) {
                scene.caption += u"a ";
            }
            scene.caption += u"b|I:0|c";
            scene.wordWrap = true;
            scene.width = 150;
            ASSERT_EQ(comparison.Difference(scene), "") << words << " words";
        }
    }
    const std::array branches = {"wrap: gives up", "wrap: starts a new line", "wrap: rest fits"};
    for (const std::string_view branch : branches) {
        EXPECT_TRUE(comparison.Branches().contains(branch)) << branch;
    }
}

}  // namespace

}  // namespace lumenkit::testing
