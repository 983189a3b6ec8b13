// The standard layout of the lines of a form.
#pragma once

#include "frame/text.h"

namespace lumenkit::forms::layout {

/// The indentation of one nesting level.
inline constexpr TextView indent = u"   ";

/// Returns the part of a property line before the value: `   Name            =   `. The name is
/// padded to 16 units, so that the values of a block are aligned. A leading `Object.` in the name
/// does not count.
Text PropertyPrefix(TextView indentation, TextView name);

/// Return the first line of a block and of a property group, with its trailing blank and without
/// the line break. `identifier` may be empty.
Text BeginLine(TextView indentation, TextView className, TextView name);
Text BeginPropertyLine(TextView indentation, TextView name, TextView identifier);

/// Returns the leading blanks and tabs of a line.
TextView IndentationOf(TextView line);
/// Returns the line break at the end of a line, empty when there is none.
TextView LineBreakOf(TextView line);

}  // namespace lumenkit::forms::layout
