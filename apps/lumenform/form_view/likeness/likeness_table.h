// The table of the classes of other libraries that are shown as likenesses: widgets that look like
// the controls but do nothing.
#pragma once

#include <span>

#include "apps/lumenform/form_view/plain_kind.h"

namespace lumenkit::lumenform {

struct LikenessRow {
    TextView libraries;  ///< the libraries that have the class, separated by blanks
    PlainKind kind;      ///< its className has no library
};

/// In alphabetical order of the classes.
std::span<const LikenessRow> LikenessRows();

/// Returns the likeness of a class, or null if it has none. A number and "Ctrl" at the end of the
/// class name do not count: "MSComctlLib.ListViewCtrl.2" is a ListView.
const PlainKind* LikenessOf(TextView className);

}  // namespace lumenkit::lumenform
