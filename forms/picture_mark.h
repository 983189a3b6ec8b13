// How the companion marks the records of pictures.
#pragma once

#include <cstddef>
#include <string_view>

namespace lumenkit::forms {

/// A record begins with the length of all that follows, this mark, and the length of the picture.
inline constexpr std::string_view pictureMark("lt\0\0", 4);
inline constexpr std::size_t pictureLengthSize = 4;
inline constexpr std::size_t pictureHeadSize =
    pictureLengthSize + pictureMark.size() + pictureLengthSize;

/// Returns whether a record has the mark of a picture.
constexpr bool IsPictureRecord(std::string_view record) {
    return record.size() >= pictureHeadSize &&
           record.substr(pictureLengthSize, pictureMark.size()) == pictureMark;
}

}  // namespace lumenkit::forms
