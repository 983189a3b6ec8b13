#include "tests/model/drawing_comparison.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <variant>

#include "frame/utf8.h"
#include "tests/model/caption_comparison.h"
#include "tests/model/input_bytes.h"

namespace lumenkit::testing {

namespace {

std::string Describe(const LabelScene& scene) {
    return "caption \"" + ToUtf8(scene.caption) + "\", prefix \"" + ToUtf8(scene.bulletPrefix) +
           "\", indent " + std::to_string(scene.bulletIndent) + ", wrap " +
           std::to_string(scene.wordWrap) + ", width " + ToLine(scene.width) + ", height " +
           ToLine(scene.height) + ", font " + ToLine(scene.font) + ", visible to " +
           ToLine(scene.visibleBottom) + "\n";
}

// Removes the texts that begin below the visible area.
LabelPicture Visible(LabelPicture picture, float visibleBottom) {
    std::erase_if(picture.items, [&](const PictureItem& item) {
        const auto* print = std::get_if<PrintedText>(&item);
        return print != nullptr && print->y >= visibleBottom;
    });
    return picture;
}

std::string PictureDifference(const LabelPicture& drawn, const LabelPicture& expected) {
    return drawn == expected ? "" : "drawn:\n" + ToLines(drawn) + "model:\n" + ToLines(expected);
}

}  // namespace

std::string DrawingComparison::Difference(LabelScene scene) {
    model_.SetUp(scene);
    model_.DisplayCaption();
    const LabelPicture expected = model_.Picture();
    std::string difference =
        PictureDifference(Draw(label_, scene), Visible(expected, scene.visibleBottom));

    scene.visibleBottom = std::numeric_limits<float>::infinity();
    difference += PictureDifference(Draw(label_, scene), expected) + SizeDifference();
    return difference.empty() ? difference : Describe(scene) + difference;
}

std::string DrawingComparison::SizeDifference() {
    model_.SetIdealSize();
    label_->SetIdealSize();
    const bool same = label_.Surface().CurrentWidth() == model_.Width() &&
                      label_.Surface().CurrentHeight() == model_.Height() &&
                      label_.TakeLog() == model_.Picture().reports;
    return same ? ""
                : "the ideal size is " + ToLine(label_.Surface().CurrentWidth()) + " x " +
                      ToLine(label_.Surface().CurrentHeight()) + ", the model's " +
                      ToLine(model_.Width()) + " x " + ToLine(model_.Height()) + "\n";
}

LabelScene SceneFromBytes(std::string_view bytes) {
    constexpr float largestSize = 2160;
    InputBytes input(bytes);
    LabelScene scene;
    const std::uint8_t flags = input.Byte();
    scene.wordWrap = (flags & 1U) != 0;
    scene.font.bold = (flags & 2U) != 0;
    scene.font.italic = (flags & 4U) != 0;
    scene.font.underline = (flags & 8U) != 0;
    const bool seesAll = (flags & 16U) != 0;
    scene.bulletIndent = input.Integer();
    scene.width = static_cast<float>(input.Word()) / 2;
    scene.height = static_cast<float>(input.Word()) / 2;
    scene.font.size = std::min(static_cast<float>(1 + input.Word()) / 4, largestSize);
    scene.foreColor = Rgb(input.Byte(), input.Byte(), 0);
    const auto bottom = static_cast<float>(input.Integer());
    scene.visibleBottom = seesAll ? std::numeric_limits<float>::infinity() : bottom;
    scene.bulletPrefix = CaptionFromBytes(input.Line());
    scene.caption = CaptionFromBytes(input.Rest());
    return scene;
}

}  // namespace lumenkit::testing
