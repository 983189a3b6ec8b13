// Makes the widgets of buttons, check boxes and option buttons.
#pragma once

#include "apps/lumenform/form_view/plain_widget.h"

namespace lumenkit::lumenform {

PlainWidget MakeButton(const BlockReader& reader, const PlainSink& raise);
PlainWidget MakeCheckBox(const BlockReader& reader, const PlainSink& raise);
PlainWidget MakeOptionButton(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
