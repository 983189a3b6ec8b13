#pragma once

#include <string>
#include <string_view>

#include "frame/class_table.h"

namespace lumenkit::lumenform {

/// Returns the text of an empty form named `name` that can contain the controls of `classes`. Lines
/// end in CR LF.
std::string NewForm(std::string_view name, const ClassTable& classes);

/// Makes a name in code from a file name: its letters, digits and underscores, at most 40, after
/// "frm" if they do not begin with a letter.
std::string FormName(std::string_view fileStem);

}  // namespace lumenkit::lumenform
