#include "apps/lumenform/design/canvas/rulers.h"

#include <cmath>

#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

Ruler::Units UnitsOf(const ScaleAxis& axis, double origin, double pixelsPerTwip) {
    return {.origin = origin, .coordinate = axis.origin, .pixels = axis.unit * pixelsPerTwip};
}

}  // namespace

Rulers::Rulers(const FormDesign& design, const Glass& glass, QWidget& viewport, QWidget& canvas)
    : design_(design),
      glass_(glass),
      viewport_(viewport),
      upper_(new Ruler(Qt::Horizontal, &canvas)),
      left_(new Ruler(Qt::Vertical, &canvas)),
      corner_(new QWidget(&canvas)) {
    corner_->setAutoFillBackground(true);
    corner_->setBackgroundRole(QPalette::Base);
    SetShown(false);
}

void Rulers::SetShown(bool shown) {
    isShown_ = shown;
    upper_->setVisible(shown);
    left_->setVisible(shown);
    corner_->setVisible(shown);
    Follow();
}

void Rulers::Arrange() {
    const QRect room = viewport_.geometry();
    const int thickness = Thickness();
    upper_->setGeometry(room.left(), room.top() - thickness, room.width(), thickness);
    left_->setGeometry(room.left() - thickness, room.top(), thickness, room.height());
    corner_->setGeometry(room.left() - thickness, room.top() - thickness, thickness, thickness);
    Follow();
}

void Rulers::Follow() {
    if (!isShown_) {
        return;
    }
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const double factor = glass_.Map().GetZoom().Factor();
    const QPoint corner = glass_.mapTo(&viewport_, glass_.Map().ClientRect().topLeft());
    const Scale& scale = design_.View().Inside().scale;
    upper_->SetUnits(UnitsOf(scale.across, corner.x(), factor / twips.x));
    left_->SetUnits(UnitsOf(scale.down, corner.y(), factor / twips.y));
    const QRect selected = glass_.SelectedRect();
    if (selected.isEmpty()) {
        upper_->SetSelection(std::nullopt);
        left_->SetSelection(std::nullopt);
        return;
    }
    const QPoint begin = glass_.mapTo(&viewport_, selected.topLeft());
    upper_->SetSelection(Ruler::Range{begin.x(), selected.width()});
    left_->SetSelection(Ruler::Range{begin.y(), selected.height()});
}

void Rulers::FollowPointer(std::optional<QPointF> twips) {
    if (!isShown_) {
        return;
    }
    if (!twips) {
        upper_->SetPointer(std::nullopt);
        left_->SetPointer(std::nullopt);
        return;
    }
    const qt::TwipsPerPixel& perPixel = qt::TwipsPerPixel::OfScreens();
    const double factor = glass_.Map().GetZoom().Factor();
    const QPoint corner = glass_.mapTo(&viewport_, glass_.Map().ClientRect().topLeft());
    upper_->SetPointer(corner.x() + qRound(twips->x() / perPixel.x * factor));
    left_->SetPointer(corner.y() + qRound(twips->y() / perPixel.y * factor));
}

}  // namespace lumenkit::lumenform
