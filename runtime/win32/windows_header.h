// The one way in which this runtime includes the platform's header.
#pragma once

#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0601
#endif

// The order matters.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on
