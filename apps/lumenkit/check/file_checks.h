#pragma once

#include <string>

#include "apps/lumenkit/check/finding.h"
#include "forms/document.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::check {

/// Checks the controls of a form whose class is in `classes`, in the order of the file.
Findings CheckForm(const forms::Document& document, const ClassTable& classes);

/// Checks one control, except for what depends on others: its name and that for screen readers.
/// `type` is its class.
Findings CheckOneControl(const forms::Document& document, forms::Block& block,
                         const ClassDescriptor& type);

/// Checks a caption that is the whole text of the file `name`.
Findings CheckCaptionFile(const std::string& name, TextView caption);

}  // namespace lumenkit::check
