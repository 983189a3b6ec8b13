#pragma once

#include <QString>

#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns why the form or its companion cannot hold the text, with the character, or an empty
/// text.
QString WhyUnwritable(const forms::Document& document, TextView text);

}  // namespace lumenkit::lumenform
