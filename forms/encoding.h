// Conversion between the bytes of a form file and its text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/code_page.h"
#include "forms/code_page_guess.h"
#include "forms/known_code_pages.h"
#include "forms/spelling.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The character encoding of one form file. Decoding and encoding again returns the same bytes,
/// except for the spelling of characters that a page has twice (see Spelling).
class Encoding {
 public:
    /// Detects the encoding of `bytes`: UTF-8 if they begin with the UTF-8 mark, if `codePage` is
    /// 65001, or if they are well-formed UTF-8 with at least one character beyond ASCII; otherwise
    /// `codePage`. If that is guessedCodePage, the page is that of GuessCodePage, or 1252 without a
    /// guess. A form in UTF-8 or ASCII then gets the page that its fonts name. Throws
    /// std::invalid_argument for an unknown code page.
    static Encoding Of(std::string_view bytes, int codePage);

    /// Returns the encoding of a form in another code page. In UTF-8, the strings of its companion
    /// stay in their page. Throws std::invalid_argument for an unknown code page.
    Encoding In(int codePage) const;

    /// The code page of the form's text, 65001 for UTF-8.
    int FormCodePage() const { return utf8_ ? utf8CodePage : codePage_.Number(); }
    /// The code page of strings in the binary companion, which is never UTF-8.
    const CodePage& CompanionPage() const { return codePage_; }
    /// The guess by which Of chose the code page of a form, unless it is in UTF-8 or ASCII.
    const std::optional<CodePageGuess>& Guess() const { return guess_; }

    /// Throws MalformedUtf8 with an offset in `bytes`.
    Text Decode(std::string_view bytes) const;
    /// Throws Unmappable.
    std::string Encode(TextView text) const;
    /// The bytes of a file name, which is in UTF-8, as a form in this encoding has it. On Windows
    /// and for a name that the encoding does not have, the name itself.
    std::string NameBytes(const std::string& name) const;
    /// Returns a file name in UTF-8. The name of a file from another system may be in the code page
    /// instead.
    std::string Utf8NameOf(const std::string& name) const;
    /// The unusual bytes of a file in this encoding.
    Spelling SpellingOf(std::string_view bytes) const;

 private:
    explicit Encoding(CodePage codePage) : codePage_(codePage) {}

    CodePage codePage_;
    std::optional<CodePageGuess> guess_;
    bool utf8_ = false;
    bool mark_ = false;
};

}  // namespace lumenkit::forms
