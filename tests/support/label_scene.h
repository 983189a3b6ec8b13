// A caption with all settings that affect its drawing, and the picture that results.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <variant>
#include <vector>

#include "frame/color.h"
#include "frame/text.h"

namespace lumenkit::testing {

struct FontState {
    Text name = u"MS Sans Serif";
    float size = 10;  ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;

    friend bool operator==(const FontState&, const FontState&) = default;
};

/// Lengths are in twips.
struct LabelScene {
    Text caption;
    Text bulletPrefix;
    std::int16_t bulletIndent = 0;
    bool wordWrap = false;
    float width = 3000;
    float height = 1500;
    FontState font;
    Color foreColor = Color::ButtonText;
    float visibleBottom = std::numeric_limits<float>::infinity();
};

struct Cleared {
    friend bool operator==(Cleared, Cleared) = default;
};
struct PrintedText {
    float x = 0;
    float y = 0;
    Text text;
    FontState font;
    Color color = {};

    friend bool operator==(const PrintedText&, const PrintedText&) = default;
};
struct FilledBox {
    float x1 = 0;
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;
    Color color = {};

    friend bool operator==(const FilledBox&, const FilledBox&) = default;
};
using PictureItem = std::variant<Cleared, PrintedText, FilledBox>;

struct LabelPicture {
    std::vector<PictureItem> items;
    // The state after drawing.
    float penX = 0;
    float penY = 0;
    float maxLineX = 0;
    std::int16_t idealHeight = 0;
    FontState font;
    Color foreColor = {};
    std::vector<std::string> reports;  ///< "error 6 in DisplayCaption"

    friend bool operator==(const LabelPicture&, const LabelPicture&) = default;
};

/// One line for each item, then the state after drawing.
std::string ToLines(const LabelPicture& picture);

/// "MS Sans Serif 10 bold italic underline".
std::string ToLine(const FontState& font);
/// "0x80000012".
std::string ToLine(Color color);
/// The shortest decimal text that reads back as the same number.
std::string ToLine(float number);

}  // namespace lumenkit::testing
