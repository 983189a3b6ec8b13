// Makes the widgets of labels.
#pragma once

#include "apps/lumenform/form_view/plain_widget.h"

namespace lumenkit::lumenform {

/// A label with AutoSize takes the size of its text, whatever size the form has saved. With
/// WordWrap it keeps its width, and its height changes. Otherwise it keeps its left edge, its right
/// edge or its middle, as its Alignment says.
PlainWidget MakeLabel(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
