#pragma once

#include <cstdint>
#include <optional>

#include "frame/host/option_buttons.h"
#include "runtime/shared/option_array.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

class OptionButton;
using OptionGroup = shared::OptionArray<OptionButton>;

/// A radio button whose mark is set by its array, because the platform's groups do not correspond
/// to arrays.
class OptionButton final : public BasicCaptioned<host::OptionButton> {
 public:
    /// `design.index` is the element's index.
    OptionButton(const Elements& elements, const host::OptionButtonDesign& design,
                 OptionGroup& group);

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
    std::optional<Description> Describe() override;

    // Used by the group.
    void Mark(bool selected);
    void BecomeTabStop(bool stops);
    bool TakesFocus() const { return IsVisible() && IsEnabled(); }

 protected:
    void DrawContent(Canvas& canvas, SIZE size) const override;
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> HandleNotification(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    const Element* Heir() const override { return group_.TabStop(); }
    void Step(bool forward);
    void DrawRing(Canvas& canvas, RECT box) const;

    OptionGroup& group_;
    Text tag_;
    Color foreColor_ = Color::ButtonText;
    std::int16_t alignment_ = 0;
};

}  // namespace lumenkit::win32
