#include "forms/scanner.h"

#include <algorithm>
#include <utility>

#include "forms/hexadecimal.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

bool IsControl(char16_t unit) {
    return unit < blank;
}
bool IsBlank(char16_t unit) {
    return unit == blank || unit == u'\t';
}
bool BelongsToWord(char16_t unit) {
    return !IsControl(unit) && unit != blank && TextView(u"=\"'").find(unit) == TextView::npos;
}

}  // namespace

bool Scanner::AtLineEnd() const {
    const TextView rest = Rest();
    return rest.empty() || rest.front() == u'\n' || rest.starts_with(crLf);
}

char16_t Scanner::Take() {
    const char16_t unit = Peek();
    at_ += AtLineEnd() ? 0 : 1;
    return unit;
}

bool Scanner::TakeIf(char16_t unit) {
    if (Peek() != unit) {
        return false;
    }
    ++at_;
    return true;
}

void Scanner::SkipBlanks() {
    while (IsBlank(Peek())) {
        ++at_;
    }
}

TextView Scanner::TakeWord() {
    const std::size_t start = at_;
    while (BelongsToWord(Peek())) {
        ++at_;
    }
    return Since(start);
}

TextView Scanner::TakeLine() {
    const std::size_t start = at_;
    at_ = std::min(text_.find(u'\n', at_), text_.size());
    if (at_ < text_.size() && at_ > start && text_[at_ - 1] == u'\r') {
        --at_;
    }
    return Since(start);
}

TextView Scanner::TakeLineBreak() {
    const std::size_t start = at_;
    if (!AtEnd()) {
        at_ += text_[at_] == u'\r' ? 2 : 1;
        ++line_;
        lineStart_ = at_;
    }
    return Since(start);
}

std::string Scanner::Found() const {
    if (AtEnd()) {
        return "the end of the file";
    }
    if (AtLineEnd()) {
        return "the end of the line";
    }
    const char16_t first = Peek();
    if (IsControl(first)) {
        return first == u'\t' ? "a tab" : UnitName(first);
    }
    if (first == blank) {
        return "a blank";
    }
    constexpr std::size_t shown = 24;
    const TextView rest = Rest();
    std::size_t length = 1;
    while (length < std::min(shown, rest.size()) && rest[length] > blank) {
        ++length;
    }
    if ((rest[length - 1] & 0xFC00) == 0xD800 && length < rest.size()) {
        ++length;  // does not split a surrogate pair
    }
    return ToUtf8(rest.substr(0, length));
}

void Scanner::Expect(std::string_view expected) const {
    Fail(Here(), "expected " + std::string(expected) + ", found " + Found());
}

void Scanner::Fail(Position position, std::string text) const {
    throw FormError(file_, position, std::move(text));
}

bool IsKeyword(TextView word, TextView keyword) {
    return SameText(word, keyword, Compare::IgnoreCase);
}

}  // namespace lumenkit::forms
