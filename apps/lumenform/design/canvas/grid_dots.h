#pragma once

#include <QObject>
#include <QPixmap>
#include <map>
#include <tuple>

#include "apps/lumenform/design/canvas/grid.h"
#include "apps/lumenform/form_view/form_view.h"

namespace lumenkit::lumenform {

/// Draws the dots of the grid on a form and on its containers, under the controls.
class GridDots final : public QObject {
 public:
    /// The grid must outlive the dots.
    explicit GridDots(const Grid& grid) : grid_(grid) {}

    /// Draws the dots on this view from now on.
    void Follow(const FormView& view);
    /// Called when the grid has changed.
    void Refresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    struct Background {
        bool paintsItself;  // paints its background in its paint event
        Color backColor;
    };

    void Watch(const Surroundings& container, bool paintsItself);
    void Paint(QWidget& widget, const QRegion& region, Color backColor);
    const QPixmap& TileFor(const QWidget& widget, const QColor& dot);

    const Grid& grid_;
    std::map<QWidget*, Background> backgrounds_;
    std::map<std::tuple<double, float, QRgb>, QPixmap> tiles_;  // by pixel ratio, step, colour
};

}  // namespace lumenkit::lumenform
