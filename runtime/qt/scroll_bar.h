#pragma once

#include <cstdint>

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

class QScrollBar;

namespace lumenkit::qt {

/// A scroll bar, initially from 0 to 32767 in steps of 1. Every new value is notified, also while
/// the user drags the thumb.
class ScrollBar final : public BasicConstituent<host::ScrollBar> {
 public:
    ScrollBar(Elements& elements, const host::Design& design, host::Orientation orientation,
              host::ScrollBarEvents& events);
    ~ScrollBar() override { Release(); }
    ScrollBar(const ScrollBar&) = delete;
    ScrollBar& operator=(const ScrollBar&) = delete;

    std::int16_t ScrollValue() const override { return value_; }
    void SetScrollValue(std::int16_t value) override;
    std::int16_t Max() const override { return max_; }
    void SetMax(std::int16_t max) override;
    std::int16_t LargeChange() const override;
    void SetLargeChange(std::int16_t step) override;
    std::int16_t SmallChange() const override;
    void SetSmallChange(std::int16_t step) override;
    void Disconnect() override;

 private:
    QScrollBar& Bar() const;
    void Scroll(std::int16_t value);

    host::ScrollBarEvents& events_;
    std::int16_t value_ = 0;
    std::int16_t max_ = 32767;
};

}  // namespace lumenkit::qt
