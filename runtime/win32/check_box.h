#pragma once

#include <cstdint>
#include <optional>

#include "frame/host/simple_constituents.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

/// A check box, initially not checked. A click of the user checks a box that is not checked and
/// clears a checked or greyed one.
class CheckBox final : public BasicCaptioned<host::CheckBox> {
 public:
    CheckBox(const Elements& elements, const host::CaptionDesign& design,
             host::ClickEvents& events);

    std::int16_t CheckState() const override { return state_; }
    void SetCheckState(std::int16_t state) override;

 protected:
    void DrawContent(Canvas& canvas, SIZE size) const override;
    std::optional<LRESULT> HandleNotification(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    void Change(std::int16_t state);

    host::ClickEvents& events_;
    std::int16_t state_ = 0;
};

}  // namespace lumenkit::win32
