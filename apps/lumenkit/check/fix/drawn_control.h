#pragma once

#include <cstddef>
#include <vector>

#include "forms/block.h"
#include "forms/document.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::check {

/// What a control shows.
struct DrawnControl {
    /// All that is drawn, the control's parts, its ideal size and the properties that it saves. Two
    /// controls with the same picture look the same.
    Text picture;
    std::size_t messages = 0;  ///< in which the control reports errors

    DrawnControl& operator+=(const DrawnControl& other);
};

/// Loads, lays out and draws a saved control without a display, in design mode and in run mode. The
/// picture is without the properties named in `except`.
DrawnControl Draw(const forms::Document& document, forms::Block& block, const ClassDescriptor& type,
                  const std::vector<Text>& except);

/// Whether a control that was `before` and is `after` a mending shows no further messages and, if
/// `isSame`, has the same picture.
bool IsNoWorse(const DrawnControl& before, const DrawnControl& after, bool isSame);

}  // namespace lumenkit::check
