#pragma once

#include <cstdint>
#include <span>

#include "frame/color.h"
#include "frame/host/font.h"
#include "frame/text.h"

namespace lumenkit::host {

/// A user control's own drawing surface. All lengths are in twips, the origin is the upper left
/// corner of the drawing area, Y grows downwards. What lies outside is clipped.
///
/// Every method belongs to the user-interface thread and may raise an error of the runtime.
class Surface {
 public:
    virtual ~Surface() = default;

    // The pen.
    virtual float CurrentX() const = 0;
    virtual void SetCurrentX(float x) = 0;
    virtual float CurrentY() const = 0;
    virtual void SetCurrentY(float y) = 0;

    /// Clears the surface to BackColor and puts the pen at (0, 0).
    virtual void Cls() = 0;
    /// Draws `text` on one line in the current font and ForeColor, its top left corner at the pen,
    /// and moves CurrentX on by TextWidth(text).
    virtual void Print(TextView text) = 0;
    /// Fills the box from (x1, y1) to (x2, y2), both corner pixels included, and puts the pen at
    /// (x2, y2). `color` 0 stands for a box drawn without a colour of its own: it is ForeColor's.
    virtual void FillBox(float x1, float y1, float x2, float y2, Color color) = 0;

    /// Width of `text` on one line in the current font.
    virtual float TextWidth(TextView text) = 0;
    /// Measures `text` once for all ways of breaking it: puts the unrounded width of its first
    /// i + 1 units into ends[i]. For any part that begins at the start or behind a blank, and ends
    /// at the end, before or behind a blank, the difference of its ends, rounded to single
    /// precision, is its TextWidth. `ends` has as many elements as `text` has units.
    virtual void TextWidths(TextView text, std::span<double> ends) = 0;
    /// Height of one line of `text` in the current font; an empty text has a line's height too.
    virtual float TextHeight(TextView text) = 0;
    /// Size of the drawing area, that is without the border.
    virtual float ScaleWidth() const = 0;
    virtual float ScaleHeight() const = 0;
    /// The Y from which on downwards what is drawn can neither be seen nor is kept; infinite for a
    /// surface that keeps everything.
    virtual float VisibleBottom() const = 0;

    /// The surface's font object, never nothing; a change of it is a change of the surface's font.
    virtual FontRef CurrentFont() const = 0;
    /// Raises 91 for nothing.
    virtual void SetCurrentFont(FontRef font) = 0;
    virtual Color ForeColor() const = 0;
    virtual void SetForeColor(Color color) = 0;
    virtual Color BackColor() const = 0;
    /// Clears what is drawn.
    virtual void SetBackColor(Color color) = 0;
    /// Whether the background shows between the strokes of printed text.
    virtual bool FontTransparent() const = 0;
    virtual void SetFontTransparent(bool transparent) = 0;

    /// Whether the surface keeps what is drawn on it. Where it does not, the host asks for it anew
    /// (Control::UserControl_Paint).
    virtual bool AutoRedraw() const = 0;
    virtual void SetAutoRedraw(bool keep) = 0;
    /// Repaints now: where AutoRedraw is off and the control is shown, UserControl_Paint runs
    /// before the call returns.
    virtual void Refresh() = 0;

    // The control as a rectangle on its container; Width and Height include the border.
    virtual float Width() const = 0;
    virtual float Height() const = 0;
    /// Resizes the control; UserControl_Resize runs before the call returns if the size changed.
    virtual void Size(float width, float height) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    /// 0 none, 1 fixed single. Raises 380 for other values.
    virtual std::int16_t BorderStyle() const = 0;
    virtual void SetBorderStyle(std::int16_t style) = 0;
    /// A member of MousePointer. Raises 380 for other values.
    virtual std::int16_t Pointer() const = 0;
    virtual void SetPointer(std::int16_t pointer) = 0;
};

}  // namespace lumenkit::host
