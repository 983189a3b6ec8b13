#pragma once

#include <cstdint>

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

namespace lumenkit::qt {

class CheckBoxWidget;

/// A check box, initially not checked. A click of the user checks a box that is not checked and
/// clears a checked or greyed one.
class CheckBox final : public BasicCaptioned<host::CheckBox> {
 public:
    CheckBox(Elements& elements, const host::CaptionDesign& design, host::ClickEvents& events);
    ~CheckBox() override { Release(); }
    CheckBox(const CheckBox&) = delete;
    CheckBox& operator=(const CheckBox&) = delete;

    std::int16_t CheckState() const override { return state_; }
    void SetCheckState(std::int16_t state) override;
    void Disconnect() override;

 private:
    CheckBoxWidget& Box() const;
    void ShowCaption() override;
    void Change(std::int16_t state);

    host::ClickEvents& events_;
    std::int16_t state_ = 0;
};

}  // namespace lumenkit::qt
