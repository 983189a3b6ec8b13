#pragma once

#include <cstdint>

#include "frame/host/simple_constituents.h"
#include "runtime/memory/basic_constituent.h"

namespace lumenkit::memory {

/// Initially not checked. A click by the user checks a box that is not checked and clears any
/// other.
class CheckBox final : public BasicCaptioned<host::CheckBox> {
 public:
    CheckBox(Elements& elements, const host::CaptionDesign& design, host::ClickEvents& events);

    std::int16_t CheckState() const override;
    void SetCheckState(std::int16_t state) override;

    PropertyList Properties() const override;
    bool TakesFocus() const override { return true; }
    void ReceiveClick() override;

 private:
    void Change(std::int16_t state);

    host::ClickEvents& events_;
    std::int16_t state_ = 0;
};

}  // namespace lumenkit::memory
