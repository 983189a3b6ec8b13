#pragma once

#include <string_view>
#include <vector>

#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::form {

/// The items of a list box or combo box, from the companion's record behind its property List: the
/// number of items and a reserved number, then each item behind its length in bytes; all numbers
/// have two bytes, the lower first. A record that is cut gives the items that are whole.
/// The texts are in `codePage`; 1252 stands in for UTF-8, which companions are never in.
std::vector<Text> ItemsOf(std::string_view record, int codePage);

}  // namespace lumenkit::form
