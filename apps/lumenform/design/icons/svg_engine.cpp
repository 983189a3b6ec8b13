#include "apps/lumenform/design/icons/svg_engine.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include "apps/lumenform/design/icons/icon_colors.h"

namespace lumenkit::lumenform {

namespace {

QByteArray Contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap Drawn(const QByteArray& drawing, QSize size) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(drawing);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

}  // namespace

QString SvgEngine::PathOf(const QString& name, int side) {
    return name.isEmpty() ? QStringLiteral(":/lumenform/icons/lumenform.svg")
                          : QStringLiteral(":/lumenform/icons/%1/%2.svg").arg(side).arg(name);
}

QByteArray SvgEngine::Drawing(int side, QIcon::Mode mode) const {
    const QByteArray drawing = Contents(PathOf(name_, side));
    return name_.isEmpty() ? drawing : Recoloured(drawing, QGuiApplication::palette(), mode);
}

void SvgEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
    const double scale = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
}

QPixmap SvgEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    return scaledPixmap(size, mode, state, 1);
}

// The size is in pixels of the device, and each drawing fits the pixels of one size without scale.
QPixmap SvgEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/,
                                qreal scale) {
    const QString key = QStringLiteral("lumenform/%1/%2x%3/%4/%5/%6")
                            .arg(name_)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(scale)
                            .arg(mode)
                            .arg(QGuiApplication::palette().cacheKey());
    QPixmap pixmap;
    if (!size.isEmpty() && !QPixmapCache::find(key, &pixmap)) {
        const int side =
            qMin(size.width(), size.height()) < largeSide * scale ? smallSide : largeSide;
        pixmap = Drawn(Drawing(side, mode), size);
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

}  // namespace lumenkit::lumenform
