// The plain widget for each class of control.
#pragma once

#include "apps/lumenform/form_view/plain_kind.h"
#include "forms/block.h"

namespace lumenkit::lumenform {

/// Returns the kind of a block's class: a plain widget of its own, or a likeness. An unknown class
/// is a box with the control's name and class.
const PlainKind& PlainKindOf(const forms::Block& block);

}  // namespace lumenkit::lumenform
