// The references of a form to the libraries of its controls.
#pragma once

#include <string>

#include "forms/document.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns the reference with which a form names the type library of the classes: "{6B1A…}#7.1#0".
std::string LibraryName(const ClassTable& classes);

/// Returns the file of the library that implements the classes: "lumenkit.ocx".
Text LibraryFile(const ClassTable& classes);

/// Adds the library of `classes` to the form if it is missing.
void RequireLibrary(forms::Document& form, const ClassTable& classes);

/// Adds the libraries that the controls of `clip` need to the form. If `clip` has a control of
/// another library, adds all its libraries, because a class name does not show its library file.
void RequireLibrariesOf(const forms::Document& clip, forms::Document& form,
                        const ClassTable& classes);

}  // namespace lumenkit::lumenform
