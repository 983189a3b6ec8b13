#include "tests/support/placed_label.h"

#include <variant>

#include "tests/support/log_lines.h"
#include "vlabel/vlabel.h"

namespace lumenkit::testing {

namespace {

const ClassTable labelClasses = {.libraryName = u"lumenkit", .classes = {&vlabelClass, 1}};

FontState StateOf(const memory::Font::Attributes& font) {
    return {.name = font.name,
            .size = font.size,
            .bold = font.IsBold(),
            .italic = font.italic,
            .underline = font.underline};
}

PictureItem Copy(memory::ClsItem) {
    return Cleared();
}

PictureItem Copy(const memory::PrintItem& print) {
    return PrintedText{.x = print.x,
                       .y = print.y,
                       .text = Text(print.text),
                       .font = {.name = Text(print.fontName),
                                .size = print.size,
                                .bold = print.bold,
                                .italic = print.italic,
                                .underline = print.underline},
                       .color = print.color};
}

PictureItem Copy(const memory::BoxItem& box) {
    return FilledBox{.x1 = box.x1, .y1 = box.y1, .x2 = box.x2, .y2 = box.y2, .color = box.color};
}

}  // namespace

PlacedLabel::PlacedLabel(const memory::Placing& placing)
    : form_(labelClasses), placed_(form_, vlabelClass, placing) {}

void PlacedLabel::SetUp(const LabelScene& scene) {
    placed_.SetShown(false);
    placed_.Resize(scene.width, scene.height);
    Surface().SetVisibleBottom(scene.visibleBottom);
    const host::FontRef font = Surface().CurrentFont();
    font->SetName(scene.font.name);
    font->SetSize(scene.font.size);
    font->SetBold(scene.font.bold);
    font->SetItalic(scene.font.italic);
    font->SetUnderline(scene.font.underline);
    Label().pLetForeColor(scene.foreColor);
    Label().pLetCaption(scene.caption);
    Label().pLetWordWrap(scene.wordWrap);
    Label().pLetBulletIndent(scene.bulletIndent);
    Label().pLetBulletPrefix(scene.bulletPrefix);
    TakeLog();
}

void PlacedLabel::Paint() {
    placed_.SetShown(true);
    placed_.Paint();
}

LabelPicture PlacedLabel::Picture() {
    LabelPicture picture;
    const memory::DisplayList& drawn = Surface().Drawn();
    for (std::size_t index = 0; index < drawn.Size(); ++index) {
        picture.items.push_back(
            std::visit([](const auto& item) { return Copy(item); }, drawn.At(index)));
    }
    picture.penX = Surface().CurrentX();
    picture.penY = Surface().CurrentY();
    picture.maxLineX = Label().Drawing().MaxLineX;
    picture.idealHeight = Label().Drawing().IdealHeight;
    const auto font = memory::Font::From(Surface().CurrentFont());
    picture.font = StateOf(font->Now());
    picture.foreColor = Surface().ForeColor();
    picture.reports = TakeLog();
    return picture;
}

std::vector<std::string> PlacedLabel::TakeLog() {
    return TakeLogLines(form_.GetLog(), u"VLABEL");
}

LabelPicture Draw(PlacedLabel& label, const LabelScene& scene) {
    label.SetUp(scene);
    label.Paint();
    return label.Picture();
}

}  // namespace lumenkit::testing
