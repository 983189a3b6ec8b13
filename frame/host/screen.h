#pragma once

#include <cstdint>

namespace lumenkit::host {

/// The screen, for converting twips to pixels.
class Screen {
 public:
    virtual ~Screen() = default;

    virtual std::int16_t TwipsPerPixelX() const = 0;
    virtual std::int16_t TwipsPerPixelY() const = 0;
};

}  // namespace lumenkit::host
