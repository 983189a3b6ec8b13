#include "apps/lumenkit/svg/drawn_caption.h"

#include <algorithm>
#include <cmath>

#include "apps/lumenkit/svg/svg_document.h"
#include "frame/runtime_error.h"
#include "runtime/memory/font.h"
#include "runtime/memory/metrics.h"
#include "vlabel/spoken_caption.h"

namespace lumenkit::svg {

namespace {

// What a label that grows to its caption adds to it, in pixels.
constexpr double margin = 1.1;

double Fitting(double content) {
    const double pixels = std::ceil(content / memory::twipsPerPixel + margin);
    return std::max(pixels, 1.0) * memory::twipsPerPixel;
}

CaptionSettings SettingsOf(TextView caption, const LabelLook& look) {
    return {.Caption = Text(caption),
            .BulletPrefix = look.bulletPrefix,
            .BulletIndent = look.bulletIndent,
            .WordWrap = look.width.has_value(),
            .IsCompiled = false,
            .TwipsPerPixelX = memory::twipsPerPixel,
            .TwipsPerPixelY = memory::twipsPerPixel};
}

std::shared_ptr<memory::Font> FontOf(const std::shared_ptr<memory::FaultPlan>& faults,
                                     const LabelLook& look) {
    auto font = std::make_shared<memory::Font>(faults, look.fontName, look.fontSize);
    font->SetBold(look.bold);
    font->SetItalic(look.italic);
    font->SetUnderline(look.underline);
    font->SetStrikethrough(look.strikethrough);
    return font;
}

}  // namespace

bool IsFontSize(float points) {
    try {
        const memory::Font font(std::make_shared<memory::FaultPlan>(), u"", points);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

DrawnCaption::DrawnCaption(ModuleErrors& errors, TextView caption, const LabelLook& look)
    : look_(look),
      settings_(SettingsOf(caption, look)),
      surface_(faults_, look.width.value_or(0), 0),
      module_(errors, u"VLABEL"),
      renderer_(module_, surface_, settings_) {
    surface_.SetCurrentFont(FontOf(faults_, look));
    surface_.SetForeColor(look.foreColor);
    renderer_.DisplayCaption();
}

double DrawnCaption::Width() const {
    return look_.width ? *look_.width : Fitting(renderer_.Drawing().MaxLineX);
}

// The pen ends below the last line, also where that exceeds the range of IdealHeight.
double DrawnCaption::Height() const {
    return Fitting(surface_.CurrentY());
}

std::string DrawnCaption::ToSvg() const {
    const Text plainText = SpokenCaption(settings_.Caption, settings_.BulletPrefix);
    return svg::ToSvg(Drawn(), {.width = Width(),
                                .height = Height(),
                                .backColor = look_.backColor,
                                .fontName = look_.fontName,
                                .fontSize = look_.fontSize,
                                .foreColor = look_.foreColor,
                                .plainText = plainText});
}

}  // namespace lumenkit::svg
