// Forms in another code page than the one they were read in.
#pragma once

#include "forms/document.h"

namespace lumenkit::forms {

/// Returns the document as it is written in another code page, 65001 for UTF-8: the same texts with
/// other bytes. Nothing is written to the disk. Throws FormError for a character that the page does
/// not have, for bytes that are no characters of the present page, and if the companion has texts
/// that would be read in another page afterwards. Throws std::invalid_argument for an unknown page.
Document InCodePage(const Document& document, int codePage);

}  // namespace lumenkit::forms
