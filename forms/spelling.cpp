#include "forms/spelling.h"

#include <utility>

namespace lumenkit::forms {

// A line feed is never a part of a longer byte sequence.
Spelling::Spelling(const CodePage& page, std::string_view bytes) {
    if (page.HasOneByteEach() || page.Encode(page.Decode(bytes)) == bytes) {
        return;
    }
    std::size_t number = 1;
    for (std::size_t start = 0; start < bytes.size(); ++number) {
        const std::string_view line = bytes.substr(start, bytes.find('\n', start) - start);
        Text text = page.Decode(line);
        if (page.Encode(text) != line) {
            lines_.emplace(number, Line{std::move(text), std::string(line)});
        }
        start += line.size() + 1;
    }
}

const std::string* Spelling::Find(std::size_t line, TextView text) const {
    const auto found = lines_.find(line);
    return found == lines_.end() || found->second.text != text ? nullptr : &found->second.bytes;
}

}  // namespace lumenkit::forms
