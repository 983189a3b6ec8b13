// The parts of the constituents' interfaces that all kinds implement in the same way.
#pragma once

#include <memory>
#include <utility>

#include "frame/host/constituent.h"
#include "runtime/memory/element.h"
#include "runtime/memory/font.h"
#include "runtime/memory/form.h"

namespace lumenkit::memory {

template <typename Interface>
class BasicConstituent : public Interface, public Element {
 public:
    host::Placement Place() const override {
        Call(u"Place");
        return Where();
    }
    void Move(const host::Placement& placement) override {
        Call(u"Move");
        MoveTo(placement);
    }
    bool Visible() const override {
        Call(u"Visible");
        return IsVisible();
    }
    void SetVisible(bool visible) override {
        Call(u"SetVisible");
        BecomeVisible(visible);
    }
    bool Enabled() const override {
        Call(u"Enabled");
        return IsEnabled();
    }
    void SetEnabled(bool enabled) override {
        Call(u"SetEnabled");
        BecomeEnabled(enabled);
    }
    void Refresh() override {
        Call(u"Refresh");
        RepaintNow();
    }

 protected:
    using Element::Element;
};

template <typename Interface>
class BasicTextConstituent : public BasicConstituent<Interface> {
 public:
    host::FontRef CurrentFont() const override {
        this->Call(u"CurrentFont");
        return font_;
    }
    /// Raises 13 for a font of another runtime.
    void SetCurrentFont(host::FontRef font) override {
        this->Call(u"SetCurrentFont");
        font_ = Font::From(std::move(font));
        ShowFont();
    }

    PropertyList Properties() const override {
        PropertyList list = Element::Properties();
        list.emplace_back(u"Font", ObjectRef(font_));
        return list;
    }

 protected:
    BasicTextConstituent(Elements& elements, TextView kind, const host::Design& design)
        : BasicConstituent<Interface>(elements, kind, design),
          font_(elements.GetForm().NewFont(design.fontName, design.fontSize)) {}

    /// Called when the constituent has another font object.
    virtual void ShowFont() {}
    const Font::Attributes& FontNow() const { return font_->Now(); }

 private:
    std::shared_ptr<Font> font_;
};

template <typename Interface>
class BasicCaptioned : public BasicTextConstituent<Interface> {
 public:
    Text Caption() const override {
        this->Call(u"Caption");
        return caption_;
    }
    void SetCaption(TextView caption) override {
        this->Call(u"SetCaption");
        caption_ = caption;
        ShowCaption();
    }

    PropertyList Properties() const override {
        PropertyList list = BasicTextConstituent<Interface>::Properties();
        list.emplace_back(u"Caption", caption_);
        return list;
    }

 protected:
    BasicCaptioned(Elements& elements, TextView kind, const host::Design& design, TextView caption)
        : BasicTextConstituent<Interface>(elements, kind, design), caption_(caption) {}

    virtual void ShowCaption() {}
    const Text& CaptionNow() const { return caption_; }

 private:
    Text caption_;
};

}  // namespace lumenkit::memory
