#pragma once

#include "widgets/designer/control_class.h"

namespace lumenkit::designer {

/// Lets the user edit the caption of a label, its bullets and its word wrap, with a preview.
QList<PropertyChange> EditCaption(QWidget* parent, const QWidget& label);

}  // namespace lumenkit::designer
