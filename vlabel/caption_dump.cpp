#include "vlabel/caption_dump.h"

#include <array>
#include <cstdio>
#include <string_view>

#include "frame/utf8.h"
#include "vlabel/bar_scanner.h"

namespace lumenkit {

namespace {

bool IsPrintable(TextView unit) {
    // The conversion to UTF-8 replaces only lone surrogates.
    return unit.front() >= blank && unit.front() != u'\x7F' && FromUtf8(ToUtf8(unit)) == unit;
}

void AppendEscaped(std::string& dump, char16_t unit) {
    switch (unit) {
        case u'\t':
            dump += "\\t";
            break;
        case u'\n':
            dump += "\\n";
            break;
        case u'\r':
            dump += "\\r";
            break;
        default:
            std::array<char, 8> image{};
            static_cast<void>(
                std::snprintf(image.data(), image.size(), "\\u%04X", static_cast<unsigned>(unit)));
            dump += image.data();
    }
}

bool IsPair(TextView text) {
    return text.size() >= 2 && (text[0] & 0xFC00) == 0xD800 && (text[1] & 0xFC00) == 0xDC00;
}

// Writes a backslash before each of the units in `marked`.
void AppendText(std::string& dump, TextView text, TextView marked) {
    while (!text.empty()) {
        const TextView character = text.substr(0, IsPair(text) ? 2 : 1);
        text.remove_prefix(character.size());
        if (!IsPrintable(character)) {
            AppendEscaped(dump, character.front());
            continue;
        }
        if (marked.find(character.front()) != TextView::npos) {
            dump += '\\';
        }
        dump += ToUtf8(character);
    }
}

void AppendQuoted(std::string& dump, TextView text) {
    dump += '"';
    AppendText(dump, text, u"\"\\");
    dump += "\"\n";
}

void AppendCommand(std::string& dump, const CompiledCaption& compiled, std::int32_t index) {
    dump += "  ";
    if (index > compiled.CommandNames.Count()) {
        dump += "(missing)\n";
        return;
    }
    AppendText(dump, compiled.CommandNames.Item(index), u"\\");
    dump += " = ";
    AppendQuoted(dump, compiled.CommandParams.Item(index));
}

}  // namespace

std::string DumpCaption(const CompiledCaption& compiled) {
    std::string dump;
    std::int32_t command = 0;
    for (std::int32_t i = 1; i <= compiled.CaptionLines.Count(); ++i) {
        const TextView line = compiled.CaptionLines.Item(i);
        dump += "line ";
        AppendQuoted(dump, line);
        BarScanner bars(line);
        for (std::size_t at = bars.Next(0); at < line.size(); at = bars.Next(at + 1)) {
            AppendCommand(dump, compiled, ++command);
        }
    }
    if (command < compiled.CommandNames.Count()) {
        dump += "no line\n";
    }
    while (command < compiled.CommandNames.Count()) {
        AppendCommand(dump, compiled, ++command);
    }
    return dump;
}

}  // namespace lumenkit
