#pragma once

#include <cstdint>

#include "frame/host/option_buttons.h"
#include "runtime/memory/basic_constituent.h"

namespace lumenkit::memory {

class OptionButtons;

class OptionButton final : public BasicCaptioned<host::OptionButton> {
 public:
    /// `design.index` is the index of the element.
    OptionButton(Constituents& owner, const host::OptionButtonDesign& design, OptionButtons& group);

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
    // Read and set the mark without notifications and without calls of the contract.
    bool IsMarked() const { return selected_; }
    void Mark(bool selected) { selected_ = selected; }

 private:
    OptionButtons& group_;
    Text tag_;
    Color foreColor_ = Color::ButtonText;
    std::int16_t alignment_ = 0;
    bool selected_ = false;
};

}  // namespace lumenkit::memory
