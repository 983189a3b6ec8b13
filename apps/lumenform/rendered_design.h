#pragma once

#include <QPixmap>
#include <QString>

#include "runtime/qt/context.h"

namespace lumenkit::form {

/// The designer as it looks when the form was just opened and its first control is selected; with
/// `page`, the property page of the first control that has one lies over it. Without a form, its
/// first screen. Throws forms::FormError for a form that cannot be read.
QPixmap DesignPicture(const qt::Context& context, const QString& form, int codePage, bool page);

}  // namespace lumenkit::form
