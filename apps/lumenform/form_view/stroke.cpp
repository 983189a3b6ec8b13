#include "apps/lumenform/form_view/stroke.h"

#include <QApplication>
#include <algorithm>

#include "runtime/qt/palette_color.h"

namespace lumenkit::form {

namespace {

Qt::PenStyle PenStyleOf(const Stroke& stroke) {
    if (stroke.style == Stroke::Transparent) {
        return Qt::NoPen;
    }
    if (stroke.width > 1) {
        return Qt::SolidLine;
    }
    switch (stroke.style) {
        case Stroke::Dash:
            return Qt::DashLine;
        case Stroke::Dot:
            return Qt::DotLine;
        case Stroke::DashDot:
            return Qt::DashDotLine;
        case Stroke::DashDotDot:
            return Qt::DashDotDotLine;
        default:
            return Qt::SolidLine;
    }
}

}  // namespace

Stroke Stroke::Of(const BlockReader& reader) {
    constexpr std::int32_t widest = 1000;
    const std::int32_t style = reader.Whole(u"BorderStyle", Solid);
    const bool known = style >= Transparent && style <= InsideSolid;
    return {.color = reader.ColorOf(u"BorderColor", Color::WindowText),
            .style = known ? static_cast<Style>(style) : Solid,
            .width = std::clamp(reader.Whole(u"BorderWidth", 1), 1, widest)};
}

QPen Stroke::Pen() const {
    return {qt::ToQColor(color, QApplication::palette()), static_cast<qreal>(width),
            PenStyleOf(*this), Qt::FlatCap, Qt::MiterJoin};
}

int Stroke::Reach() const {
    return style == Transparent || style == InsideSolid ? 0 : width / 2;
}

}  // namespace lumenkit::form
