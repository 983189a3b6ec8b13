#include "apps/command_line/manual/shell_text.h"

#include <algorithm>

namespace lumenkit::cli {

std::string PosixQuoted(std::string_view text) {
    std::string quoted = "'";
    for (const char letter : text) {
        quoted += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
    }
    return quoted + '\'';
}

std::string FishQuoted(std::string_view text) {
    return '\'' + WithBackslashes(text, "\\'") + '\'';
}

std::string Joined(const std::vector<std::string>& words, std::string_view separator) {
    std::string joined;
    for (const std::string& word : words) {
        joined += word;
        joined += separator;
    }
    return joined.substr(0, joined.size() - (words.empty() ? 0 : separator.size()));
}

std::string WithBackslashes(std::string_view text, std::string_view letters) {
    std::string escaped;
    for (const char letter : text) {
        if (letters.find(letter) != std::string_view::npos) {
            escaped += '\\';
        }
        escaped += letter;
    }
    return escaped;
}

std::string FunctionName(std::string_view text) {
    std::string name(text);
    std::ranges::replace(name, '-', '_');
    return name;
}

}  // namespace lumenkit::cli
