#pragma once

#include "apps/lumenkit/check/saved_control.h"

namespace lumenkit::check {

/// Reports a memo or an option list that has no name for screen readers: neither a caption that is
/// shown nor a label before it. `label` is the label directly before it in the tab order, or null.
void CheckSpokenName(SavedControl& control, const forms::Document& document, forms::Block* label);

}  // namespace lumenkit::check
