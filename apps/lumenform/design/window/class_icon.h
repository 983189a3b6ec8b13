#pragma once

#include <QIcon>
#include <QPalette>

#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns an icon of a class of controls, forms or menus, or of "Page", a page of a tabbed box, in
/// the palette's colours, sharp at any scale.
QIcon ClassIcon(TextView className, const QPalette& palette);

}  // namespace lumenkit::lumenform
