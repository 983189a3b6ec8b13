#include "runtime/memory/scroll_bar.h"

#include <algorithm>

#include "frame/host/accepted_values.h"

namespace lumenkit::memory {

ScrollBar::ScrollBar(Elements& elements, const host::Design& design, host::Orientation orientation,
                     host::ScrollBarEvents& events)
    : BasicConstituent(elements, u"ScrollBar", design),
      events_(events),
      orientation_(orientation) {}

std::int16_t ScrollBar::ScrollValue() const {
    Call(u"ScrollValue");
    return value_;
}

void ScrollBar::SetScrollValue(std::int16_t value) {
    Call(u"SetScrollValue");
    Scroll(AcceptedNumber<std::int16_t>(value, 0, max_));
}

std::int16_t ScrollBar::Max() const {
    Call(u"Max");
    return max_;
}

void ScrollBar::SetMax(std::int16_t max) {
    Call(u"SetMax");
    Require(max >= 0);
    max_ = max;
    Scroll(std::min(value_, max_));
}

std::int16_t ScrollBar::LargeChange() const {
    Call(u"LargeChange");
    return largeChange_;
}

void ScrollBar::SetLargeChange(std::int16_t step) {
    Call(u"SetLargeChange");
    Require(step >= 1);
    largeChange_ = step;
}

std::int16_t ScrollBar::SmallChange() const {
    Call(u"SmallChange");
    return smallChange_;
}

void ScrollBar::SetSmallChange(std::int16_t step) {
    Call(u"SetSmallChange");
    Require(step >= 1);
    smallChange_ = step;
}

PropertyList ScrollBar::Properties() const {
    PropertyList list = BasicConstituent::Properties();
    list.emplace_back(u"Value", value_);
    list.emplace_back(u"Min", std::int16_t{0});
    list.emplace_back(u"Max", max_);
    list.emplace_back(u"LargeChange", largeChange_);
    list.emplace_back(u"SmallChange", smallChange_);
    return list;
}

void ScrollBar::ReceiveScroll(std::int32_t value) {
    Scroll(static_cast<std::int16_t>(std::clamp<std::int32_t>(value, 0, max_)));
}

void ScrollBar::Scroll(std::int16_t value) {
    if (value != value_) {
        value_ = value;
        events_.Change();
    }
}

}  // namespace lumenkit::memory
