#pragma once

#include "frame/color.h"
#include "frame/text.h"
#include "runtime/win32/screen_font.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A piece of text on one line and the position of its upper left corner.
struct TextRun {
    TextView text;
    POINT at = {};
    const ScreenFontRef& font;
    Color ink;
    bool hasPaper = false;  ///< whether the background is filled with `paper`
    Color paper = {};
};

/// A figure inside a box: an ellipse, or a triangle that points in a direction.
enum class Figure { Ellipse, Up, Down, Left, Right };

/// The target on which surfaces and constituents draw. Lengths are in pixels of the control on
/// every device. Boxes do not include their right and bottom edges.
class Canvas {
 public:
    virtual ~Canvas() = default;

    /// Removes everything drawn and fills the whole canvas with `paper`.
    virtual void Clear(Color paper) = 0;
    virtual void Print(const TextRun& run) = 0;
    virtual void Fill(const RECT& box, Color color) = 0;
    virtual void FillFigure(Figure figure, const RECT& box, Color color) = 0;
    /// Clips the drawing to `box`, in addition to the clips that have begun before. Each clip ends
    /// before the outer one: use CanvasClip.
    virtual void BeginClip(const RECT& box) = 0;
    virtual void EndClip() = 0;
};

}  // namespace lumenkit::win32
