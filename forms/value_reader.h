// Reads one value off a form's line.
#pragma once

#include "forms/literal.h"
#include "forms/scanner.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The value at the scanner and behind it, where the line goes on, its comment. Moves the scanner
/// to the end of the line; throws FormError where there is no value or more than one.
struct CommentedLiteral {
    Literal literal;
    Text comment;  ///< without the apostrophe
};
CommentedLiteral ReadValue(Scanner& scanner);

/// The text between quotes, doubled ones made single.
Text ReadQuoted(Scanner& scanner);

/// {…} of hexadecimal digits and hyphens, braces included.
Text ReadGuid(Scanner& scanner);

/// Blanks and a comment up to the end of the line. Throws FormError for anything else.
Text ReadComment(Scanner& scanner);

}  // namespace lumenkit::forms
