#pragma once

#include "apps/lumenform/form_view/plain_kind.h"

namespace lumenkit::lumenform {

/// A small box with a sign for the class, for controls that only the designer shows.
PlainWidget MakeIcon(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
