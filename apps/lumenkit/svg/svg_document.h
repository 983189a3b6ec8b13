// Writes a recorded drawing as an SVG document.
#pragma once

#include <string>

#include "frame/color.h"
#include "frame/text.h"
#include "runtime/memory/display_list.h"

namespace lumenkit::svg {

/// The surface of a drawing. All colours are RGB.
struct Page {
    double width = 0;   ///< twips, above 0
    double height = 0;  ///< twips, above 0
    Color backColor = {};
    // The font and colour of most texts. Only other texts name theirs.
    TextView fontName = {};
    float fontSize = 0;  ///< points
    Color foreColor = {};
    /// The lines of the drawing for people who do not see it, separated by CR LF.
    TextView plainText = {};
};

/// Where the base line of a text is, in sizes of its font below its top. The recording has no base
/// line; this one puts the letters of common fonts into the middle of their line.
inline constexpr double baseLine = 0.95;

/// Returns the document in UTF-8. Its unit is a point (20 twips), and 15 twips are a pixel of a
/// viewer.
///
/// Every text is an element of its own, in the order of the drawing, with its recorded place and
/// width: a viewer that draws it in another font stretches or condenses the letters to that width.
std::string ToSvg(const memory::DisplayList& drawn, const Page& page);

}  // namespace lumenkit::svg
