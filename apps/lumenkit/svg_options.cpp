#include "apps/lumenkit/svg_options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

constexpr int leastWidth = 15;  // a pixel
constexpr int mostWidth = 1'000'000;

struct FontStyle {
    std::string_view name;
    bool svg::LabelLook::*isOn;
};

constexpr std::array fontStyles = {
    FontStyle{"bold", &svg::LabelLook::bold},
    FontStyle{"italic", &svg::LabelLook::italic},
    FontStyle{"underline", &svg::LabelLook::underline},
    FontStyle{"strikeout", &svg::LabelLook::strikethrough},
};

Text ArgumentText(const std::string& option, const std::string& written) {
    try {
        return FromUtf8(written);
    } catch (const MalformedUtf8& error) {
        throw CLI::ValidationError(option, error.what());
    }
}

// Removes the part after the last comma, and the comma, and returns the part.
std::string_view TakeLastPart(std::string_view& list) {
    const std::size_t comma = list.rfind(',');
    const std::string_view part = comma == std::string_view::npos ? list : list.substr(comma + 1);
    list = comma == std::string_view::npos ? std::string_view() : list.substr(0, comma);
    return part;
}

template <typename Number>
std::optional<Number> ReadNumber(std::string_view written) {
    Number number{};
    const char* const end = written.data() + written.size();
    const auto [rest, error] = std::from_chars(written.data(), end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

bool TakeStyle(std::string_view part, svg::LabelLook& look) {
    const auto* const style = std::ranges::find(fontStyles, part, &FontStyle::name);
    if (style == fontStyles.end()) {
        return false;
    }
    look.*(style->isOn) = true;
    return true;
}

// "Arial,12,bold". The name may contain commas.
void ReadFont(const std::string& written, svg::LabelLook& look) {
    std::string_view name = written;
    std::string_view part = TakeLastPart(name);
    while (TakeStyle(part, look)) {
        part = TakeLastPart(name);
    }
    const std::optional<float> size = ReadNumber<float>(part);
    if (name.empty() || !size || !svg::IsFontSize(*size)) {
        throw CLI::ValidationError(
            "--font",
            "expected a name, a size above 0 and up to 2160 points, and styles, such as "
            "Arial,12,bold");
    }
    look.fontName = ArgumentText("--font", std::string(name));
    look.fontSize = *size;
}

// "255,0,0".
Color ReadColor(const std::string& option, const std::string& written) {
    std::string_view rest = written;
    std::array<std::optional<std::uint8_t>, 3> parts;
    for (std::size_t index = parts.size(); index-- > 0;) {
        parts.at(index) = ReadNumber<std::uint8_t>(TakeLastPart(rest));
    }
    if (!rest.empty() || written.starts_with(',') || !parts[0] || !parts[1] || !parts[2]) {
        throw CLI::ValidationError(option, "expected three numbers from 0 to 255, such as 0,128,0");
    }
    return Rgb(*parts[0], *parts[1], *parts[2]);
}

CLI::Option* AddColor(CLI::App& command, const std::string& name, Color& color,
                      const std::string& description) {
    return command
        .add_option_function<std::string>(
            name, [name, &color](const std::string& written) { color = ReadColor(name, written); },
            description)
        ->option_text("RED,GREEN,BLUE");
}

CLI::Option* AddWidth(CLI::App& command, svg::LabelLook& look) {
    return command
        .add_option_function<int>(
            "--width", [&look](const int& twips) { look.width = static_cast<float>(twips); },
            "Break words at this width (1440 twips are an inch, 15 a pixel); without it, no words "
            "are broken and the label is as wide as its caption")
        ->check(CLI::Range(leastWidth, mostWidth).description(""))
        ->option_text("TWIPS");
}

CLI::Option* AddFont(CLI::App& command, svg::LabelLook& look) {
    return command
        .add_option_function<std::string>(
            "--font", [&look](const std::string& written) { ReadFont(written, look); },
            "Font of the label, its size in points and any of bold, italic, underline and "
            "strikeout; default: MS Sans Serif,10")
        ->option_text("NAME,SIZE[,STYLE...]");
}

CLI::Option* AddBulletPrefix(CLI::App& command, svg::LabelLook& look) {
    return command
        .add_option_function<std::string>(
            "--bullet-prefix",
            [&look](const std::string& written) {
                look.bulletPrefix = ArgumentText("--bullet-prefix", written);
            },
            "Text at the start of a line that makes the line a bullet item")
        ->option_text("TEXT");
}

CLI::Option* AddBulletIndent(CLI::App& command, svg::LabelLook& look) {
    using Limits = std::numeric_limits<std::int16_t>;
    return command
        .add_option_function<int>(
            "--bullet-indent",
            [&look](const int& twips) { look.bulletIndent = static_cast<std::int16_t>(twips); },
            "Left edge of every line")
        ->check(CLI::Range(int{Limits::min()}, int{Limits::max()}).description(""))
        ->option_text("TWIPS");
}

}  // namespace

CLI::Option* AddSvgOptions(CLI::App& command, bool& isSvg, svg::LabelLook& look) {
    CLI::Option* const flag = command.add_flag(
        "--svg", isSvg, "Draw the caption as a label does, and print the drawing as SVG");
    const std::vector<CLI::Option*> options = {
        AddWidth(command, look),
        AddFont(command, look),
        AddColor(command, "--fore-color", look.foreColor, "Colour of the text; default: 0,0,0"),
        AddColor(command, "--back-color", look.backColor,
                 "Colour of the background; default: 255,255,255"),
        AddBulletPrefix(command, look),
        AddBulletIndent(command, look),
    };
    for (CLI::Option* option : options) {
        option->needs(flag);
    }
    return flag;
}

}  // namespace lumenkit::cli
