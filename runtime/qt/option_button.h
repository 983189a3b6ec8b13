#pragma once

#include <cstdint>

#include "frame/host/option_buttons.h"
#include "runtime/qt/basic_constituent.h"
#include "runtime/shared/option_array.h"

namespace lumenkit::qt {

class OptionButton;
class OptionWidget;
using OptionGroup = shared::OptionArray<OptionButton>;

class OptionButton final : public BasicCaptioned<host::OptionButton> {
 public:
    /// `design.index` is the element's index.
    OptionButton(Elements& elements, const host::OptionButtonDesign& design, OptionGroup& group);
    ~OptionButton() override { Release(); }
    OptionButton(const OptionButton&) = delete;
    OptionButton& operator=(const OptionButton&) = delete;

    void SetVisible(bool visible) override;
    void SetEnabled(bool enabled) override;
    Text Tag() const override { return tag_; }
    void SetTag(TextView tag) override { tag_ = tag; }
    bool IsSelected() const override { return group_.IsSelected(*this); }
    void Select(bool selected) override;
    std::int16_t Alignment() const override { return alignment_; }
    void SetAlignment(std::int16_t alignment) override;
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override;

    void ShowColors() override;
    void Disconnect() override;

    // Used by the group.
    void Mark(bool selected);
    void BecomeTabStop(bool stops);
    bool TakesFocus() const { return IsVisible() && IsEnabled(); }

 private:
    OptionWidget& Button() const;
    const Element* Heir() const override { return group_.TabStop(); }
    void ShowCaption() override;
    void Step(bool forward);

    OptionGroup& group_;
    Text tag_;
    Color foreColor_ = Color::ButtonText;
    std::int16_t alignment_ = 0;
};

}  // namespace lumenkit::qt
