#include "forms/encoding.h"

#include <algorithm>
#include <cstddef>

#include "forms/ascii.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

bool IsSurrogate(char16_t unit) {
    return (unit & 0xF800) == 0xD800;
}
bool IsPair(TextView text, std::size_t at) {
    return at + 1 < text.size() && (text[at] & 0xFC00) == 0xD800 &&
           (text[at + 1] & 0xFC00) == 0xDC00;
}

void RefuseLoneSurrogates(TextView text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (IsPair(text, i)) {
            ++i;
        } else if (IsSurrogate(text[i])) {
            throw Unmappable{i, "UTF-8"};
        }
    }
}

}  // namespace

Encoding Encoding::Of(std::string_view bytes, int codePage) {
    const bool mark = bytes.starts_with(utf8Mark);
    const bool ascii = IsAscii(bytes);
    const bool utf8 = mark || codePage == utf8CodePage || (!ascii && IsUtf8(bytes));
    const bool isGuessed = codePage == guessedCodePage;
    const std::optional<CodePageGuess> guess =
        isGuessed && !utf8 ? GuessCodePage(bytes) : std::nullopt;
    int page = isGuessed || codePage == utf8CodePage ? defaultCodePage : codePage;
    if (guess) {
        page = guess->page;
    } else if (isGuessed && (utf8 || ascii)) {
        page = CodePageOfFontsAlone(bytes).value_or(page);
    }
    Encoding encoding((CodePage(page)));
    encoding.guess_ = guess;
    encoding.mark_ = mark;
    encoding.utf8_ = utf8;
    return encoding;
}

Encoding Encoding::In(int codePage) const {
    const bool isUtf8 = codePage == utf8CodePage;
    Encoding other(isUtf8 ? codePage_ : CodePage(codePage));
    other.utf8_ = isUtf8;
    other.mark_ = isUtf8 && mark_;
    return other;
}

Text Encoding::Decode(std::string_view bytes) const {
    if (!utf8_) {
        return codePage_.Decode(bytes);
    }
    const std::size_t skipped = mark_ ? utf8Mark.size() : 0;
    try {
        return FromUtf8(bytes.substr(skipped));
    } catch (const MalformedUtf8& malformed) {
        throw MalformedUtf8(malformed.offset + skipped);
    }
}

std::string Encoding::Encode(TextView text) const {
    if (!utf8_) {
        return codePage_.Encode(text);
    }
    RefuseLoneSurrogates(text);
    return std::string(mark_ ? utf8Mark : std::string_view()) + ToUtf8(text);
}

std::string Encoding::NameBytes(const std::string& name) const {
#ifdef _WIN32
    return name;  // file names are in UTF-16
#else
    try {
        return utf8_ ? name : codePage_.Encode(FromUtf8(name));
    } catch (const Unmappable&) {
        return name;
    }
#endif
}

std::string Encoding::Utf8NameOf(const std::string& name) const {
    return IsUtf8(name) ? name : ToUtf8(codePage_.Decode(name));
}

Spelling Encoding::SpellingOf(std::string_view bytes) const {
    return utf8_ ? Spelling() : Spelling(codePage_, bytes);
}

}  // namespace lumenkit::forms
