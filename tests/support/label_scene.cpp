#include "tests/support/label_scene.h"

#include <array>
#include <charconv>
#include <cstdio>

#include "frame/utf8.h"

namespace lumenkit::testing {

namespace {

std::string Style(const FontState& font) {
    return ToLine(font.size) + (font.bold ? " bold" : "") + (font.italic ? " italic" : "") +
           (font.underline ? " underline" : "");
}

std::string Point(float x, float y) {
    return "(" + ToLine(x) + ", " + ToLine(y) + ")";
}

std::string Describe(Cleared) {
    return "Cls";
}

// The font's name is left out: it never changes while a caption is drawn.
std::string Describe(const PrintedText& print) {
    return "Print " + Point(print.x, print.y) + " \"" + ToUtf8(print.text) + "\" " +
           Style(print.font) + " " + ToLine(print.color);
}

std::string Describe(const FilledBox& box) {
    return "Box " + Point(box.x1, box.y1) + "-" + Point(box.x2, box.y2) + " " + ToLine(box.color);
}

}  // namespace

std::string ToLine(float number) {
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), result.ptr};
}

std::string ToLine(Color color) {
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "0x%08X", static_cast<unsigned>(color));
    return digits.data();
}

std::string ToLine(const FontState& font) {
    return ToUtf8(font.name) + " " + Style(font);
}

std::string ToLines(const LabelPicture& picture) {
    std::string lines;
    for (const PictureItem& item : picture.items) {
        lines += std::visit([](const auto& what) { return Describe(what); }, item) + "\n";
    }
    lines += "Pen " + Point(picture.penX, picture.penY) + "\n";
    lines += "MaxLineX " + ToLine(picture.maxLineX) + "\n";
    lines += "IdealHeight " + std::to_string(picture.idealHeight) + "\n";
    lines += "Font " + ToLine(picture.font) + "\n";
    lines += "ForeColor " + ToLine(picture.foreColor) + "\n";
    for (const std::string& report : picture.reports) {
        lines += "Report: " + report + "\n";
    }
    return lines;
}

}  // namespace lumenkit::testing
