#include "apps/lumenform/design/properties/swatch.h"

#include <QPainter>
#include <QPixmap>

namespace lumenkit::lumenform {

QIcon Swatch(const QColor& color, QSize size, double scale) {
    QPixmap picture(size * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QPen(QColor(0x80, 0x80, 0x80), 1));
    painter.setBrush(color);
    painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    painter.end();
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected);  // without a selection tint
    return icon;
}

}  // namespace lumenkit::lumenform
