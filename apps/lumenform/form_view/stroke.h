#pragma once

#include <QPen>
#include <cstdint>

#include "apps/lumenform/form_view/block_reader.h"
#include "frame/color.h"

namespace lumenkit::lumenform {

/// The pen of lines and of the borders of shapes, from BorderColor, BorderStyle and BorderWidth.
struct Stroke {
    enum Style : std::int32_t { Transparent, Solid, Dash, Dot, DashDot, DashDotDot, InsideSolid };

    Color color = Color::WindowText;
    Style style = Solid;
    int width = 1;  ///< in pixels

    /// Reads the stroke from a block. Unknown styles are solid.
    static Stroke Of(const BlockReader& reader);

    /// The pen for painting. Only lines of one pixel are dashed.
    QPen Pen() const;
    /// The number of pixels by which the stroke exceeds the line that it follows.
    int Reach() const;
};

}  // namespace lumenkit::lumenform
