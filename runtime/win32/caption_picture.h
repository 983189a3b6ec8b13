#pragma once

#include <cstddef>

#include "runtime/win32/canvas.h"

namespace lumenkit::win32 {

/// A caption as buttons show it on one line: without the ampersand that marks its mnemonic, and
/// with one ampersand for two.
class CaptionPicture {
 public:
    CaptionPicture(TextView caption, ScreenFontRef font);

    int Width() const { return font_->Width(text_); }
    int Height() const { return font_->LineHeight(); }
    const ScreenFont& Font() const { return *font_; }
    /// `underlines`: whether the mnemonic is underlined.
    void DrawOn(Canvas& canvas, POINT at, Color ink, bool underlines) const;

 private:
    Text text_;
    ScreenFontRef font_;
    std::size_t mnemonic_ = Text::npos;
};

}  // namespace lumenkit::win32
