#include "runtime/qt/frame_box.h"

#include "frame/host/accepted_values.h"
#include "runtime/qt/frame_widget.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

FrameBox::FrameBox(Elements& elements, const host::CaptionDesign& design)
    : BasicCaptioned(elements, design, design.caption, design.accessKey) {
    Adopt(std::make_unique<FrameWidget>(&ParentFor(elements, design)));
    ShowFont();
    ShowCaption();
}

FrameWidget& FrameBox::Box() const {
    return static_cast<FrameWidget&>(*Widget());
}

void FrameBox::ShowCaption() {
    Box().setTitle(ToQString(MarkedCaption()));
}

void FrameBox::Describe(const QString& name, const QString& /*hint*/) {
    if (Widget() != nullptr) {
        Box().setAccessibleName(name);
    }
}

void FrameBox::SetBorderStyle(std::int16_t style) {
    borderStyle_ = AcceptedNumber<std::int16_t>(style, 0, 1);
    Box().SetBordered(style == 1);
}

}  // namespace lumenkit::qt
