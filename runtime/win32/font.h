#pragma once

#include <memory>

#include "frame/host/font.h"
#include "frame/text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Told whenever an attribute of a font that it listens to has changed.
class FontListener {
 public:
    virtual ~FontListener() = default;
    virtual void FontChanged() = 0;
};

/// A font object that things of this runtime draw with. Every font that reaches this runtime is
/// one: they all come from its FontMaker.
class Font : public host::Font {
 public:
    /// The listener is told until it is removed; it must be, before it dies.
    virtual void Add(FontListener& listener) = 0;
    virtual void Remove(FontListener& listener) = 0;
    /// The platform's own handle for the font at the screen's resolution; valid until the font
    /// changes or dies. Not the caller's to delete.
    virtual HFONT Handle() const = 0;
};

/// Makes the fonts of this runtime.
class FontMaker {
 public:
    virtual ~FontMaker() = default;

    /// Regular weight. Raises 380 for a size that Font refuses.
    virtual std::shared_ptr<Font> NewFont(TextView name, float points) = 0;
};

/// What a surface or constituent holds its font by: listens as long as it holds.
class HeldFont {
 public:
    HeldFont(FontListener& listener, std::shared_ptr<Font> font);
    ~HeldFont();
    HeldFont(const HeldFont&) = delete;
    HeldFont& operator=(const HeldFont&) = delete;

    /// Raises 91 for nothing, 380 for a font of another runtime. Does not call the listener.
    void Assign(const host::FontRef& font);
    const std::shared_ptr<Font>& Get() const { return font_; }

 private:
    FontListener& listener_;
    std::shared_ptr<Font> font_;
};

}  // namespace lumenkit::win32
