#include "runtime/memory/option_button.h"

#include "frame/host/accepted_values.h"

namespace lumenkit::memory {

OptionButton::OptionButton(Elements& elements, const host::OptionButtonDesign& design,
                           OptionGroup& group)
    : BasicCaptioned(elements, u"OptionButton", design, design.caption), group_(group) {}

Text OptionButton::Tag() const {
    Call(u"Tag");
    return tag_;
}

void OptionButton::SetTag(TextView tag) {
    Call(u"SetTag");
    tag_ = tag;
}

bool OptionButton::IsSelected() const {
    Call(u"IsSelected");
    return group_.IsSelected(*this);
}

void OptionButton::Select(bool selected) {
    Call(u"Select");
    if (selected) {
        group_.Choose(*this);
    } else {
        group_.Release(*this);
    }
}

std::int16_t OptionButton::Alignment() const {
    Call(u"Alignment");
    return alignment_;
}

void OptionButton::SetAlignment(std::int16_t alignment) {
    Call(u"SetAlignment");
    alignment_ = AcceptedNumber<std::int16_t>(alignment, 0, 1);
}

Color OptionButton::ForeColor() const {
    Call(u"ForeColor");
    return foreColor_;
}

void OptionButton::SetForeColor(Color color) {
    Call(u"SetForeColor");
    foreColor_ = color;
}

PropertyList OptionButton::Properties() const {
    PropertyList list = BasicCaptioned::Properties();
    list.emplace_back(u"Tag", tag_);
    list.emplace_back(u"Value", group_.IsSelected(*this));
    list.emplace_back(u"Alignment", alignment_);
    list.emplace_back(u"ForeColor", FromColor(foreColor_));
    return list;
}

void OptionButton::ReceiveClick() {
    group_.Choose(*this);
}

}  // namespace lumenkit::memory
