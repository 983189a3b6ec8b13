#include "tests/apps/lumenform/grabbed.h"

#include <QBuffer>
#include <QPixmap>
#include <algorithm>
#include <cmath>
#include <utility>

namespace lumenkit::testing {

namespace {

std::string Bytes(std::size_t number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(number >> shift & 0xFFU);
    }
    return bytes;
}

}  // namespace

Grabbed::Grabbed(const QPixmap& pixmap)
    : image_(pixmap.toImage().convertToFormat(QImage::Format_RGB32)),
      ratio_(pixmap.devicePixelRatio()) {}

QColor Grabbed::At(QPoint at) const {
    const auto device = [this](int place) { return static_cast<int>((place + 0.5) * ratio_); };
    return image_.pixelColor(device(at.x()), device(at.y()));
}

template <typename Test>
QRect Grabbed::Around(Test&& test) const {
    QRect around;
    for (int y = 0; y < image_.height(); ++y) {
        for (int x = 0; x < image_.width(); ++x) {
            if (test(x, y)) {
                around |= QRect(x, y, 1, 1);
            }
        }
    }
    if (around.isEmpty()) {
        return around;
    }
    return QRectF(around.x() / ratio_, around.y() / ratio_, around.width() / ratio_,
                  around.height() / ratio_)
        .toAlignedRect();
}

QRect Grabbed::DifferenceFrom(const Grabbed& other) const {
    return Around([&](int x, int y) { return image_.pixel(x, y) != other.image_.pixel(x, y); });
}

QRect Grabbed::Where(const std::function<bool(const QColor&)>& test) const {
    return Around([&](int x, int y) { return test(image_.pixelColor(x, y)); });
}

QImage Grabbed::Part(const QRect& rect) const {
    return image_.copy(
        QRectF(rect.x() * ratio_, rect.y() * ratio_, rect.width() * ratio_, rect.height() * ratio_)
            .toRect());
}

std::string PictureRecord(QSize size, const QColor& color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bitmap;
    QBuffer buffer(&bitmap);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "BMP");
    const auto length = static_cast<std::size_t>(bitmap.size());
    return Bytes(length + 8) + std::string("lt\0\0", 4) + Bytes(length) + bitmap.toStdString();
}

}  // namespace lumenkit::testing
