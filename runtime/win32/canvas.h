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

/// The target on which a surface draws. Lengths are in pixels of the surface's drawing area on
/// every device.
class Canvas {
 public:
    virtual ~Canvas() = default;

    /// Removes everything drawn and fills the whole canvas with `paper`.
    virtual void Clear(Color paper) = 0;
    virtual void Print(const TextRun& run) = 0;
    virtual void Fill(const RECT& box, Color color) = 0;
};

}  // namespace lumenkit::win32
