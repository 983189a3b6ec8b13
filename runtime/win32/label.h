#pragma once

#include <optional>

#include "frame/host/simple_constituents.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

/// A label whose text the platform breaks into lines, unless it uses no mnemonic. A mnemonic in the
/// text belongs to the next window in the tab order.
class Label final : public BasicCaptioned<host::Label> {
 public:
    Label(const Elements& elements, const host::CaptionDesign& design);

    bool AutoSize() const override { return autoSize_; }
    void SetAutoSize(bool autoSize) override;
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override;
    Color BackColor() const override { return backColor_; }
    void SetBackColor(Color color) override;
    std::optional<Description> Describe() override;

 protected:
    void ShowCaption() override;
    Text ShownCaption() const override;
    void ShowFont() override;
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void DrawContent(Canvas& canvas, SIZE size) const override;
    std::optional<LRESULT> HandleNotification(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    void FitToCaption();

    bool useMnemonic_;
    bool autoSize_ = false;
    Color foreColor_ = Color::ButtonText;
    Color backColor_ = Color::ButtonFace;
};

}  // namespace lumenkit::win32
