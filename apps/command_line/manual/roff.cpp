#include "apps/command_line/manual/roff.h"

#include <algorithm>

namespace lumenkit::cli::roff {

namespace {

std::string_view Replacement(char letter) {
    switch (letter) {
        case '\\':
            return "\\(rs";
        case '-':
            return "\\-";
        case '\'':
            return "\\(aq";
        case '"':
            return "\\(dq";
        case '`':
            return "\\(ga";
        case '^':
            return "\\(ha";
        case '~':
            return "\\(ti";
        default:
            return {};
    }
}

}  // namespace

std::string Escaped(std::string_view text) {
    std::string escaped;
    bool beginsLine = true;
    for (const char letter : text) {
        if (beginsLine && letter == '.') {
            escaped += "\\&";
        }
        const std::string_view replacement = Replacement(letter);
        if (replacement.empty()) {
            escaped += letter;
        } else {
            escaped += replacement;
        }
        beginsLine = letter == '\n';
    }
    return escaped;
}

std::string Bold(std::string_view text) {
    return "\\fB" + Escaped(text) + "\\fR";
}

std::string Italic(std::string_view text) {
    return "\\fI" + Escaped(text) + "\\fR";
}

std::string Heading(std::string_view heading) {
    std::string capitals(heading);
    std::ranges::transform(capitals, capitals.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    return ".SH " + Escaped(capitals) + '\n';
}

std::string Tagged(const std::string& tag, std::string_view text) {
    return ".TP\n" + tag + '\n' + (text.empty() ? "\\&" : Escaped(text)) + '\n';
}

}  // namespace lumenkit::cli::roff
