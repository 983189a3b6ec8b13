#pragma once

#include "frame/host/simple_constituents.h"
#include "runtime/memory/basic_constituent.h"

namespace lumenkit::memory {

/// If AutoSize is on, a new caption or font object resizes the label to the width of the caption
/// and the height of one line. A later Move is kept until the next such change.
class Label final : public BasicCaptioned<host::Label> {
 public:
    Label(Elements& elements, const host::CaptionDesign& design);

    bool AutoSize() const override;
    void SetAutoSize(bool autoSize) override;
    Color ForeColor() const override;
    void SetForeColor(Color color) override;
    Color BackColor() const override;
    void SetBackColor(Color color) override;

    PropertyList Properties() const override;

 private:
    void ShowFont() override { FitToCaption(); }
    void ShowCaption() override { FitToCaption(); }
    void FitToCaption();

    Color foreColor_ = Color::ButtonText;
    Color backColor_ = Color::ButtonFace;
    bool autoSize_ = false;
};

}  // namespace lumenkit::memory
