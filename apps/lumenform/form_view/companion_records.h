// Reads the records that the properties of plain controls refer to in a companion file.
#pragma once

#include <QPixmap>
#include <string_view>
#include <vector>

#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns the picture in a record of a companion file: BMP, GIF, JPEG, ICO or another format that
/// Qt reads. Null for any other record, for a damaged picture and for one of more than 64 million
/// pixels.
QPixmap PictureIn(std::string_view record);

/// Returns the items of a list box or combo box from the record that its property List refers to.
/// The record holds the number of items, a reserved number, and for each item its length in bytes
/// and its text. All numbers have two bytes, the lower byte first. From a truncated record, returns
/// the complete items. The texts are in `codePage`, which is not UTF-8.
std::vector<Text> ItemsOf(std::string_view record, int codePage);

}  // namespace lumenkit::lumenform
