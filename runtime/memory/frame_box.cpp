#include "runtime/memory/frame_box.h"

#include "frame/host/accepted_values.h"

namespace lumenkit::memory {

FrameBox::FrameBox(Elements& elements, const host::CaptionDesign& design)
    : BasicCaptioned(elements, u"Frame", design, design.caption) {}

std::int16_t FrameBox::BorderStyle() const {
    Call(u"BorderStyle");
    return borderStyle_;
}

void FrameBox::SetBorderStyle(std::int16_t style) {
    Call(u"SetBorderStyle");
    borderStyle_ = AcceptedNumber<std::int16_t>(style, 0, 1);
}

PropertyList FrameBox::Properties() const {
    PropertyList list = BasicCaptioned::Properties();
    list.emplace_back(u"BorderStyle", borderStyle_);
    return list;
}

}  // namespace lumenkit::memory
