#pragma once

#include <string>

#include "apps/lumenkit/check/finding.h"
#include "forms/document.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::check {

/// What is wrong with the controls of a form that are of a class in `classes`, in the order of the
/// file.
Findings CheckForm(const forms::Document& document, const ClassTable& classes);

/// What is wrong with a caption that is the text of the file `name`.
Findings CheckCaptionFile(const std::string& name, TextView caption);

}  // namespace lumenkit::check
