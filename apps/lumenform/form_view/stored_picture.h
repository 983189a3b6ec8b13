#pragma once

#include <QPixmap>
#include <string_view>

namespace lumenkit::form {

/// The picture in a companion's record: BMP, GIF, JPEG, ICO and what else Qt reads. Null for any
/// other record, for one that is damaged and for a picture of more than 64 million pixels.
QPixmap PictureIn(std::string_view record);

}  // namespace lumenkit::form
