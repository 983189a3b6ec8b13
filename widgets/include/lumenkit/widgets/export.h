#pragma once

#include <QtCore/qglobal.h>

// Marks what programs may use. Programs that link the static library define
// LUMENKIT_WIDGETS_STATIC; its CMake target and pkg-config file do so.
#if defined(LUMENKIT_WIDGETS_BUILD)
#define LUMENKIT_WIDGETS_EXPORT Q_DECL_EXPORT
#elif defined(LUMENKIT_WIDGETS_STATIC)
#define LUMENKIT_WIDGETS_EXPORT
#else
#define LUMENKIT_WIDGETS_EXPORT Q_DECL_IMPORT
#endif
