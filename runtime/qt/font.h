#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "frame/host/font.h"
#include "runtime/qt/boundary.h"
#include "runtime/qt/font_face.h"

namespace lumenkit::qt {

/// Notified when an attribute of a font that it listens to is set to another value.
class FontListener {
 public:
    virtual ~FontListener() = default;
    virtual void AttributesSet() = 0;
};

/// The font object of this runtime. It keeps the name that it was given, whichever family is drawn
/// instead. Sizes are rounded to four decimal places; a rounded size that is not above 0, or is
/// above 2160 points, raises 380. Used on the user-interface thread only.
class Font final : public host::Font {
 public:
    /// Creates a font of regular weight. Raises 380 like SetSize.
    Font(TextView name, float points);

    Text Name() const override { return now_.name; }
    void SetName(TextView name) override;
    float Size() const override { return now_.size; }
    void SetSize(float points) override;
    bool Bold() const override { return now_.IsBold(); }
    void SetBold(bool bold) override;
    bool Italic() const override { return now_.italic; }
    void SetItalic(bool italic) override;
    bool Underline() const override { return now_.underline; }
    void SetUnderline(bool underline) override;
    bool Strikethrough() const override { return now_.strikethrough; }
    void SetStrikethrough(bool strikethrough) override;
    std::int16_t Weight() const override { return now_.weight; }
    void SetWeight(std::int16_t weight) override;
    std::int16_t Charset() const override { return now_.charset; }
    void SetCharset(std::int16_t charset) override;

    /// Returns a separate font with the same attributes.
    std::shared_ptr<Font> Clone() const;
    /// Takes over all attributes of another font.
    void CopyFrom(const Font& other);

    const FontAttributes& Now() const { return now_; }
    /// Returns the face for measuring and drawing; see FontFace::For.
    const std::shared_ptr<FontFace>& FaceAt(double scale) const;

    /// Notifies the listener until it is removed. A listener must be removed before it is
    /// destroyed.
    void Add(FontListener& listener);
    void Remove(FontListener& listener);

    /// Returns `font` as a font of this runtime. Raises 91 for a null font and 13 for a font of
    /// another runtime.
    static std::shared_ptr<Font> From(host::FontRef font);

 private:
    template <typename T>
    void Put(T& attribute, T value);

    FontAttributes now_;
    std::vector<FontListener*> listeners_;
    mutable std::shared_ptr<FontFace> face_;
    mutable std::vector<std::shared_ptr<FontFace>> recent_;
};

/// Holds the font of a surface or constituent. Several attributes of a font may change one after
/// another, and back again. Therefore `changed` is called later, from the event loop, and only if
/// the font differs from the one that was shown last.
class HeldFont final : private FontListener {
 public:
    /// Errors that `changed` raises from the event loop go to `errors`.
    HeldFont(std::shared_ptr<Font> font, std::function<void()> changed, ErrorSink errors);
    ~HeldFont() override;
    HeldFont(const HeldFont&) = delete;
    HeldFont& operator=(const HeldFont&) = delete;

    /// Holds another font and calls `changed`. Raises 91 for a null font and 13 for a font of
    /// another runtime.
    void Assign(host::FontRef font);
    const std::shared_ptr<Font>& Get() const { return font_; }
    /// Calls `changed` now if a call is due.
    void Flush();

 private:
    void AttributesSet() override;

    std::shared_ptr<Font> font_;
    std::function<void()> changed_;
    ErrorSink errors_;
    FontAttributes shown_;
    bool pending_ = false;
    QObject context_;  // drops the calls posted to it when it is destroyed
};

}  // namespace lumenkit::qt
