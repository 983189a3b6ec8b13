// Makes the widgets of text boxes.
#pragma once

#include "apps/lumenform/form_view/plain_widget.h"

namespace lumenkit::lumenform {

PlainWidget MakeTextBox(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
