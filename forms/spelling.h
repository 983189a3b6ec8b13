// Keeps the bytes of lines whose characters could be written in another way.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

#include "forms/code_page.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The lines of a file whose bytes are not those that the code page writes for their text, because
/// it has two byte sequences for a character. Most files have none.
class Spelling {
 public:
    Spelling() = default;
    Spelling(const CodePage& page, std::string_view bytes);

    bool IsUsual() const { return lines_.empty(); }
    /// Returns the bytes of a line, counted from 1, without its line feed. Null unless the file has
    /// other bytes than the usual ones for this text in this line.
    const std::string* Find(std::size_t line, TextView text) const;

 private:
    struct Line {
        Text text;
        std::string bytes;
    };

    std::map<std::size_t, Line> lines_;
};

}  // namespace lumenkit::forms
