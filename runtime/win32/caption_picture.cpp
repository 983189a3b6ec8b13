#include "runtime/win32/caption_picture.h"

#include <utility>

namespace lumenkit::win32 {

CaptionPicture::CaptionPicture(TextView caption, ScreenFontRef font) : font_(std::move(font)) {
    for (std::size_t at = 0; at < caption.size(); ++at) {
        if (caption[at] == u'&') {
            if (++at == caption.size()) {
                break;
            }
            mnemonic_ = caption[at] == u'&' ? mnemonic_ : text_.size();
        }
        text_ += caption[at];
    }
}

void CaptionPicture::DrawOn(Canvas& canvas, POINT at, Color ink, bool underlines) const {
    if (text_.empty()) {
        return;
    }
    canvas.Print({.text = text_, .at = at, .font = font_, .ink = ink});
    if (underlines && mnemonic_ != Text::npos) {
        const int left = font_->Width(TextView(text_).substr(0, mnemonic_));
        const int right = font_->Width(TextView(text_).substr(0, mnemonic_ + 1));
        const LONG top = at.y + font_->Ascent() + 1;
        canvas.Fill({at.x + left, top, at.x + right, top + 1}, ink);
    }
}

}  // namespace lumenkit::win32
