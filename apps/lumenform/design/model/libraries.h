#pragma once

#include "forms/document.h"
#include "frame/class_table.h"

namespace lumenkit::form {

/// Sees to it that the form names the library of `classes`.
void RequireLibrary(forms::Document& form, const ClassTable& classes);

/// Sees to it that the form names the libraries that the controls of `clip` need. Which of its
/// libraries a class of others is from is not to be seen: then all of them come along.
void RequireLibrariesOf(const forms::Document& clip, forms::Document& form,
                        const ClassTable& classes);

}  // namespace lumenkit::form
