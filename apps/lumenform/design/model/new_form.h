#pragma once

#include <string>
#include <string_view>

#include "frame/class_table.h"

namespace lumenkit::form {

/// The text of an empty form of the name `name`, with lines that end in CR LF, which may hold the
/// controls of `classes`.
std::string NewForm(std::string_view name, const ClassTable& classes);

/// A name for code from a file's: its letters, digits and underscores, at most 40, behind "frm"
/// where it does not begin with a letter.
std::string FormName(std::string_view fileStem);

}  // namespace lumenkit::form
