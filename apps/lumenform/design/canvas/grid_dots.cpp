#include "apps/lumenform/design/canvas/grid_dots.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "apps/lumenform/design/look/contrast.h"
#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

constexpr double closest = 3;  // pixels; closer dots would look grey
constexpr double sameZoom = 1e-3;

// The number of grid steps, in one direction, that is nearest to a whole number of device pixels,
// so that tiles of them join.
int StepsInTile(double step, double pixelRatio) {
    constexpr double longest = 1024;  // pixels
    constexpr double longEnough = 128;
    constexpr double tolerance = 1e-3;
    int best = 1;
    double bestError = 1;
    for (int steps = 1; steps * step <= longest; ++steps) {
        const double pixels = steps * step;
        const auto error = [](double length) { return std::abs(length - std::round(length)); };
        const double both = error(pixels) + error(pixels * pixelRatio);
        if (both < bestError - tolerance || (both < tolerance && pixels < longEnough)) {
            best = steps;
            bestError = both;
        }
    }
    return best;
}

// The dots can be seen, but do not attract attention.
QColor DotOn(const QColor& ground) {
    constexpr int middle = 128;
    constexpr double strength = 0.43;
    const QColor ink = qGray(ground.rgb()) >= middle ? Qt::black : Qt::white;
    return Legible(Blend(ground, ink, strength), ground, signContrast);
}

QPixmap MakeTile(double across, double down, double pixelRatio, const QColor& color) {
    const int columns = StepsInTile(across, pixelRatio);
    const int rows = StepsInTile(down, pixelRatio);
    const auto device = [&](double pixels) {
        return static_cast<int>(std::round(std::round(pixels) * pixelRatio));
    };
    QPixmap tile(device(columns * across), device(rows * down));
    tile.fill(Qt::transparent);
    const int size = std::max(static_cast<int>(pixelRatio), 1);
    QPainter painter(&tile);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            painter.fillRect(device(column * across), device(row * down), size, size, color);
        }
    }
    painter.end();
    tile.setDevicePixelRatio(pixelRatio);
    return tile;
}

// Paints the dots in a part of a widget one by one: at most scales, no tile of them would fit to
// the next one. They keep their size on the screen.
void PaintDots(QPainter& painter, const QRect& part, float step, const QColor& color, double zoom) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const double across = step / twips.x;
    const double down = step / twips.y;
    const QTransform device = painter.deviceTransform();
    const auto scale = device.m11();
    const double size = std::max(std::floor(scale / zoom), 1.0);
    const auto first = [](int edge, double length) {
        return static_cast<int>(std::ceil((edge - 1) / length));
    };
    for (int row = first(part.top(), down); row * down < part.bottom() + 1; ++row) {
        for (int column = first(part.left(), across); column * across < part.right() + 1;
             ++column) {
            const QPointF at(std::round(column * across), std::round(row * down));
            const QPointF pixel = device.map(at);
            const QPointF snapped(std::round(pixel.x()), std::round(pixel.y()));
            painter.fillRect(QRectF(at + (snapped - pixel) / scale, QSizeF(size, size) / scale),
                             color);
        }
    }
}

// The dots leave the tabs free.
QRect RoomIn(const QWidget& widget) {
    const bool isPage = dynamic_cast<const TabPages*>(widget.parentWidget()) != nullptr;
    return isPage ? widget.contentsRect() : widget.rect();
}

}  // namespace

void GridDots::Follow(const FormView& view) {
    backgrounds_.clear();
    Watch(view.Inside(), true);
    for (const auto& control : view.Controls()) {
        if (control->IsContainer()) {
            for (const Surroundings* room : control->Rooms()) {
                Watch(*room, false);
            }
        }
    }
}

void GridDots::Watch(const Surroundings& container, bool paintsItself) {
    QWidget& widget = container.widget;
    widget.installEventFilter(this);
    backgrounds_.emplace(&widget, Background{paintsItself, container.backColor});
    QObject::connect(&widget, &QObject::destroyed, this,
                     [this, gone = &widget] { backgrounds_.erase(gone); });
}

void GridDots::Refresh() {
    for (const auto& [widget, background] : backgrounds_) {
        widget->update();
    }
}

bool GridDots::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Paint || !grid_.isShown || !watched->isWidgetType()) {
        return false;
    }
    QWidget& widget = *static_cast<QWidget*>(watched);
    const auto found = backgrounds_.find(&widget);
    if (found == backgrounds_.end()) {
        return false;
    }
    const Background background = found->second;
    if (background.paintsItself) {
        watched->event(event);
    }
    Paint(widget, static_cast<QPaintEvent*>(event)->region(), background.backColor);
    return background.paintsItself;
}

void GridDots::Paint(QWidget& widget, const QRegion& region, Color backColor) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    QPainter painter(&widget);
    const double scale = painter.deviceTransform().m11();
    const double zoom = scale / widget.devicePixelRatioF();
    if (grid_.step * zoom < closest * std::max(twips.x, twips.y)) {
        return;
    }
    const QColor dot = DotOn(qt::ToQColor(backColor, widget.palette()));
    for (const QRect& part : region& RoomIn(widget)) {
        if (std::abs(zoom - 1) < sameZoom) {
            painter.fillRect(part, QBrush(TileFor(widget, dot)));
        } else {
            PaintDots(painter, part, grid_.step, dot, zoom);
        }
    }
}

const QPixmap& GridDots::TileFor(const QWidget& widget, const QColor& dot) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const double ratio = widget.devicePixelRatioF();
    QPixmap& tile = tiles_[{ratio, grid_.step, dot.rgb()}];
    if (tile.isNull()) {
        tile = MakeTile(grid_.step / twips.x, grid_.step / twips.y, ratio, dot);
    }
    return tile;
}

}  // namespace lumenkit::lumenform
