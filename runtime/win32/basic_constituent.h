// Base classes that implement the parts of the constituent interfaces common to all kinds.
#pragma once

#include <string>

#include "frame/host/constituent.h"
#include "runtime/win32/element.h"
#include "runtime/win32/font.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

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
class BasicTextConstituent : public BasicConstituent<Interface>, private FontListener {
 public:
    ~BasicTextConstituent() override { this->Destroy(); }  // before the font is released
    BasicTextConstituent(const BasicTextConstituent&) = delete;
    BasicTextConstituent& operator=(const BasicTextConstituent&) = delete;

    host::FontRef CurrentFont() const override { return font_.Get(); }
    /// Raises 380 for a font of another runtime.
    void SetCurrentFont(host::FontRef font) override {
        const HFONT before = FontHandle();
        const std::shared_ptr<Font> former = font_.Get();  // keeps the handle
        font_.Assign(font);
        if (FontHandle() != before) {
            FontChanged();
        }
    }

 protected:
    BasicTextConstituent(const Owner& owner, const Element::Kind& kind, const host::Design& design,
                         TextView text)
        : BasicConstituent<Interface>(owner, kind, design, text),
          font_(*this, owner.context.fonts.NewFont(design.fontName, design.fontSize)) {
        UseFont(false);
    }

    HFONT FontHandle() const { return font_.Get()->Handle(); }
    /// Called when the constituent draws with another font.
    virtual void ShowFont() {}

 private:
    void FontChanged() override {
        UseFont(true);
        ShowFont();
    }
    void UseFont(bool repaint) {
        this->Ask(WM_SETFONT, reinterpret_cast<WPARAM>(FontHandle()), repaint ? TRUE : FALSE);
    }

    HeldFont font_;
};

template <typename Interface>
class BasicCaptioned : public BasicTextConstituent<Interface> {
 public:
    Text Caption() const override { return caption_; }
    void SetCaption(TextView caption) override {
        if (caption == caption_) {
            return;
        }
        caption_ = caption;
        SetWindowTextW(this->Handle(), ToWide(caption).c_str());
        ShowCaption();
    }

 protected:
    BasicCaptioned(const Owner& owner, const Element::Kind& kind, const host::Design& design,
                   TextView caption)
        : BasicTextConstituent<Interface>(owner, kind, design, caption), caption_(caption) {}

    virtual void ShowCaption() {}
    const Text& CaptionNow() const { return caption_; }

 private:
    Text caption_;
};

}  // namespace lumenkit::win32
