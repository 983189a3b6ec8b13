// Conversion between the bytes of a form file and its text.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "forms/code_page.h"
#include "frame/text.h"

namespace lumenkit::forms {

inline constexpr int utf8CodePage = 65001;
inline constexpr int defaultCodePage = 1252;

/// The character encoding of one form file. Decoding and encoding again returns the same bytes.
class Encoding {
 public:
    /// Detects the encoding of `bytes`: UTF-8 if they begin with the UTF-8 mark, if `codePage` is
    /// 65001, or if they are well-formed UTF-8 with at least one character beyond ASCII; otherwise
    /// `codePage`. Throws std::invalid_argument for an unknown code page.
    static Encoding Of(std::string_view bytes, int codePage);

    /// The code page of the form's text, 65001 for UTF-8.
    int FormCodePage() const { return utf8_ ? utf8CodePage : codePage_.Number(); }
    /// The code page of strings in the binary companion, which is never UTF-8.
    const CodePage& CompanionPage() const { return codePage_; }

    /// Throws MalformedUtf8 with an offset in `bytes`.
    Text Decode(std::string_view bytes) const;
    /// Throws Unmappable.
    std::string Encode(TextView text) const;

 private:
    explicit Encoding(CodePage codePage) : codePage_(std::move(codePage)) {}

    CodePage codePage_;
    bool utf8_ = false;
    bool mark_ = false;
};

/// Thrown for a text with a unit that the encoding cannot represent.
struct Unmappable {
    std::size_t index;     ///< index of the unit, from 0
    std::string encoding;  ///< name of the encoding
};

/// Throws Unmappable.
std::string EncodeIn(const CodePage& page, TextView text);

}  // namespace lumenkit::forms
