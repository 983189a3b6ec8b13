#pragma once

#include <vector>

#include "forms/block.h"
#include "forms/document.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::check {

/// Loads, lays out and draws a saved control without a display, in design mode and in run mode.
/// Returns a description of all that is drawn, of the control's parts, of its ideal size and of the
/// properties that it saves, except those named in `except`. Two controls with
/// the same description look the same.
Text DrawnControl(const forms::Document& document, forms::Block& block, const ClassDescriptor& type,
                  const std::vector<Text>& except);

}  // namespace lumenkit::check
