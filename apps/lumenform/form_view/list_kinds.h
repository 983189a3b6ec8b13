// Makes the widgets of list boxes and combo boxes.
#pragma once

#include "apps/lumenform/form_view/plain_widget.h"

namespace lumenkit::lumenform {

PlainWidget MakeListBox(const BlockReader& reader, const PlainSink& raise);
PlainWidget MakeComboBox(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
