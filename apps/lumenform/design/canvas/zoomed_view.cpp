#include "apps/lumenform/design/canvas/zoomed_view.h"

#include <QLayout>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>

namespace lumenkit::lumenform {

namespace {

constexpr int side = 512;           // of a tile, device pixels
constexpr int mostKept = 96 << 10;  // kilobytes
constexpr int tileCost = side * side * 4 >> 10;

// Returns the indices of the tiles, of this length, that touch a rectangle.
QRect TilesIn(const QRectF& area, double length) {
    const auto index = [length](double at) { return static_cast<int>(std::floor(at / length)); };
    return {QPoint(index(area.left()), index(area.top())),
            QPoint(index(area.right()), index(area.bottom()))};
}

template <typename Act>
void ForEach(const QRect& indices, Act&& act) {
    for (int row = indices.top(); row <= indices.bottom(); ++row) {
        for (int column = indices.left(); column <= indices.right(); ++column) {
            act(QPoint(column, row));
        }
    }
}

// Draws widgets into a picture at a scale.
class ScaledPainter {
 public:
    // Styles draw for the pixel ratio of the picture. A painter ignores one below 1.
    ScaledPainter(QPixmap& picture, double scale) : picture_(picture) {
        picture.setDevicePixelRatio(std::max(scale, 1.0));
        painter_.begin(&picture);
        painter_.scale(std::min(scale, 1.0), std::min(scale, 1.0));
    }
    ~ScaledPainter() {
        painter_.end();
        picture_.setDevicePixelRatio(1);
    }
    ScaledPainter(const ScaledPainter&) = delete;
    ScaledPainter& operator=(const ScaledPainter&) = delete;

    // Draws a part of the widget. The point `corner` of it is at the corner of the picture.
    void Draw(QWidget& widget, const QRect& part, QPointF corner = {}) {
        painter_.translate(-corner);
        widget.render(&painter_, part.topLeft(), part);
    }

 private:
    QPixmap& picture_;
    QPainter painter_;
};

}  // namespace

QPixmap PictureOf(QWidget& widget, double scale) {
    QPixmap picture((QSizeF(widget.size()) * scale).toSize().expandedTo(QSize(1, 1)));
    picture.fill(Qt::transparent);
    ScaledPainter(picture, scale).Draw(widget, widget.rect());
    return picture;
}

ZoomedView::ZoomedView(QWidget* parent) : QWidget(parent), stage_(new QWidget), tiles_(mostKept) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    stage_->setAttribute(Qt::WA_QuitOnClose, false);  // nobody sees or closes it
    scene_.addWidget(stage_);
    connect(&scene_, &QGraphicsScene::changed, this, [this](const QList<QRectF>& parts) {
        for (const QRectF& part : parts) {
            Outdate(part);
        }
    });
}

ZoomedView::~ZoomedView() {
    if (view_ != nullptr) {
        view_->hide();
        view_->setParent(nullptr);
    }
}

void ZoomedView::Show(FormView& view) {
    view_ = &view;
    view.setParent(stage_, Qt::SubWindow);
    view.move(0, 0);
    view.layout()->activate();
    view.show();
    FollowSize();
}

void ZoomedView::FollowSize() {
    stage_->resize(view_->size());
    tiles_.clear();
    update();
}

void ZoomedView::SetFactor(double factor) {
    factor_ = factor;
    tiles_.clear();
    update();
}

// Called when a part of the view has changed.
void ZoomedView::Outdate(const QRectF& onView) {
    const QRectF part(onView.topLeft() * factor_, onView.size() * factor_);
    const QRectF grown = part.adjusted(-1, -1, 1, 1);
    ForEach(TilesIn(grown, side / device_) & TilesIn(rect(), side / device_),
            [this](QPoint index) { tiles_.remove(index); });
    update(grown.toAlignedRect());
}

void ZoomedView::paintEvent(QPaintEvent* event) {
    if (device_ != devicePixelRatioF()) {
        device_ = devicePixelRatioF();
        tiles_.clear();
    }
    QPainter painter(this);
    const double length = side / device_;
    const QRectF area = QRectF(event->rect()).adjusted(0, 0, -0.01, -0.01);
    ForEach(TilesIn(area, length), [&](QPoint index) {
        const QPointF at = QPointF(index) * length;
        if (event->region().intersects(QRectF(at, QSizeF(length, length)).toAlignedRect())) {
            painter.drawPixmap(at, TileAt(index));
        }
    });
}

const QPixmap& ZoomedView::TileAt(QPoint index) {
    if (const QPixmap* const kept = tiles_.object(index)) {
        return *kept;
    }
    auto tile = std::make_unique<QPixmap>(DrawTile(index));
    const QPixmap& drawn = *tile;
    tiles_.insert(index, tile.release(), tileCost);
    return drawn;
}

QPixmap ZoomedView::DrawTile(QPoint index) const {
    QPixmap tile(side, side);
    tile.fill(palette().color(QPalette::Window));
    if (view_ == nullptr) {
        return tile;
    }
    const double scale = factor_ * device_;
    const QRectF part(QPointF(index) * side / scale, QSizeF(side, side) / scale);
    const QRect exposed = part.adjusted(-1, -1, 1, 1).toAlignedRect() & view_->rect();
    if (!exposed.isEmpty()) {
        ScaledPainter(tile, scale).Draw(*view_, exposed, part.topLeft());
    }
    tile.setDevicePixelRatio(device_);
    return tile;
}

}  // namespace lumenkit::lumenform
