#include "runtime/qt/frame.h"

#include "frame/host/accepted_values.h"
#include "runtime/qt/frame_widget.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

Frame::Frame(Constituents& owner, const host::CaptionDesign& design)
    : BasicCaptioned(owner, design, design.caption) {
    Adopt(std::make_unique<FrameWidget>(&ParentFor(owner, design)));
    ApplyFont();
    ShowCaption();
}

FrameWidget& Frame::Box() const {
    return static_cast<FrameWidget&>(*Widget());
}

void Frame::ShowCaption() {
    Box().setTitle(ToQString(CaptionNow()));
}

void Frame::SetBorderStyle(std::int16_t style) {
    borderStyle_ = AcceptedNumber<std::int16_t>(style, 0, 1);
    Box().SetBordered(style == 1);
}

}  // namespace lumenkit::qt
