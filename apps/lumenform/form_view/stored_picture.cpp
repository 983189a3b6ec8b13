#include "apps/lumenform/form_view/stored_picture.h"

#include <QBuffer>
#include <QImageReader>

namespace lumenkit::lumenform {

namespace {

// The header: the length of the record, "lt", two NULs and the length of the picture.
constexpr std::size_t headSize = 12;
constexpr std::string_view mark("lt\0\0", 4);

constexpr qint64 mostPixels = 64'000'000;

}  // namespace

QPixmap PictureIn(std::string_view record) {
    if (record.size() <= headSize || record.substr(4, mark.size()) != mark) {
        return {};
    }
    record.remove_prefix(headSize);
    QByteArray bytes(record.data(), static_cast<qsizetype>(record.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() > mostPixels) {
        return {};
    }
    return QPixmap::fromImageReader(&reader);
}

}  // namespace lumenkit::lumenform
