// Bytes of names and files whose encoding is not known.
#pragma once

#include <string>
#include <string_view>

namespace lumenkit::forms {

/// Returns the letter in lower case if it is one of A to Z, otherwise the same byte.
constexpr char LowerAscii(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string LowerAscii(std::string_view text);

bool IsAscii(std::string_view bytes);
bool IsUtf8(std::string_view bytes);

}  // namespace lumenkit::forms
