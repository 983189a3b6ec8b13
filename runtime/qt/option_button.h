#pragma once

#include <cstdint>

#include "frame/host/option_buttons.h"
#include "runtime/qt/basic_constituent.h"

namespace lumenkit::qt {

class OptionButtons;
class OptionWidget;

class OptionButton final : public BasicCaptioned<host::OptionButton> {
 public:
    /// `design.index` is the element's index.
    OptionButton(Constituents& owner, const host::OptionButtonDesign& design, OptionButtons& group);
    ~OptionButton() override { Release(); }
    OptionButton(const OptionButton&) = delete;
    OptionButton& operator=(const OptionButton&) = delete;

    void SetVisible(bool visible) override;
    void SetEnabled(bool enabled) override;
    Text Tag() const override { return tag_; }
    void SetTag(TextView tag) override { tag_ = tag; }
    bool IsSelected() const override { return selected_; }
    void Select(bool selected) override;
    std::int16_t Alignment() const override { return alignment_; }
    void SetAlignment(std::int16_t alignment) override;
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override;

    void ShowColors() override;
    /// Sets the mark only, without a notification.
    void Mark(bool selected);
    /// Whether the user can move the focus to the button.
    bool IsReachable() const { return IsVisible() && IsEnabled(); }
    /// Sets whether the Tab key stops here.
    void SetTabStop(bool stops);
    void Disconnect() override;

 private:
    OptionWidget& Button() const;
    void ShowCaption() override;

    OptionButtons& group_;
    Text tag_;
    Color foreColor_ = Color::ButtonText;
    std::int16_t alignment_ = 0;
    bool selected_ = false;
};

}  // namespace lumenkit::qt
