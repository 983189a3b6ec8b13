// Likenesses with rows: lists, trees and lists of files.
#pragma once

#include "apps/lumenform/form_view/plain_kind.h"

namespace lumenkit::lumenform {

/// A list with a header of its columns if it shows details.
PlainWidget MakeListView(const BlockReader& reader, const PlainSink& raise);
/// A tree. Files have no nodes, so three greyed ones show what it is.
PlainWidget MakeTree(const BlockReader& reader, const PlainSink& raise);
/// An empty list.
PlainWidget MakeEmptyList(const BlockReader& reader, const PlainSink& raise);
/// A list with an open folder.
PlainWidget MakeFolderList(const BlockReader& reader, const PlainSink& raise);
/// A list with the pattern of its files.
PlainWidget MakeFileList(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
