// The code pages of form files and their names.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace lumenkit::forms {

inline constexpr int utf8CodePage = 65001;
inline constexpr int defaultCodePage = 1252;
/// Stands for no code page: that of a form is guessed from its bytes and fonts.
inline constexpr int guessedCodePage = 0;

struct KnownCodePage {
    int number;
    std::string_view title;  ///< "Japanese (Shift JIS)"
    /// The character set of fonts whose texts are in this page; 0 if none tells it.
    int charset;
    std::array<std::string_view, 2> names;  ///< other names in lower case: "shift_jis"
    bool hasPairs;                          ///< whether characters may have two bytes
};

/// All code pages that forms may be in, UTF-8 last.
std::span<const KnownCodePage> KnownCodePages();
/// Return null if there is none.
const KnownCodePage* FindCodePage(int number);
const KnownCodePage* FindCodePageOfCharset(int charset);

/// Returns the page with this number or name, in upper or lower case: "932", "cp932",
/// "windows-1252", "gbk".
std::optional<int> CodePageNamed(std::string_view name);

/// Returns "Korean (Johab), code page 1361", or only the number of an unknown page.
std::string NameOfCodePage(int number);

/// The numbers for help texts: "874, 932, ..., 1250 to 1258, 1361 or 65001 (UTF-8)".
inline constexpr const char* codePageNumbers =
    "874, 932, 936, 949, 950, 1250 to 1258, 1361 or 65001 (UTF-8)";

}  // namespace lumenkit::forms
