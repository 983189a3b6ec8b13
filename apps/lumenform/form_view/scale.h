#pragma once

#include <cstdint>

#include "apps/lumenform/form_view/block_reader.h"
#include "frame/host/constituent.h"

namespace lumenkit::lumenform {

/// The units in which a container's controls are placed, from its ScaleMode: twips, points, pixels,
/// characters, inches, millimetres, centimetres or custom units.
class Scale {
 public:
    /// The scale of places in twips.
    Scale() = default;
    /// The scale of a form or picture box with a client area of `width` by `height` twips.
    static Scale Of(const BlockReader& container, float width, float height);

    host::Placement ToTwips(const host::Placement& units) const;
    host::Placement FromTwips(const host::Placement& twips) const;

 private:
    float left_ = 0;  // coordinates of the upper left corner
    float top_ = 0;
    float x_ = 1;  // twips per unit
    float y_ = 1;
};

/// Converts twips to hundredths of a millimetre, the unit in which controls of component files also
/// save their size.
std::int32_t ExtentOf(float twips);

}  // namespace lumenkit::lumenform
