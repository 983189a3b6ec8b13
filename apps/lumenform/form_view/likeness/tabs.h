// Boxes with tabs from their blocks.
#pragma once

#include "apps/lumenform/form_view/plain_kind.h"

namespace lumenkit::lumenform {

/// A box with tabs whose pages hold controls.
PlainWidget MakeTabbedBox(const BlockReader& reader, const PlainSink& raise);
/// A box with tabs only. The form shows the controls for each tab beside it.
PlainWidget MakeTabStrip(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
