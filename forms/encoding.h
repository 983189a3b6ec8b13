// Between the bytes of a form file and its text.
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

/// How the bytes of one form file stand for text. Decoding and encoding again gives the same bytes.
class Encoding {
 public:
    /// What `bytes` are written in: UTF-8 where they begin with its mark or `codePage` is 65001 or
    /// they are well-formed UTF-8 with at least one character beyond ASCII; `codePage` otherwise.
    /// Throws std::invalid_argument for a code page that is not known.
    static Encoding Of(std::string_view bytes, int codePage);

    /// Of the form's text: a code page's number, or 65001.
    int FormCodePage() const { return utf8_ ? utf8CodePage : codePage_.Number(); }
    /// The page of strings in the binary companion, which designers never write in UTF-8.
    const CodePage& CompanionPage() const { return codePage_; }

    /// Throws MalformedUtf8, its offset counted in `bytes`.
    Text Decode(std::string_view bytes) const;
    /// Throws Unmappable.
    std::string Encode(TextView text) const;

 private:
    explicit Encoding(CodePage codePage) : codePage_(std::move(codePage)) {}

    CodePage codePage_;
    bool utf8_ = false;
    bool mark_ = false;
};

/// Thrown for a text with a unit that the encoding does not have.
struct Unmappable {
    std::size_t index;     ///< of the unit, from 0
    std::string encoding;  ///< the encoding's name
};

/// Throws Unmappable.
std::string EncodeIn(const CodePage& page, TextView text);

}  // namespace lumenkit::forms
