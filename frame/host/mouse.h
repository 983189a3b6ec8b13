#pragma once

#include <cstdint>

namespace lumenkit::host {

/// Arguments of a mouse notification: the buttons (1 left, 2 right, 4 middle), the keys held down
/// (1 Shift, 2 Ctrl, 4 Alt) and the position in twips, relative to the object that was hit.
struct MouseArguments {
    std::int16_t button = 0;
    std::int16_t shift = 0;
    float x = 0;
    float y = 0;
};

}  // namespace lumenkit::host
