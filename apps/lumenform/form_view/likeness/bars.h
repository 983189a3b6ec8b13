// Likenesses of bars: tool bars, status bars and the bars that step through records.
#pragma once

#include "apps/lumenform/form_view/plain_kind.h"

namespace lumenkit::lumenform {

/// A bar with buttons, and their pictures if the form has them.
PlainWidget MakeToolBar(const BlockReader& reader, const PlainSink& raise);
/// A bar with the panels of the file.
PlainWidget MakeStatusBar(const BlockReader& reader, const PlainSink& raise);
/// A caption between two pairs of buttons.
PlainWidget MakeRecordBar(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
