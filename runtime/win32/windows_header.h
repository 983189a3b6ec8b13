// The only place where this runtime includes the platform's header.
#pragma once

// The order matters.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on
