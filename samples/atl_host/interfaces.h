// The generated interfaces. They name the standard library's Font, which some compilers' COM
// headers (comdef.h) define too; the two must not meet.
#pragma once

#define Font LumenkitFont
#include <lumenkit.h>
#undef Font
