#pragma once

#include <QSizeF>
#include <functional>

#include "forms/block.h"
#include "forms/document.h"

namespace lumenkit::lumenform {

/// Calls `change`, which gives a form or picture box another ScaleMode, and converts the numbers in
/// its units: the ends of the lines in it and the size of its client area. So the lines keep their
/// places. `room` is the size of the client area in twips.
void ChangeUnits(const forms::Document& document, forms::Block& container, QSizeF room,
                 const std::function<void()>& change);

}  // namespace lumenkit::lumenform
