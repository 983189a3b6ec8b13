#include "apps/lumenform/form_view/likeness/painted.h"

#include <memory>
#include <utility>

namespace lumenkit::lumenform {

Painted::Painted(QAccessible::Role role, Paint paint) : role_(role), paint_(std::move(paint)) {}

QAccessibleInterface* Painted::NewDescription() {
    return std::make_unique<qt::GroupDescription>(*this, role_).release();
}

void Painted::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paint_(*this, painter);
}

}  // namespace lumenkit::lumenform
