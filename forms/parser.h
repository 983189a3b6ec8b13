// Reads the text of a form into its tree.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/block.h"
#include "forms/form_error.h"
#include "forms/literal.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// A line `Object = "{…}#7.1#0"; "lumenkit.ocx"`: a library that the form uses.
struct LibraryReference {
    Text library;
    Text file;  ///< empty where the line names none
    Position place;
};

/// A reference into the binary companion, with the place of the value.
struct PlacedReference {
    Reference reference;
    Position place;
};

struct ParsedForm {
    Text head;  ///< the lines before the outermost block
    std::vector<LibraryReference> libraries;
    std::unique_ptr<Block> root;
    Text tail;  ///< the lines after it: attributes and code
    Position tailPlace;
    std::vector<PlacedReference> references;
};

/// Blocks may lie this deep in one another.
inline constexpr std::size_t deepestNesting = 256;

/// Throws FormError, with `file` in it, for what is no form.
ParsedForm ParseForm(TextView text, const std::string& file);

}  // namespace lumenkit::forms
