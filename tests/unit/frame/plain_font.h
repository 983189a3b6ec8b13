// A font that consists of its attributes only.
#pragma once

#include <cstdint>

#include "frame/host/font.h"

namespace lumenkit {

class PlainFont : public host::Font {
 public:
    Text Name() const override { return name; }
    void SetName(TextView newName) override { name = newName; }
    float Size() const override { return size; }
    void SetSize(float points) override { size = points; }
    bool Bold() const override { return bold; }
    void SetBold(bool newBold) override { bold = newBold; }
    bool Italic() const override { return italic; }
    void SetItalic(bool newItalic) override { italic = newItalic; }
    bool Underline() const override { return underline; }
    void SetUnderline(bool newUnderline) override { underline = newUnderline; }
    bool Strikethrough() const override { return strikethrough; }
    void SetStrikethrough(bool newStrikethrough) override { strikethrough = newStrikethrough; }
    std::int16_t Weight() const override { return weight; }
    void SetWeight(std::int16_t newWeight) override { weight = newWeight; }
    std::int16_t Charset() const override { return charset; }
    void SetCharset(std::int16_t newCharset) override { charset = newCharset; }

    Text name = u"MS Sans Serif";
    float size = 10.0F;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    std::int16_t weight = 400;
    std::int16_t charset = 0;
};

}  // namespace lumenkit
