#pragma once

#include <QIcon>
#include <QPalette>

#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns an icon of a control class in the palette's colours, sharp at any scale.
QIcon ClassIcon(TextView className, const QPalette& palette);

}  // namespace lumenkit::lumenform
