// The runtime's enumerations that the interfaces of the controls use.
#pragma once

#include <cstdint>

namespace lumenkit::host {

enum class MousePointer : std::int32_t {
    Default = 0,
    Arrow = 1,
    Crosshair = 2,
    IBeam = 3,
    Icon = 4,
    SizePointer = 5,
    SizeNESW = 6,
    SizeNS = 7,
    SizeNWSE = 8,
    SizeWE = 9,
    UpArrow = 10,
    Hourglass = 11,
    NoDrop = 12,
    ArrowHourglass = 13,
    ArrowQuestion = 14,
    SizeAll = 15,
    Custom = 99,
};

enum class ScrollBars : std::int32_t {
    None = 0,
    Horizontal = 1,
    Vertical = 2,
    Both = 3,
};

}  // namespace lumenkit::host
