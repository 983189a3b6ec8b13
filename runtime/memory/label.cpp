#include "runtime/memory/label.h"

namespace lumenkit::memory {

Label::Label(Elements& elements, const host::CaptionDesign& design)
    : BasicCaptioned(elements, u"Label", design, design.caption) {}

bool Label::AutoSize() const {
    Call(u"AutoSize");
    return autoSize_;
}

void Label::SetAutoSize(bool autoSize) {
    Call(u"SetAutoSize");
    autoSize_ = autoSize;
    FitToCaption();
}

Color Label::ForeColor() const {
    Call(u"ForeColor");
    return foreColor_;
}

void Label::SetForeColor(Color color) {
    Call(u"SetForeColor");
    foreColor_ = color;
}

Color Label::BackColor() const {
    Call(u"BackColor");
    return backColor_;
}

void Label::SetBackColor(Color color) {
    Call(u"SetBackColor");
    backColor_ = color;
}

PropertyList Label::Properties() const {
    PropertyList list = BasicCaptioned::Properties();
    list.emplace_back(u"AutoSize", autoSize_);
    list.emplace_back(u"ForeColor", FromColor(foreColor_));
    list.emplace_back(u"BackColor", FromColor(backColor_));
    return list;
}

void Label::FitToCaption() {
    if (autoSize_) {
        host::Placement fitting = Where();
        fitting.width = FontNow().WidthOf(CaptionNow());
        fitting.height = static_cast<float>(FontNow().LineHeight());
        MoveTo(fitting);
    }
}

}  // namespace lumenkit::memory
