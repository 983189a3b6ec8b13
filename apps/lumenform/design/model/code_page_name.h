// The names of code pages in the user's language.
#pragma once

#include <QString>

#include "forms/known_code_pages.h"

namespace lumenkit::lumenform {

/// "Japanese (Shift JIS)"
QString CodePageTitle(const forms::KnownCodePage& page);

/// "Japanese (Shift JIS), code page 932", or only the number of an unknown page.
QString CodePageName(int number);

}  // namespace lumenkit::lumenform
