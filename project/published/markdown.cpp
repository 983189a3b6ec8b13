#include "project/published/markdown.h"

#include <string_view>

#include "frame/utf8.h"

namespace lumenkit::markdown {

std::string Plain(TextView text) {
    constexpr std::string_view meaningful = "\\`*_[]<>|&";
    std::string plain;
    for (const char unit : ToUtf8(text)) {
        if (meaningful.find(unit) != std::string_view::npos) {
            plain += '\\';
        }
        plain += unit;
    }
    return plain;
}

std::string Code(const std::string& text) {
    return "`" + text + "`";
}

std::string Row(const std::vector<std::string>& cells) {
    std::string row = "|";
    for (const std::string& cell : cells) {
        row += cell.empty() ? " |" : " " + cell + " |";
    }
    return row + "\n";
}

std::string Head(const std::vector<std::string>& headings) {
    std::string rule = "|";
    for (std::size_t column = 0; column < headings.size(); ++column) {
        rule += "---|";
    }
    return Row(headings) + rule + "\n";
}

}  // namespace lumenkit::markdown
