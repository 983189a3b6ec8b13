// Base classes that implement the parts of the constituent interfaces common to all kinds.
#pragma once

#include <string>

#include "frame/host/constituent.h"
#include "runtime/shared/shown_caption.h"
#include "runtime/win32/caption_picture.h"
#include "runtime/win32/element.h"
#include "runtime/win32/font.h"
#include "runtime/win32/font_cache.h"
#include "runtime/win32/thread_shared.h"
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
    /// Raises 13 for a font of another runtime.
    void SetCurrentFont(host::FontRef font) override {
        const HFONT before = FontHandle();
        const std::shared_ptr<Font> former = font_.Get();  // keeps the handle
        font_.Assign(font);
        if (FontHandle() != before) {
            ShowFont();
        }
    }

 protected:
    BasicTextConstituent(const Elements& elements, const Element::Kind& kind,
                         const host::Design& design, TextView text)
        : BasicConstituent<Interface>(elements, kind, design, text),
          font_(*this, elements.context.fonts.NewFont(design.fontName, design.fontSize)) {
        UseFont(FALSE);
    }

    HFONT FontHandle() const { return font_.Get()->Handle(); }
    ScreenFontRef RealisedFont() const { return cache_->Find(FontHandle()); }
    /// Brings a changed font to the window.
    virtual void ShowFont() { UseFont(TRUE); }

 private:
    void FontChanged() override { ShowFont(); }
    void UseFont(BOOL repaint) {
        this->Ask(WM_SETFONT, reinterpret_cast<WPARAM>(FontHandle()), repaint);
    }

    HeldFont font_;
    ThreadShared<FontCache> cache_;
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
        ShowCaption();
        this->TellThatMnemonicsMayChange();
    }

 protected:
    BasicCaptioned(const Elements& elements, const Element::Kind& kind, const host::Design& design,
                   TextView caption, char16_t accessKey = 0)
        : BasicTextConstituent<Interface>(elements, kind, design,
                                          shared::WithAccessKey(caption, accessKey)),
          caption_(caption),
          accessKey_(accessKey) {}

    /// Brings a changed caption to the window.
    virtual void ShowCaption() { SetWindowTextW(this->Handle(), ToWide(ShownCaption()).c_str()); }
    const Text& CaptionNow() const { return caption_; }
    /// The caption as the window shows it, by default with its mnemonic marked.
    virtual Text ShownCaption() const { return shared::WithAccessKey(caption_, accessKey_); }
    CaptionPicture Picture() const { return {ShownCaption(), this->RealisedFont()}; }

 private:
    Text caption_;
    char16_t accessKey_;
};

}  // namespace lumenkit::win32
