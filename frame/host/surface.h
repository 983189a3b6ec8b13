#pragma once

#include <cstdint>
#include <span>

#include "frame/color.h"
#include "frame/host/font.h"
#include "frame/text.h"

namespace lumenkit::host {

/// A box in device pixels that is counted from an origin. All four pixels belong to the box.
struct PixelBox {
    std::int16_t left;
    std::int16_t top;
    std::int16_t right;
    std::int16_t bottom;
};

/// The drawing surface of a user control. All lengths are in twips. The origin is the upper left
/// corner of the drawing area and Y grows downwards. Drawing outside the area is clipped.
///
/// Call every method on the user-interface thread. Every method may raise an error of the runtime.
class Surface {
 public:
    virtual ~Surface() = default;

    // The pen.
    virtual float CurrentX() const = 0;
    virtual void SetCurrentX(float x) = 0;
    virtual float CurrentY() const = 0;
    virtual void SetCurrentY(float y) = 0;

    /// Clears the surface to BackColor and moves the pen to (0, 0).
    virtual void Cls() = 0;
    /// Draws `text` on one line in the current font and ForeColor, with its top left corner at the
    /// pen, and advances CurrentX by TextWidth(text). A control character (IsControl) is
    /// drawn as a blank and measured like one.
    virtual void Print(TextView text) = 0;
    /// Fills the box from (x1, y1) to (x2, y2), both corner pixels included, and moves the pen to
    /// (x2, y2). `color` 0 means that no colour is given: the box is filled with ForeColor.
    virtual void FillBox(float x1, float y1, float x2, float y2, Color color) = 0;
    /// Fills a box that is counted from the device pixel at (x, y), so that boxes with the same
    /// origin fit together at any resolution. Otherwise as FillBox.
    virtual void FillPixels(float x, float y, const PixelBox& box, Color color) = 0;

    /// Returns the width of `text` on one line in the current font.
    virtual float TextWidth(TextView text) = 0;
    /// Measures `text` once, so that the caller can try many line breaks: stores the unrounded
    /// width of the first i + 1 units in ends[i]. For a part that begins at the start of the text
    /// or after a blank, and ends at the end of the text or before or after a blank, the difference
    /// of its two ends, rounded to single precision, equals its TextWidth. `ends` has as many
    /// elements as `text` has units.
    virtual void TextWidths(TextView text, std::span<double> ends) = 0;
    /// Returns the height of one line of `text` in the current font. An empty text has the height
    /// of a line.
    virtual float TextHeight(TextView text) = 0;
    /// Size of the drawing area, which excludes the border.
    virtual float ScaleWidth() const = 0;
    virtual float ScaleHeight() const = 0;
    /// Returns the Y below which drawing is neither visible nor kept; infinity for a surface that
    /// keeps everything.
    virtual float VisibleBottom() const = 0;

    /// Returns the surface's font object, never null. A change of the object changes the font of
    /// the surface.
    virtual FontRef CurrentFont() const = 0;
    /// Raises 91 when `font` is null.
    virtual void SetCurrentFont(FontRef font) = 0;
    /// Begins a drawing whose parts differ in font, and returns the font of the drawing: a font of
    /// the surface that starts as a copy of CurrentFont. Print and the measures use it until
    /// EndDrawing. Changes of it notify nobody and leave CurrentFont as it is. Drawings do not
    /// nest.
    virtual FontRef BeginDrawing() = 0;
    virtual void EndDrawing() = 0;
    virtual Color ForeColor() const = 0;
    virtual void SetForeColor(Color color) = 0;
    virtual Color BackColor() const = 0;
    /// Also clears the surface.
    virtual void SetBackColor(Color color) = 0;
    /// Whether the background shows through between the strokes of printed text.
    virtual bool FontTransparent() const = 0;
    virtual void SetFontTransparent(bool transparent) = 0;

    /// Whether the surface keeps its drawing. If it does not, the host repaints it by calling
    /// Control::UserControl_Paint.
    virtual bool AutoRedraw() const = 0;
    virtual void SetAutoRedraw(bool keep) = 0;
    /// Repaints now: if AutoRedraw is off and the control is shown, UserControl_Paint runs before
    /// the call returns.
    virtual void Refresh() = 0;

    // The size of the control in its container; Width and Height include the border.
    virtual float Width() const = 0;
    virtual float Height() const = 0;
    /// Resizes the control; UserControl_Resize runs before the call returns if the size changed.
    virtual void Size(float width, float height) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    /// 0 none, 1 fixed single. Setting raises 380 for other values.
    virtual std::int16_t BorderStyle() const = 0;
    virtual void SetBorderStyle(std::int16_t style) = 0;
    /// A member of MousePointer. Setting raises 380 for other values.
    virtual std::int16_t Pointer() const = 0;
    virtual void SetPointer(std::int16_t pointer) = 0;
};

}  // namespace lumenkit::host
