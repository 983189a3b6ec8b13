// Guesses the code page of a form for which nobody names one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/position.h"

namespace lumenkit::forms {

/// A code page that a form was read in although nobody named it.
struct CodePageGuess {
    enum class Reason {
        Fonts,  ///< the fonts of the form have the character set of this page
        Bytes   ///< the bytes are frequent characters of this page
    };

    int page;
    Reason reason;
    Position place;  ///< of the first byte beyond ASCII

    friend bool operator==(const CodePageGuess&, const CodePageGuess&) = default;
};

/// Returns the code page that the property Charset of most fonts of a form names, among the pages
/// in which all bytes are defined. Character sets 0, 1 and 2 and unknown ones name no page.
std::optional<int> CodePageOfFonts(std::string_view form);
/// Does the same without regard to other bytes.
std::optional<int> CodePageOfFontsAlone(std::string_view form);

/// Returns 932, 936, 949 or 950 if the bytes beyond ASCII are almost only frequent characters of
/// this page. A text with single letters beyond ASCII, such as a French one, is none of these.
std::optional<int> CodePageOfBytes(std::string_view form);

/// Returns nullopt for a form in ASCII and if nothing points to a page.
std::optional<CodePageGuess> GuessCodePage(std::string_view form);

/// "read as Korean (UHC), code page 949, because ..."
std::string TextOf(const CodePageGuess& guess);

}  // namespace lumenkit::forms
