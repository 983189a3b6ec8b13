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
    if (grid_.step < closest * std::max(twips.x, twips.y)) {
        return;
    }
    const QColor dot = DotOn(qt::ToQColor(backColor, widget.palette()));
    QPainter painter(&widget);
    for (const QRect& part : region& RoomIn(widget)) {
        painter.fillRect(part, QBrush(TileFor(widget, dot)));
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
