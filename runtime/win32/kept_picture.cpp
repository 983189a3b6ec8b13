#include "runtime/win32/kept_picture.h"

namespace lumenkit::win32 {

void KeptPicture::Clear(Color /*paper*/) {
    items_.clear();
    text_.clear();
}

void KeptPicture::Print(const TextRun& run) {
    items_.push_back({.kind = Kind::Text,
                      .box = {run.at.x, run.at.y, run.at.x, run.at.y},
                      .color = run.ink,
                      .font = run.font,
                      .begin = text_.size(),
                      .length = run.text.size(),
                      .hasPaper = run.hasPaper,
                      .paper = run.paper});
    text_ += run.text;
}

void KeptPicture::Fill(const RECT& box, Color color) {
    items_.push_back({.kind = Kind::Box, .box = box, .color = color});
}

void KeptPicture::FillFigure(Figure figure, const RECT& box, Color color) {
    items_.push_back({.kind = Kind::Figure, .box = box, .color = color, .figure = figure});
}

void KeptPicture::BeginClip(const RECT& box) {
    items_.push_back({.kind = Kind::BeginClip, .box = box});
}

void KeptPicture::EndClip() {
    items_.push_back({.kind = Kind::EndClip});
}

void KeptPicture::DrawOn(Canvas& canvas) const {
    for (const Item& item : items_) {
        DrawOn(canvas, item);
    }
}

void KeptPicture::DrawOn(Canvas& canvas, const Item& item) const {
    switch (item.kind) {
        case Kind::Text:
            return canvas.Print({.text = TextView(text_).substr(item.begin, item.length),
                                 .at = {item.box.left, item.box.top},
                                 .font = item.font,
                                 .ink = item.color,
                                 .hasPaper = item.hasPaper,
                                 .paper = item.paper});
        case Kind::Box:
            return canvas.Fill(item.box, item.color);
        case Kind::Figure:
            return canvas.FillFigure(item.figure, item.box, item.color);
        case Kind::BeginClip:
            return canvas.BeginClip(item.box);
        case Kind::EndClip:
            return canvas.EndClip();
    }
}

}  // namespace lumenkit::win32
