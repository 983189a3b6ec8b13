#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

/// Draws the form as it looks in the designer, made smaller to fit into `box` (in
/// device-independent pixels). `device` gives the pixels of a device-independent pixel. Returns a
/// null pixmap if the form cannot be read or is very large.
QPixmap SmallPicture(const qt::Context& context, const QString& path, QSize box, double device);

}  // namespace lumenkit::lumenform
