#include "apps/lumenform/design/canvas/ruler.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace lumenkit::lumenform {

namespace {

constexpr int gap = 3;  // pixels between a tick and its label

}  // namespace

Ruler::Ruler(Qt::Orientation way, QWidget* parent) : QWidget(parent), way_(way) {
    constexpr double smaller = 0.85;
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * smaller);
    setFont(small);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

int Ruler::Thickness() const {
    constexpr int room = 6;
    return fontMetrics().height() + room;
}

int Ruler::Length() const {
    return way_ == Qt::Horizontal ? width() : height();
}

QRect Ruler::Strip(int begin, int length) const {
    return way_ == Qt::Horizontal ? QRect(begin, 0, length, height())
                                  : QRect(0, begin, width(), length);
}

void Ruler::SetUnits(const Units& units) {
    if (units != units_) {
        units_ = units;
        update();
    }
}

void Ruler::Repaint(const std::optional<Range>& range) {
    if (range) {
        update(Strip(range->begin - 1, range->length + 2));
    }
}

void Ruler::SetSelection(std::optional<Range> selection) {
    if (selection != selection_) {
        Repaint(selection_);
        selection_ = selection;
        Repaint(selection_);
    }
}

void Ruler::SetPointer(std::optional<int> place) {
    const auto mark = [this] {
        return pointer_ ? std::optional(Range{*pointer_, 1}) : std::nullopt;
    };
    if (place != pointer_) {
        Repaint(mark());
        pointer_ = place;
        Repaint(mark());
    }
}

// ---- Labels

QString Ruler::TextOf(double unit, const RulerSteps& steps) {
    const double tiny = steps.labels / 2;
    return QString::number(std::abs(unit) < tiny ? 0 : unit, 'f', steps.Decimals());
}

// The labels at the ends are the longest ones.
double Ruler::RoomFor(const RulerSteps& steps) const {
    const auto widthAt = [&](int place) {
        const double unit = std::round(units_.UnitAt(place) / steps.labels) * steps.labels;
        return fontMetrics().horizontalAdvance(TextOf(unit, steps));
    };
    return std::max(widthAt(0), widthAt(Length())) + 2 * gap;
}

RulerSteps Ruler::Steps() const {
    return RulerStepsFor(std::abs(units_.pixels),
                         [this](const RulerSteps& steps) { return RoomFor(steps); });
}

std::vector<Ruler::Label> Ruler::Labels() const {
    const RulerSteps steps = Steps();
    const auto [low, high] = std::minmax({units_.UnitAt(0), units_.UnitAt(Length())});
    std::vector<Label> labels;
    const double first = std::floor(low / steps.labels) - 1;
    const auto count = static_cast<int>(std::floor(high / steps.labels) - first) + 2;
    for (int index = 0; index < count; ++index) {
        const double unit = (first + index) * steps.labels;
        labels.push_back({TextOf(unit, steps), units_.PlaceOf(unit)});
    }
    return labels;
}

// ---- Painting

void Ruler::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QColor mark = palette().color(QPalette::Active, QPalette::Highlight);
    painter.fillRect(event->rect(), palette().color(QPalette::Active, QPalette::Base));
    if (selection_) {
        constexpr int strength = 70;
        QColor shade = mark;
        shade.setAlpha(strength);
        painter.fillRect(Strip(selection_->begin, selection_->length), shade);
    }
    painter.setPen(palette().color(QPalette::Active, QPalette::Text));
    PaintTicks(painter);
    if (pointer_) {
        painter.fillRect(Strip(*pointer_, 1), mark);
    }
}

void Ruler::PaintTicks(QPainter& painter) const {
    const int thickness = way_ == Qt::Horizontal ? height() : width();
    const double step = Steps().labels * std::abs(units_.pixels);
    const int parts = Steps().parts;
    const QColor color = painter.pen().color();
    const auto tick = [&](double place, int length) {
        const auto at = static_cast<int>(std::floor(place));
        painter.fillRect(way_ == Qt::Horizontal ? QRect(at, thickness - length, 1, length)
                                                : QRect(thickness - length, at, length, 1),
                         color);
    };
    for (const Label& label : Labels()) {
        tick(label.place, thickness);
        PaintLabel(painter, label);
        for (int part = 1; part < parts; ++part) {
            const bool isMiddle = 2 * part == parts;
            tick(label.place + step * part / parts, isMiddle ? thickness / 2 : thickness / 4);
        }
    }
}

// Along a vertical ruler, labels are read downwards. Their base lines are at its left edge, and the
// ticks at the right one.
void Ruler::PaintLabel(QPainter& painter, const Label& label) const {
    painter.save();
    if (way_ == Qt::Horizontal) {
        painter.translate(std::floor(label.place), 0);
    } else {
        painter.translate(fontMetrics().ascent() + 2, std::floor(label.place));
        painter.rotate(90);
    }
    painter.drawText(QPoint(gap, fontMetrics().ascent() + 1), label.text);
    painter.restore();
}

}  // namespace lumenkit::lumenform
