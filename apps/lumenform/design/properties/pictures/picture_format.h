// The picture files that forms can hold.
#pragma once

#include <QByteArray>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <string>
#include <string_view>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// The bytes of a picture file as a value: a text with one unit for each byte. Empty means no
/// picture.
Text TextOfBytes(std::string_view bytes);
std::string BytesOfText(TextView text);

/// Returns a short description: "(Bitmap, 1.7 KB)", "(none)".
Text DescribePicture(TextView picture);

/// Returns the picture, or null for a format that cannot be shown, as metafiles.
QPixmap PixmapOf(TextView picture);

/// Returns the picture as an icon that keeps its proportions, or null. `scale` is the number of
/// device pixels per pixel.
QIcon PictureIcon(TextView picture, QSize size, double scale);

/// Returns the extension of files with this picture, "bmp". Empty if the format is not known.
QString SuffixOf(TextView picture);

/// A picture that a property can hold.
struct TakenPicture {
    Text picture;
    QString note;  ///< what the user should know about it; may be empty
};

/// Takes the bytes of a picture file for a property. Forms hold bitmaps, GIF, JPEG, icons, cursors
/// and metafiles; they are taken byte for byte. A PNG file becomes a bitmap, in which transparent
/// parts are white. The property Icon takes icons only; MouseIcon and DragIcon take icons and
/// cursors. Raises RuntimeError with the reason for any other file.
TakenPicture TakePicture(const QByteArray& file, TextView property);

}  // namespace lumenkit::lumenform
