// Compares each golden drawing with the label and, separately, with the literal model.
#include "tests/golden/golden_drawing.h"

#include <string>

#include <gmock/gmock.h>

#include "tests/model/literal_caption_drawing.h"
#include "tests/support/file_bytes.h"
#include "tests/support/placed_label.h"

namespace lumenkit::testing {

namespace {

class GoldenDrawings : public ::testing::TestWithParam<std::filesystem::path> {};

TEST_P(GoldenDrawings, LabelDrawsIt) {
    const GoldenDrawing golden = ReadGolden(GetParam());
    PlacedLabel label;
    label.Placed().StartNew();
    EXPECT_EQ(ToLines(Draw(label, golden.scene)), golden.drawing)
        << "\"make golden\" writes it anew.";
}

TEST_P(GoldenDrawings, ModelAgrees) {
    const GoldenDrawing golden = ReadGolden(GetParam());
    LiteralLabel model;
    model.SetUp(golden.scene);
    model.DisplayCaption();
    EXPECT_EQ(ToLines(model.Picture()), golden.drawing);
}

TEST_P(GoldenDrawings, IsWrittenAsItIsRead) {
    EXPECT_EQ(ToText(ReadGolden(GetParam())), FileBytes(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, GoldenDrawings, ::testing::ValuesIn(GoldenFiles()),
                         [](const auto& golden) { return golden.param.stem().string(); });

TEST(GoldenFolder, HoldsThemAll) {
    EXPECT_GE(GoldenFiles().size(), 40U);
}

}  // namespace

}  // namespace lumenkit::testing
