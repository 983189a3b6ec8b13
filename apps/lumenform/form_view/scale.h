#pragma once

#include <cstdint>

#include "apps/lumenform/form_view/block_reader.h"
#include "frame/host/constituent.h"

namespace lumenkit::form {

/// The units in which a container's controls are placed, as its ScaleMode says: twips, points,
/// pixels, characters, inches, millimetres, centimetres or units of its own.
class Scale {
 public:
    /// Twips.
    Scale() = default;
    /// Of a form or picture box that is `width` by `height` twips inside.
    static Scale Of(const BlockReader& container, float width, float height);

    host::Placement ToTwips(const host::Placement& units) const;
    host::Placement FromTwips(const host::Placement& twips) const;

 private:
    float left_ = 0;  // the coordinates of the upper left corner
    float top_ = 0;
    float x_ = 1;  // twips in a unit
    float y_ = 1;
};

/// Hundredths of a millimetre, in which controls of component files also save their size.
std::int32_t ExtentOf(float twips);

}  // namespace lumenkit::form
