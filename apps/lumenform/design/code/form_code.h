#pragma once

#include <cstddef>
#include <string_view>

#include "apps/lumenform/design/code/code_outline.h"
#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns the code in the text after the outermost block: what follows the attributes of the form.
TextView CodeIn(TextView tail);

/// The code of a form, with its procedures. The designer does not change it.
class FormCode {
 public:
    /// Takes the code of a document. Reads it only if it differs from the present one.
    /// Returns whether it differs.
    bool Take(const forms::Document& document);

    const Text& Source() const { return source_; }
    const CodeOutline& Outline() const { return outline_; }

 private:
    Text source_;
    CodeOutline outline_;
};

/// Returns the number of the first line of the code in the file as it would be saved.
std::size_t FirstLineOf(TextView code, std::string_view formBytes);

}  // namespace lumenkit::lumenform
