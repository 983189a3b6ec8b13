#pragma once

#include <cstdint>
#include <optional>

#include "frame/host/simple_constituents.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

/// A group box with its own background, initially with a fixed single border. Without a border it
/// shows no caption either.
class FrameBox final : public BasicCaptioned<host::Frame> {
 public:
    FrameBox(const Elements& elements, const host::CaptionDesign& design);

    std::int16_t BorderStyle() const override { return borderStyle_; }
    void SetBorderStyle(std::int16_t style) override;
    /// The group is named by its caption if that is shown, otherwise by the label before the
    /// control.
    std::optional<Description> Describe() override;

 protected:
    void ShowCaption() override;
    void DrawContent(Canvas& canvas, SIZE size) const override;
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    std::int16_t borderStyle_ = 1;
};

}  // namespace lumenkit::win32
