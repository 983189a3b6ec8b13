#pragma once

#include <QSizeF>
#include <cstdint>

#include "apps/lumenform/form_view/block_reader.h"

namespace lumenkit::lumenform {

/// The coordinates of a container in one direction.
struct ScaleAxis {
    float origin = 0;  ///< the coordinate of the left or upper edge
    float unit = 1;    ///< twips per unit; negative if the coordinates grow to the left or upwards

    /// Converts a coordinate to twips from the left or upper edge, and back.
    float ToTwips(float coordinate) const { return (coordinate - origin) * unit; }
    float FromTwips(float twips) const { return twips / unit + origin; }
    /// Converts a length.
    float LengthToTwips(float length) const { return length * unit; }
    float LengthFromTwips(float twips) const { return twips / unit; }

    friend bool operator==(const ScaleAxis&, const ScaleAxis&) = default;
};

/// The coordinates of a container, from its ScaleMode: twips, points, pixels, characters, inches,
/// millimetres, centimetres or custom units. A form file has the ends of lines and the size of the
/// client area (ScaleWidth, ScaleHeight) in these units. Left, Top, Width and Height of controls
/// are in twips whatever the units are.
struct Scale {
    ScaleAxis across;
    ScaleAxis down;

    /// The scale of a form or picture box with a client area of this size in twips.
    static Scale Of(const BlockReader& container, QSizeF room);

    friend bool operator==(const Scale&, const Scale&) = default;
};

/// Converts twips to hundredths of a millimetre, the unit in which controls of component files also
/// save their size.
std::int32_t ExtentOf(float twips);

}  // namespace lumenkit::lumenform
