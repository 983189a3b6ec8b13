#pragma once

#include <QPixmap>
#include <string_view>

namespace lumenkit::lumenform {

/// Returns the picture in a record of a companion file: BMP, GIF, JPEG, ICO or another format that
/// Qt reads. Null for any other record, for a damaged picture and for one of more than 64 million
/// pixels.
QPixmap PictureIn(std::string_view record);

}  // namespace lumenkit::lumenform
