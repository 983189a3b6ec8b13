#include "widgets/core/conversions.h"

#include <QFontInfo>
#include <algorithm>
#include <cstdint>

#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::widgets {

namespace {

constexpr double twipsPerPoint = 20;

double PointsOf(const QFont& font) {
    if (font.pointSizeF() > 0) {
        return font.pointSizeF();
    }
    return font.pixelSize() * qt::TwipsPerPixel::OfScreens().y / twipsPerPoint;
}

}  // namespace

Color ToColor(const QColor& color) {
    return Rgb(static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
               static_cast<std::uint8_t>(color.blue()));
}

std::shared_ptr<qt::Font> ToFontObject(const QFont& font) {
    constexpr double smallest = 0.1;
    constexpr double largest = 2160;
    const double points = std::clamp(PointsOf(font), smallest, largest);
    auto object = std::make_shared<qt::Font>(qt::ViewOf(font.family()), static_cast<float>(points));
    object->SetWeight(static_cast<std::int16_t>(font.weight()));
    object->SetItalic(font.italic());
    object->SetUnderline(font.underline());
    object->SetStrikethrough(font.strikeOut());
    return object;
}

QFont ToWidgetFont(const host::Font& font, const QFont& model) {
    constexpr int heaviest = 1000;
    QFont result = model;
    result.setFamily(qt::ToQString(font.Name()));
    result.setPointSizeF(static_cast<double>(font.Size()));
    result.setWeight(static_cast<QFont::Weight>(std::clamp<int>(font.Weight(), 1, heaviest)));
    result.setItalic(font.Italic());
    result.setUnderline(font.Underline());
    result.setStrikeOut(font.Strikethrough());
    return result;
}

}  // namespace lumenkit::widgets
