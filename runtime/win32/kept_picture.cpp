#include "runtime/win32/kept_picture.h"

namespace lumenkit::win32 {

void KeptPicture::Clear(Color /*paper*/) {
    items_.clear();
    text_.clear();
}

void KeptPicture::Print(const TextRun& run) {
    items_.push_back({.box = {run.at.x, run.at.y, run.at.x, run.at.y},
                      .font = run.font,
                      .begin = text_.size(),
                      .length = run.text.size(),
                      .color = run.ink,
                      .hasPaper = run.hasPaper,
                      .paper = run.paper});
    text_ += run.text;
}

void KeptPicture::Fill(const RECT& box, Color color) {
    items_.push_back({.box = box, .font = {}, .color = color});
}

void KeptPicture::DrawOn(Canvas& canvas) const {
    const TextView text = text_;
    for (const Item& item : items_) {
        if (item.font == nullptr) {
            canvas.Fill(item.box, item.color);
            continue;
        }
        canvas.Print({.text = text.substr(item.begin, item.length),
                      .at = {item.box.left, item.box.top},
                      .font = item.font,
                      .ink = item.color,
                      .hasPaper = item.hasPaper,
                      .paper = item.paper});
    }
}

}  // namespace lumenkit::win32
