// Draws the labels of a form without the help of the fixes.
#pragma once

#include <cstddef>
#include <string>

#include "forms/document.h"

namespace lumenkit::testing {

/// Whether each library control of `before` draws the same texts and boxes in `after`, in both
/// modes, with the same option selected. The forms have the same controls. If not, `why` says
/// where.
bool DrawTheSame(const forms::Document& before, const forms::Document& after, std::string& why);

/// The number of messages that the controls show when they are loaded and drawn, in both modes.
std::size_t MessagesOf(const forms::Document& document);

}  // namespace lumenkit::testing
