#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "frame/host/font.h"
#include "runtime/qt/boundary.h"
#include "runtime/qt/face.h"

namespace lumenkit::qt {

/// Told when an attribute of a font that it listens to has been set to another value.
class FontListener {
 public:
    virtual ~FontListener() = default;
    virtual void AttributesSet() = 0;
};

/// The font object of this runtime. It keeps the name it was given, whatever is drawn in its place,
/// and sizes to four decimal places; one that is not above 0 then, or above 2160 points, raises
/// 380. Belongs to the user-interface thread.
class Font final : public host::Font {
 public:
    /// Regular weight. Raises 380 as SetSize does.
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

    /// A font of its own with the same attributes.
    std::shared_ptr<Font> Clone() const;

    const FontAttributes& Now() const { return now_; }
    /// What to measure and draw with; see Face::For.
    const std::shared_ptr<Face>& FaceAt(double scale) const;

    /// The listener is told until it is removed; it must be, before it dies.
    void Add(FontListener& listener);
    void Remove(FontListener& listener);

    /// The font as one of this runtime. Raises 91 for nothing and 13 for a font of another runtime.
    static std::shared_ptr<Font> From(host::FontRef font);

 private:
    template <typename T>
    void Put(T& attribute, T value);

    FontAttributes now_;
    std::vector<FontListener*> listeners_;
    mutable std::shared_ptr<Face> face_;
    mutable std::vector<std::shared_ptr<Face>> recent_;
};

/// What a surface or constituent holds its font by. While a caption is drawn a font changes many
/// times and back again; `changed` is therefore called later, from the event loop, and only if the
/// font is no longer what was shown last.
class HeldFont final : private FontListener {
 public:
    /// What `changed` raises from the event loop goes to `errors`.
    HeldFont(std::shared_ptr<Font> font, std::function<void()> changed, ErrorSink errors);
    ~HeldFont() override;
    HeldFont(const HeldFont&) = delete;
    HeldFont& operator=(const HeldFont&) = delete;

    /// Holds another font and calls `changed`. Raises 91 for nothing, 13 for a font of another
    /// runtime.
    void Assign(host::FontRef font);
    const std::shared_ptr<Font>& Get() const { return font_; }
    /// Calls `changed` now if it is due.
    void Flush();
    /// Whether changes go unnoticed, being the holder's own.
    void SetMuted(bool muted) { muted_ = muted; }

 private:
    void AttributesSet() override;

    std::shared_ptr<Font> font_;
    std::function<void()> changed_;
    ErrorSink errors_;
    FontAttributes shown_;
    bool muted_ = false;
    bool pending_ = false;
    QObject context_;  // what is posted to it is dropped with it
};

}  // namespace lumenkit::qt
