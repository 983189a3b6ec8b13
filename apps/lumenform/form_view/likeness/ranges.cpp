#include "apps/lumenform/form_view/likeness/ranges.h"

#include <QProgressBar>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <array>
#include <utility>

#include "apps/lumenform/form_view/likeness/painted.h"
#include "apps/lumenform/form_view/likeness/still.h"

namespace lumenkit::lumenform {

namespace {

constexpr int steps = 1000;  // of a likeness's range, whatever the range in the file is

struct SavedRange {
    float first = 0;
    float last = 0;
    float value = 0;

    static SavedRange Of(const BlockReader& reader, float usualLast) {
        SavedRange range{reader.Number(u"Min", 0), reader.Number(u"Max", usualLast)};
        range.value = reader.Number(u"Value", range.first);
        return range;
    }
    double Length() const { return double{last} - double{first}; }
    int Step() const {
        const double part = Length() > 0 ? (double{value} - double{first}) / Length() : 0;
        return static_cast<int>(std::clamp(part, 0.0, 1.0) * steps);
    }
};

template <typename Widget>
void SetSteps(Widget& widget, const SavedRange& range) {
    widget.setRange(0, steps);
    widget.setValue(range.Step());
}

int TickStep(const BlockReader& reader, const SavedRange& range) {
    constexpr double closest = 5;
    const double ticks =
        range.Length() > 0 ? reader.Number(u"TickFrequency", 1) / range.Length() : 0;
    return static_cast<int>(std::clamp(ticks * steps, closest, double{steps}));
}

Qt::Orientation OrientationOf(const BlockReader& reader) {
    return reader.Whole(u"Orientation", 0) == 1 ? Qt::Vertical : Qt::Horizontal;
}

void PaintArrowButton(const QWidget& widget, QPainter& painter, const QRect& where,
                      QStyle::PrimitiveElement arrow) {
    QStyleOptionButton bevel;
    bevel.initFrom(&widget);
    bevel.state &= ~QStyle::State_HasFocus;
    bevel.state |= QStyle::State_Raised;
    bevel.rect = where;
    widget.style()->drawControl(QStyle::CE_PushButtonBevel, &bevel, &painter, &widget);
    const int side = std::min({where.width(), where.height(), 12}) - 2;
    bevel.rect = QRect(0, 0, side, side);
    bevel.rect.moveCenter(where.center());
    widget.style()->drawPrimitive(arrow, &bevel, &painter, &widget);
}

}  // namespace

PlainWidget MakeProgressBar(const BlockReader& reader, const PlainSink& /*raise*/) {
    constexpr float usualLast = 100;
    auto bar = std::make_unique<QProgressBar>();
    SetSteps(*bar, SavedRange::Of(reader, usualLast));
    bar->setTextVisible(false);
    bar->setOrientation(OrientationOf(reader));
    return Likeness(reader, std::move(bar));
}

PlainWidget MakeSlider(const BlockReader& reader, const PlainSink& /*raise*/) {
    constexpr float usualLast = 10;
    constexpr std::array sides = {QSlider::TicksBelow, QSlider::TicksAbove, QSlider::TicksBothSides,
                                  QSlider::NoTicks};
    const SavedRange range = SavedRange::Of(reader, usualLast);
    auto slider = std::make_unique<QSlider>(OrientationOf(reader));
    SetSteps(*slider, range);
    slider->setInvertedAppearance(slider->orientation() == Qt::Vertical);
    slider->setTickInterval(TickStep(reader, range));
    slider->setTickPosition(
        sides[static_cast<std::size_t>(reader.Choice(u"TickStyle", int{sides.size()}, 0))]);
    slider->setFocusPolicy(Qt::StrongFocus);
    return Likeness(reader, std::move(slider));
}

PlainWidget MakeUpDown(const BlockReader& reader, const PlainSink& /*raise*/) {
    const bool isAcross = reader.Whole(u"Orientation", 0) == 1;
    const auto paint = [isAcross](const QWidget& widget, QPainter& painter) {
        QRect first = widget.rect();
        QRect second = first;
        if (isAcross) {
            first.setWidth(first.width() / 2);
            second.setLeft(first.right() + 1);
        } else {
            first.setHeight(first.height() / 2);
            second.setTop(first.bottom() + 1);
        }
        PaintArrowButton(widget, painter, first,
                         isAcross ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowUp);
        PaintArrowButton(widget, painter, second,
                         isAcross ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowDown);
    };
    return Likeness(reader, std::make_unique<Painted>(QAccessible::SpinBox, paint));
}

}  // namespace lumenkit::lumenform
