#include "runtime/win32/spoken_text.h"

#include <cstddef>

namespace lumenkit::win32 {

Text WithoutMnemonic(TextView caption) {
    Text plain;
    for (std::size_t at = 0; at < caption.size(); ++at) {
        if (caption[at] == u'&' && ++at == caption.size()) {
            break;
        }
        plain += caption[at];
    }
    return plain;
}

Text SpokenLine(TextView text) {
    constexpr TextView blanks = u" \t\r\n";
    Text line;
    for (std::size_t at = text.find_first_not_of(blanks); at != TextView::npos;) {
        const std::size_t end = text.find_first_of(blanks, at);
        if (!line.empty()) {
            line += blank;
        }
        line += text.substr(at, end - at);
        at = text.find_first_not_of(blanks, end);
    }
    return line;
}

}  // namespace lumenkit::win32
