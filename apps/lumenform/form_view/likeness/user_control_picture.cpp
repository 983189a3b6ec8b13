#include "apps/lumenform/form_view/likeness/user_control_picture.h"

#include <QEvent>
#include <QPainter>
#include <memory>
#include <utility>

namespace lumenkit::lumenform {

UserControlPicture::UserControlPicture(const QString& name, Draw draw) : draw_(std::move(draw)) {
    setAccessibleName(name);
}

QAccessibleInterface* UserControlPicture::NewDescription() {
    return std::make_unique<qt::GroupDescription>(*this, QAccessible::Graphic).release();
}

void UserControlPicture::paintEvent(QPaintEvent* /*event*/) {
    if (picture_.isNull()) {
        picture_ = draw_(size());
    }
    QPainter(this).drawPixmap(0, 0, picture_);
}

void UserControlPicture::resizeEvent(QResizeEvent* /*event*/) {
    picture_ = QPixmap();
}

void UserControlPicture::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        picture_ = QPixmap();
        update();
    }
}

}  // namespace lumenkit::lumenform
