// How designers lay out the lines of a form.
#pragma once

#include "frame/text.h"

namespace lumenkit::forms::layout {

/// What one level of nesting adds.
inline constexpr TextView indent = u"   ";

/// `   Name            =   `, to put a value behind. The names of one block end in one column; the
/// word `Object.` before a name does not count.
Text PropertyPrefix(TextView indentation, TextView name);

/// The first line of a block and of a property group, with the blank that designers leave at its
/// end, and without the line break. `identifier` may be empty.
Text BeginLine(TextView indentation, TextView className, TextView name);
Text BeginPropertyLine(TextView indentation, TextView name, TextView identifier);

/// The blanks that a line begins with.
TextView IndentationOf(TextView line);
/// The line break that a line ends with, empty when it has none.
TextView LineBreakOf(TextView line);

}  // namespace lumenkit::forms::layout
