#include "forms/picture_record.h"

#include <cstddef>
#include <cstdint>
#include <limits>

#include "forms/companion.h"
#include "forms/little_endian.h"
#include "forms/picture_mark.h"

namespace lumenkit::forms {

namespace {

constexpr std::size_t lengthSize = pictureLengthSize;
constexpr std::size_t headSize = pictureHeadSize;

}  // namespace

std::string_view ReadPictureRecord(std::string_view record) {
    if (!IsPictureRecord(record)) {
        throw BadRecord("expected a picture in the companion");
    }
    const std::uint64_t whole = LittleEndian(record.substr(0, lengthSize));
    const std::uint64_t length = LittleEndian(record.substr(headSize - lengthSize, lengthSize));
    const std::string_view picture = record.substr(headSize);
    if (whole != length + headSize - lengthSize || length > picture.size()) {
        throw BadRecord("expected a picture of " + std::to_string(length) +
                        " bytes in the companion, found " + std::to_string(picture.size()));
    }
    return picture.substr(0, static_cast<std::size_t>(length));
}

std::string WritePictureRecord(std::string_view picture) {
    constexpr std::uint64_t most = std::numeric_limits<std::uint32_t>::max() - headSize;
    if (picture.size() > most) {
        throw BadRecord("the picture is too large for the companion");
    }
    std::string record;
    record.reserve(headSize + picture.size());
    AppendLittleEndian(record, picture.size() + headSize - lengthSize, lengthSize);
    record += pictureMark;
    AppendLittleEndian(record, picture.size(), lengthSize);
    record += picture;
    return record;
}

}  // namespace lumenkit::forms
