#pragma once

#include <cstdint>
#include <optional>

#include "frame/host/simple_constituents.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

/// A scroll bar, initially from 0 to 32767 in steps of 1. The value follows the thumb while it is
/// dragged.
class ScrollBar final : public BasicConstituent<host::ScrollBar> {
 public:
    ScrollBar(const Elements& elements, const host::Design& design, host::Orientation orientation,
              host::ScrollBarEvents& events);

    std::int16_t ScrollValue() const override { return value_; }
    void SetScrollValue(std::int16_t value) override;
    std::int16_t Max() const override { return max_; }
    void SetMax(std::int16_t max) override;
    std::int16_t LargeChange() const override { return largeChange_; }
    void SetLargeChange(std::int16_t step) override;
    std::int16_t SmallChange() const override { return smallChange_; }
    void SetSmallChange(std::int16_t step) override;

    host::Orientation Direction() const { return orientation_; }
    void DrawOn(HDC device) override;

 protected:
    void DrawContent(Canvas& canvas, SIZE size) const override;
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> HandleNotification(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    /// Scrolls to `value`, or as near to it as the range allows. May destroy the object.
    void Scroll(std::int32_t value);
    void ScrollBy(WORD code, WORD position);
    LRESULT TurnWheel(UINT message, WPARAM wParam);
    SCROLLINFO Range() const;
    void ShowRange();

    host::ScrollBarEvents& events_;
    host::Orientation orientation_;
    std::int16_t value_ = 0;
    std::int16_t max_ = 32767;
    std::int16_t largeChange_ = 1;
    std::int16_t smallChange_ = 1;
    int wheel_ = 0;  // turned by less than a whole step so far
};

}  // namespace lumenkit::win32
