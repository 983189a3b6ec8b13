#pragma once

#include <cstdint>
#include <memory>

#include "frame/text.h"
#include "runtime/win32/font.h"
#include "runtime/win32/font_cache.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/thread_shared.h"

namespace lumenkit::win32 {

/// A font that uses only the platform's drawing interface. Sizes are rounded to four decimal
/// places; a rounded size that is not above 0, or is above 2160 points, raises 380.
class GdiFont final : public Font {
 public:
    /// Creates a font of regular weight. Raises 380 like SetSize.
    GdiFont(TextView name, float points, Resolution resolution);

    Text Name() const override { return name_; }
    void SetName(TextView name) override;
    float Size() const override { return size_; }
    void SetSize(float points) override;
    bool Bold() const override;
    void SetBold(bool bold) override;
    bool Italic() const override { return italic_; }
    void SetItalic(bool italic) override;
    bool Underline() const override { return underline_; }
    void SetUnderline(bool underline) override;
    bool Strikethrough() const override { return strikethrough_; }
    void SetStrikethrough(bool strikethrough) override;
    std::int16_t Weight() const override { return weight_; }
    void SetWeight(std::int16_t weight) override;
    std::int16_t Charset() const override { return charset_; }
    void SetCharset(std::int16_t charset) override;

    void Add(FontListener& listener) override { listeners_.Add(listener); }
    void Remove(FontListener& listener) override { listeners_.Remove(listener); }
    HFONT Handle() const override;
    std::shared_ptr<Font> Clone() const override;

 private:
    template <typename Field, typename NewValue>
    void Change(Field& field, const NewValue& value);
    LOGFONTW Design() const;

    Text name_;
    float size_;
    std::int16_t weight_ = FW_NORMAL;
    std::int16_t charset_ = ANSI_CHARSET;
    bool italic_ = false;
    bool underline_ = false;
    bool strikethrough_ = false;
    Resolution resolution_;
    FontListeners listeners_;
    ThreadShared<FontCache> cache_;
    mutable ScreenFontRef realised_;  // null: not realised since the last change
};

/// Creates fonts for one resolution.
class GdiFontMaker final : public FontMaker {
 public:
    explicit GdiFontMaker(Resolution resolution = Resolution::OfScreen())
        : resolution_(resolution) {}
    std::shared_ptr<Font> NewFont(TextView name, float points) override;

 private:
    Resolution resolution_;
};

}  // namespace lumenkit::win32
