#include "apps/lumenform/design/properties/pictures/picture_format.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <algorithm>
#include <array>

#include "apps/lumenform/form_view/companion_records.h"
#include "forms/picture_record.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

using std::string_view_literals::operator""sv;

struct PictureFormat {
    const char* name;
    const char* suffix;
    std::string_view signature;
    std::size_t at = 0;  // the offset of the signature
    bool isIcon = false;
    bool isCursor = false;
    bool isShown = true;
};

constexpr std::array formats = {
    PictureFormat{QT_TRANSLATE_NOOP("picture_format", "Bitmap"), "bmp", "BM"sv},
    PictureFormat{"GIF", "gif", "GIF8"sv},
    PictureFormat{"JPEG", "jpg", "\xFF\xD8\xFF"sv},
    PictureFormat{.name = QT_TRANSLATE_NOOP("picture_format", "Icon"),
                  .suffix = "ico",
                  .signature = "\0\0\1\0"sv,
                  .isIcon = true},
    PictureFormat{.name = QT_TRANSLATE_NOOP("picture_format", "Cursor"),
                  .suffix = "cur",
                  .signature = "\0\0\2\0"sv,
                  .isCursor = true},
    PictureFormat{.name = QT_TRANSLATE_NOOP("picture_format", "Metafile"),
                  .suffix = "wmf",
                  .signature = "\xD7\xCD\xC6\x9A"sv,
                  .isShown = false},
    PictureFormat{.name = QT_TRANSLATE_NOOP("picture_format", "Enhanced metafile"),
                  .suffix = "emf",
                  .signature = " EMF"sv,
                  .at = 40,
                  .isShown = false},
};

const PictureFormat* FormatOf(std::string_view bytes) {
    const auto* const found = std::ranges::find_if(formats, [&](const PictureFormat& format) {
        return bytes.size() > format.at &&
               bytes.substr(format.at, format.signature.size()) == format.signature;
    });
    return found == formats.end() ? nullptr : found;
}

struct PictureTexts {
    Q_DECLARE_TR_FUNCTIONS(picture_format)
};

[[noreturn]] void RefusePicture(const QString& why) {
    throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                       qt::ToText(why));
}

void RequireFit(const PictureFormat* format, TextView property) {
    const bool wantsIcon = SameText(property, u"Icon", Compare::IgnoreCase);
    const bool wantsPointer = SameText(property, u"MouseIcon", Compare::IgnoreCase) ||
                              SameText(property, u"DragIcon", Compare::IgnoreCase);
    if (wantsIcon && (format == nullptr || !format->isIcon)) {
        RefusePicture(PictureTexts::tr("Icon holds an icon file (ICO)."));
    }
    if (wantsPointer && (format == nullptr || !(format->isIcon || format->isCursor))) {
        RefusePicture(PictureTexts::tr("%1 holds an icon or a cursor (ICO, CUR).")
                          .arg(qt::ToQString(property)));
    }
}

bool IsPng(const QByteArray& file) {
    return file.startsWith("\x89PNG\r\n\x1A\n");
}

// Bitmaps of 24 bits have no transparency.
TakenPicture BitmapOf(const QByteArray& png) {
    const QImage image = QImage::fromData(png, "PNG");
    if (image.isNull()) {
        RefusePicture(PictureTexts::tr("The file is damaged."));
    }
    QImage opaque(image.size(), QImage::Format_RGB888);
    opaque.fill(Qt::white);
    QPainter painter(&opaque);
    painter.drawImage(QPoint(), image);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    opaque.save(&buffer, "BMP");
    const QByteArray& bytes = buffer.data();
    const QString note =
        image.hasAlphaChannel()
            ? PictureTexts::tr(
                  "Forms hold no PNG pictures. It becomes a bitmap, with white in its transparent "
                  "parts.")
            : PictureTexts::tr("Forms hold no PNG pictures. It becomes a bitmap.");
    return {TextOfBytes({bytes.data(), static_cast<std::size_t>(bytes.size())}), note};
}

}  // namespace

Text TextOfBytes(std::string_view bytes) {
    Text text(bytes.size(), u'\0');
    std::ranges::transform(bytes, text.begin(),
                           [](char byte) -> char16_t { return static_cast<unsigned char>(byte); });
    return text;
}

std::string BytesOfText(TextView text) {
    std::string bytes(text.size(), '\0');
    std::ranges::transform(text, bytes.begin(),
                           [](char16_t unit) { return static_cast<char>(unit); });
    return bytes;
}

Text DescribePicture(TextView picture) {
    if (picture.empty()) {
        return qt::ToText(PictureTexts::tr("(none)"));
    }
    constexpr std::size_t longestSignature = 64;
    const std::string head = BytesOfText(picture.substr(0, longestSignature));
    const PictureFormat* const format = FormatOf(head);
    const QString name = PictureTexts::tr(
        format == nullptr ? QT_TRANSLATE_NOOP("picture_format", "other format") : format->name);
    constexpr double kilobyte = 1024;
    const double size = static_cast<double>(picture.size()) / kilobyte;
    return qt::ToText(PictureTexts::tr("(%1, %2 KB)").arg(name, QString::number(size, 'f', 1)));
}

QPixmap PixmapOf(TextView picture) {
    return picture.empty() ? QPixmap() : PictureIn(forms::WritePictureRecord(BytesOfText(picture)));
}

QIcon PictureIcon(TextView picture, QSize size, double scale) {
    const QString key = QStringLiteral("lumenform-picture-%1-%2-%3-%4")
                            .arg(qHash(qt::ToQString(picture)))
                            .arg(picture.size())
                            .arg(size.height())
                            .arg(scale);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        const QPixmap whole = PixmapOf(picture);
        if (!whole.isNull()) {
            pixmap = whole.scaled(size * scale, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            pixmap.setDevicePixelRatio(scale);
        }
        QPixmapCache::insert(key, pixmap);
    }
    if (pixmap.isNull()) {
        return {};
    }
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);  // without a selection tint
    return icon;
}

QString SuffixOf(TextView picture) {
    const PictureFormat* const format = FormatOf(BytesOfText(picture));
    return format == nullptr ? QString() : QString::fromLatin1(format->suffix);
}

TakenPicture TakePicture(const QByteArray& file, TextView property) {
    const std::string_view bytes(file.data(), static_cast<std::size_t>(file.size()));
    const PictureFormat* const format = FormatOf(bytes);
    RequireFit(format, property);
    if (IsPng(file)) {
        return BitmapOf(file);
    }
    if (format == nullptr) {
        RefusePicture(PictureTexts::tr(
            "Forms hold bitmaps, GIF, JPEG, icons, cursors and metafiles (BMP, GIF, JPG, ICO, "
            "CUR, WMF, EMF). A PNG file becomes a bitmap."));
    }
    TakenPicture taken{TextOfBytes(bytes), {}};
    if (format->isShown && PixmapOf(taken.picture).isNull()) {
        RefusePicture(PictureTexts::tr("The file is damaged."));
    }
    return taken;
}

}  // namespace lumenkit::lumenform
