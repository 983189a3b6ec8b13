// Likenesses with cells in rows and columns.
#pragma once

#include "apps/lumenform/form_view/plain_kind.h"

namespace lumenkit::lumenform {

/// A grid with the fixed and free rows and columns of the file, and the headings of its
/// FormatString.
PlainWidget MakeFlexGrid(const BlockReader& reader, const PlainSink& raise);
/// A grid of records: a caption, a heading for each column and marks before the rows.
PlainWidget MakeRecordGrid(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
