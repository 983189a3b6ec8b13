#pragma once

#include <cstdint>

#include "frame/host/option_buttons.h"
#include "runtime/memory/basic_constituent.h"
#include "runtime/shared/option_array.h"

namespace lumenkit::memory {

class OptionButton;
using OptionGroup = shared::OptionArray<OptionButton>;

class OptionButton final : public BasicCaptioned<host::OptionButton> {
 public:
    /// `design.index` is the index of the element.
    OptionButton(Elements& elements, const host::OptionButtonDesign& design, OptionGroup& group);

    Text Tag() const override;
    void SetTag(TextView tag) override;
    bool IsSelected() const override;
    void Select(bool selected) override;
    std::int16_t Alignment() const override;
    void SetAlignment(std::int16_t alignment) override;
    Color ForeColor() const override;
    void SetForeColor(Color color) override;

    PropertyList Properties() const override;
    bool TakesFocus() const override { return true; }
    void ReceiveClick() override;

    // Used by the group, which keeps which button is selected.
    void Mark(bool /*selected*/) {}
    void BecomeTabStop(bool /*stops*/) {}

 private:
    OptionGroup& group_;
    Text tag_;
    Color foreColor_ = Color::ButtonText;
    std::int16_t alignment_ = 0;
};

}  // namespace lumenkit::memory
