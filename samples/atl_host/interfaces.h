// Includes the generated interfaces. They name the Font of stdole, which the COM headers of some
// compilers (comdef.h) define too. Renaming it avoids the clash.
#pragma once

#define Font LumenkitFont
#include <lumenkit.h>
#undef Font
