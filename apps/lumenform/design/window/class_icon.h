#pragma once

#include <QIcon>
#include <QPalette>

#include "frame/text.h"

namespace lumenkit::form {

/// A small picture of a class of control, in the palette's colours, sharp at any scale.
QIcon ClassIcon(TextView className, const QPalette& palette);

}  // namespace lumenkit::form
