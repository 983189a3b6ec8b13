#pragma once

#include <QCache>
#include <QGraphicsScene>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QRectF>
#include <QWidget>

#include "apps/lumenform/form_view/form_view.h"

namespace lumenkit::lumenform {

/// Returns the picture of a widget and its children, of `scale` device pixels for each of theirs.
QPixmap PictureOf(QWidget& widget, double scale);

/// Shows a form larger or smaller than it is. The view itself keeps its size and its layout, so
/// that texts have the same line breaks at each scale. It lives in a scene that nobody sees, and
/// tells what has to be painted again; its picture is painted at the scale, in tiles that are kept.
class ZoomedView final : public QWidget {
 public:
    explicit ZoomedView(QWidget* parent);
    /// Gives the view back, hidden and without a parent.
    ~ZoomedView() override;
    ZoomedView(const ZoomedView&) = delete;
    ZoomedView& operator=(const ZoomedView&) = delete;

    /// Takes the view from its parent. It may be destroyed before this object.
    void Show(FormView& view);
    /// Called when the view has another size.
    void FollowSize();
    void SetFactor(double factor);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    void Outdate(const QRectF& onView);
    const QPixmap& TileAt(QPoint index);
    QPixmap DrawTile(QPoint index) const;

    QGraphicsScene scene_;
    QWidget* stage_;  // the widget of the scene, with the view in it
    QPointer<FormView> view_;
    double factor_ = 1;
    double device_ = 1;              // device pixels per pixel, in the tiles
    QCache<QPoint, QPixmap> tiles_;  // by column and row
};

}  // namespace lumenkit::lumenform
