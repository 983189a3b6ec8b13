#pragma once

#include <QString>

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

class QLabel;

namespace lumenkit::qt {

/// A label. With AutoSize, a new caption or font resizes the label to its caption, whose lines end
/// in CR LF; until then a Move keeps its effect. A label names the text box that is created next. A
/// label with a mnemonic leads to any constituent that is created next and takes the keyboard
/// focus. A label that uses no mnemonic names and leads to nothing.
class Label final : public BasicCaptioned<host::Label> {
 public:
    Label(Elements& elements, const host::CaptionDesign& design);
    ~Label() override { Release(); }
    Label(const Label&) = delete;
    Label& operator=(const Label&) = delete;

    bool AutoSize() const override { return autoSize_; }
    void SetAutoSize(bool autoSize) override;
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override;
    Color BackColor() const override { return backColor_; }
    void SetBackColor(Color color) override;

    void ShowColors() override;
    void NameNext(QWidget& widget) override;

 private:
    QLabel& Shown() const;
    void ShowFont() override;
    void ShowCaption() override;
    void FitToCaption();
    QString ShownText() const;

    bool useMnemonic_;
    Color foreColor_ = Color::ButtonText;
    Color backColor_ = Color::ButtonFace;
    bool autoSize_ = false;
};

}  // namespace lumenkit::qt
