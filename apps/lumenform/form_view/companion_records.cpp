#include "apps/lumenform/form_view/companion_records.h"

#include <QBuffer>
#include <QImageReader>
#include <cstddef>
#include <optional>

#include "forms/code_page.h"

namespace lumenkit::lumenform {

namespace {

// The header: the length of the record, "lt", two NULs and the length of the picture.
constexpr std::size_t headSize = 12;
constexpr std::string_view mark("lt\0\0", 4);

constexpr qint64 mostPixels = 64'000'000;

std::optional<std::size_t> TakeNumber(std::string_view& bytes) {
    if (bytes.size() < 2) {
        return std::nullopt;
    }
    const auto low = static_cast<unsigned char>(bytes[0]);
    const auto high = static_cast<unsigned char>(bytes[1]);
    bytes.remove_prefix(2);
    return low + std::size_t{high} * 256;
}

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

std::vector<Text> ItemsOf(std::string_view record, int codePage) {
    const forms::CodePage page(codePage);
    std::vector<Text> items;
    const std::optional<std::size_t> count = TakeNumber(record);
    static_cast<void>(TakeNumber(record));
    while (count && items.size() < *count) {
        const std::optional<std::size_t> length = TakeNumber(record);
        if (!length || *length > record.size()) {
            break;
        }
        items.push_back(page.Decode(record.substr(0, *length)));
        record.remove_prefix(*length);
    }
    return items;
}

}  // namespace lumenkit::lumenform
