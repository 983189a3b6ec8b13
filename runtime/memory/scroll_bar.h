#pragma once

#include <cstdint>

#include "frame/host/simple_constituents.h"
#include "runtime/memory/basic_constituent.h"

namespace lumenkit::memory {

/// Initially from 0 to 32767 with steps of 1.
class ScrollBar final : public BasicConstituent<host::ScrollBar> {
 public:
    ScrollBar(Elements& elements, const host::Design& design, host::Orientation orientation,
              host::ScrollBarEvents& events);

    std::int16_t ScrollValue() const override;
    void SetScrollValue(std::int16_t value) override;
    std::int16_t Max() const override;
    void SetMax(std::int16_t max) override;
    std::int16_t LargeChange() const override;
    void SetLargeChange(std::int16_t step) override;
    std::int16_t SmallChange() const override;
    void SetSmallChange(std::int16_t step) override;

    host::Orientation Direction() const { return orientation_; }
    PropertyList Properties() const override;
    bool TakesFocus() const override { return true; }
    /// Moves the thumb to `value`, or as near as the range allows, as the user does.
    void ReceiveScroll(std::int32_t value);

 private:
    void Scroll(std::int16_t value);

    host::ScrollBarEvents& events_;
    host::Orientation orientation_;
    std::int16_t value_ = 0;
    std::int16_t max_ = 32767;
    std::int16_t largeChange_ = 1;
    std::int16_t smallChange_ = 1;
};

}  // namespace lumenkit::memory
