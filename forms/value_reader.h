// Reads one value from a line of a form.
#pragma once

#include "forms/literal.h"
#include "forms/scanner.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Reads the value at the scanner and the comment after it, if any. Moves the scanner to the end of
/// the line. Throws FormError when there is no value or more than one.
struct CommentedLiteral {
    Literal literal;
    Text comment;  ///< without the apostrophe
};
CommentedLiteral ReadValue(Scanner& scanner);

/// Reads the text between quotes and replaces doubled quotes by single ones.
Text ReadQuoted(Scanner& scanner);

/// Reads an identifier, {…} with hexadecimal digits and hyphens; returns it with its braces.
Text ReadGuid(Scanner& scanner);

/// Reads blanks and a comment up to the end of the line. Throws FormError for anything else.
Text ReadComment(Scanner& scanner);

}  // namespace lumenkit::forms
