// Base classes that implement the parts of the constituent interfaces common to all kinds.
#pragma once

#include <memory>
#include <utility>

#include "frame/host/constituent.h"
#include "runtime/qt/element.h"
#include "runtime/qt/font.h"
#include "runtime/shared/shown_caption.h"

namespace lumenkit::qt {

template <typename Interface>
class BasicConstituent : public Interface, public Element {
 public:
    host::Placement Place() const override { return Where(); }
    void Move(const host::Placement& placement) override { MoveTo(placement); }
    bool Visible() const override { return IsVisible(); }
    void SetVisible(bool visible) override { BecomeVisible(visible); }
    bool Enabled() const override { return IsEnabled(); }
    void SetEnabled(bool enabled) override { BecomeEnabled(enabled); }
    void Refresh() override { RepaintNow(); }

 protected:
    using Element::Element;
};

template <typename Interface>
class BasicTextConstituent : public BasicConstituent<Interface> {
 public:
    host::FontRef CurrentFont() const override { return font_.Get(); }
    /// Raises 13 for a font of another runtime.
    void SetCurrentFont(host::FontRef font) override { font_.Assign(std::move(font)); }
    void Refresh() override {
        font_.Flush();
        this->RepaintNow();
    }

 protected:
    BasicTextConstituent(Elements& elements, const host::Design& design)
        : BasicConstituent<Interface>(elements, design),
          font_(
              std::make_shared<Font>(design.fontName, design.fontSize), [this] { ShowFont(); },
              this->Errors()) {}

    /// Called when the font is replaced or one of its attributes changes.
    virtual void ShowFont() {
        if (QWidget* widget = this->Widget()) {
            widget->setFont(CurrentFace().WidgetFont());
        }
    }
    FontFace& CurrentFace() const {
        return *font_.Get()->FaceAt(1);  // widgets draw text in whole pixels at every scale
    }

 private:
    HeldFont font_;
};

template <typename Interface>
class BasicCaptioned : public BasicTextConstituent<Interface> {
 public:
    Text Caption() const override { return caption_; }
    void SetCaption(TextView caption) override {
        caption_ = caption;
        ShowCaption();
    }

 protected:
    BasicCaptioned(Elements& elements, const host::Design& design, TextView caption,
                   char16_t accessKey = 0)
        : BasicTextConstituent<Interface>(elements, design),
          caption_(caption),
          accessKey_(accessKey) {}

    virtual void ShowCaption() = 0;
    const Text& CaptionNow() const { return caption_; }
    /// The caption with its mnemonic marked.
    Text MarkedCaption() const { return shared::WithAccessKey(caption_, accessKey_); }

 private:
    Text caption_;
    char16_t accessKey_;
};

}  // namespace lumenkit::qt
