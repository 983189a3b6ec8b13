#pragma once

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

class QLabel;

namespace lumenkit::qt {

/// Where AutoSize is on, a new caption or font gives the label the size of the caption, whose line
/// breaks are CR LF; a later Move stands until then. A label names the text box that is made next,
/// and the mnemonic of one leads to whatever is made next and takes the keyboard.
class Label final : public BasicCaptioned<host::Label> {
 public:
    Label(Constituents& owner, const host::CaptionDesign& design);
    ~Label() override { Release(); }
    Label(const Label&) = delete;
    Label& operator=(const Label&) = delete;

    bool AutoSize() const override { return autoSize_; }
    void SetAutoSize(bool autoSize) override;
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override;
    Color BackColor() const override { return backColor_; }
    void SetBackColor(Color color) override;

    void ApplyColors() override;
    /// What the label names from now on.
    void SetBuddy(QWidget* widget);
    bool HasMnemonicNow() const;

 private:
    QLabel& Shown() const;
    void ApplyFont() override;
    void ShowCaption() override;
    void FitToCaption();

    Color foreColor_ = Color::ButtonText;
    Color backColor_ = Color::ButtonFace;
    bool autoSize_ = false;
};

}  // namespace lumenkit::qt
