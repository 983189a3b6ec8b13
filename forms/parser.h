// Parses the text of a form into its tree.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/block.h"
#include "forms/form_error.h"
#include "forms/literal.h"
#include "forms/warning.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// A line `Object = "{…}#7.1#0"; "lumenkit.ocx"`: a library that the form uses.
struct LibraryReference {
    Text library;
    Text file;  ///< empty when the line has no file name
    Position place;
};

/// A reference into the binary companion, with the position of the value.
struct PlacedReference {
    Reference reference;
    Position place;
};

struct ParsedForm {
    Text head;  ///< the lines before the outermost block
    std::vector<LibraryReference> libraries;
    std::unique_ptr<Block> root;
    Text tail;  ///< the lines after the outermost block: attributes and code
    Position tailPlace;
    std::vector<PlacedReference> references;
    std::vector<Warning> warnings;  ///< at most one per line
};

/// The maximum nesting depth of blocks.
inline constexpr std::size_t deepestNesting = 256;

/// Throws FormError, which contains `file`, for a text that is not a form: without its head, or
/// with blocks that do not match. A line or value inside the form that cannot be understood is
/// kept, with a warning.
ParsedForm ParseForm(TextView text, const std::string& file);

}  // namespace lumenkit::forms
