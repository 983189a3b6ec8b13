#pragma once

#include <QPen>
#include <cstdint>

#include "apps/lumenform/form_view/block_reader.h"
#include "frame/color.h"

namespace lumenkit::form {

/// How lines and the borders of shapes are drawn, as BorderColor, BorderStyle and BorderWidth say.
struct Stroke {
    enum Style : std::int32_t { Transparent, Solid, Dash, Dot, DashDot, DashDotDot, InsideSolid };

    Color color = Color::WindowText;
    Style style = Solid;
    int width = 1;  ///< in pixels

    /// Styles that are not known are solid.
    static Stroke Of(const BlockReader& reader);

    /// Only what is a pixel wide is dashed.
    QPen Pen() const;
    /// How many pixels it goes beyond the line that it follows.
    int Reach() const;
};

}  // namespace lumenkit::form
