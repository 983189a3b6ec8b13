// Likenesses that show a number between two others.
#pragma once

#include "apps/lumenform/form_view/plain_kind.h"

namespace lumenkit::lumenform {

PlainWidget MakeProgressBar(const BlockReader& reader, const PlainSink& raise);
PlainWidget MakeSlider(const BlockReader& reader, const PlainSink& raise);
/// Two buttons with arrows.
PlainWidget MakeUpDown(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
