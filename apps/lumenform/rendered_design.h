#pragma once

#include <QPixmap>
#include <QString>

#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

/// Draws the designer after it has opened the form and selected its first control. With `page`, the
/// property page of the first control that has one is in front. If `form` is empty, draws the start
/// screen. Throws forms::FormError if the form cannot be read.
QPixmap DesignPicture(const qt::Context& context, const QString& form, int codePage, bool page);

}  // namespace lumenkit::lumenform
