#include "apps/lumenform/form_view/stroke.h"

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstddef>

#include "runtime/qt/palette_color.h"

namespace lumenkit::lumenform {

namespace {

Qt::PenStyle PenStyleOf(const Stroke& stroke) {
    constexpr std::array<Qt::PenStyle, Stroke::InsideSolid + 1> styles = {
        Qt::NoPen,       Qt::SolidLine,      Qt::DashLine, Qt::DotLine,
        Qt::DashDotLine, Qt::DashDotDotLine, Qt::SolidLine};
    const bool isWhole = stroke.width > 1 && stroke.style != Stroke::Transparent;
    return isWhole ? Qt::SolidLine : styles[static_cast<std::size_t>(stroke.style)];
}

}  // namespace

Stroke Stroke::Of(const BlockReader& reader) {
    constexpr std::int32_t widest = 1000;
    Stroke stroke;
    stroke.color = reader.ColorOf(u"BorderColor", stroke.color);
    stroke.style = static_cast<Style>(reader.Choice(u"BorderStyle", InsideSolid + 1, stroke.style));
    stroke.width = std::clamp(reader.Whole(u"BorderWidth", stroke.width), 1, widest);
    return stroke;
}

QPen Stroke::Pen() const {
    return {qt::ToQColor(color, QApplication::palette()), static_cast<qreal>(width),
            PenStyleOf(*this), Qt::FlatCap, Qt::MiterJoin};
}

int Stroke::Reach() const {
    return style == Transparent || style == InsideSolid ? 0 : width / 2;
}

}  // namespace lumenkit::lumenform
