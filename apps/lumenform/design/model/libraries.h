#pragma once

#include "forms/document.h"
#include "frame/class_table.h"

namespace lumenkit::lumenform {

/// Adds the library of `classes` to the form if it is missing.
void RequireLibrary(forms::Document& form, const ClassTable& classes);

/// Adds the libraries that the controls of `clip` need to the form. If `clip` has a control of
/// another library, adds all its libraries, because a class name does not show its library file.
void RequireLibrariesOf(const forms::Document& clip, forms::Document& form,
                        const ClassTable& classes);

}  // namespace lumenkit::lumenform
