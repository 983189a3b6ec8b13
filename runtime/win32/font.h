#pragma once

#include <memory>
#include <vector>

#include "frame/host/font.h"
#include "frame/text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Notified when an attribute of a font that it listens to has changed.
class FontListener {
 public:
    virtual ~FontListener() = default;
    virtual void FontChanged() = 0;
};

/// The listeners of a font, for its implementation. A listener that was added more than once is
/// notified as often.
class FontListeners {
 public:
    void Add(FontListener& listener) { listeners_.push_back(&listener); }
    void Remove(FontListener& listener);
    bool IsEmpty() const;
    /// Notifies each listener. Listeners may be added and removed meanwhile; a new one is notified
    /// from the next time on. Allocates nothing.
    void Tell();

 private:
    std::vector<FontListener*> listeners_;  // null: removed during a notification
    int telling_ = 0;
};

/// A font object that this runtime can draw with. Every font that reaches the runtime is one,
/// because its FontMaker creates all of them.
class Font : public host::Font {
 public:
    /// Notifies the listener until it is removed. A listener must be removed before it is
    /// destroyed.
    virtual void Add(FontListener& listener) = 0;
    virtual void Remove(FontListener& listener) = 0;
    /// Returns the platform's handle for the font at the screen's resolution. It is valid until the
    /// font changes or is destroyed. The caller must not delete it.
    virtual HFONT Handle() const = 0;
    /// Returns a separate font with the same attributes and without listeners.
    virtual std::shared_ptr<Font> Clone() const = 0;
};

/// Creates the fonts of this runtime.
class FontMaker {
 public:
    virtual ~FontMaker() = default;

    /// Creates a font of regular weight. Raises 380 for a size that Font refuses.
    virtual std::shared_ptr<Font> NewFont(TextView name, float points) = 0;
};

/// Holds the font of a surface or constituent and listens to it while it holds it.
class HeldFont {
 public:
    HeldFont(FontListener& listener, std::shared_ptr<Font> font);
    ~HeldFont();
    HeldFont(const HeldFont&) = delete;
    HeldFont& operator=(const HeldFont&) = delete;

    /// Holds another font. Raises 91 for a null font and 13 for a font of another runtime. Does
    /// not call the listener.
    void Assign(const host::FontRef& font);
    const std::shared_ptr<Font>& Get() const { return font_; }

 private:
    FontListener& listener_;
    std::shared_ptr<Font> font_;
};

}  // namespace lumenkit::win32
