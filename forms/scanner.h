// Scans the lines of a form's text and keeps track of the position.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "forms/form_error.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Lines end at LF or CR LF. `text` must outlive the scanner and the views that it returns.
class Scanner {
 public:
    Scanner(TextView text, std::string file) : text_(text), file_(std::move(file)) {}

    bool AtEnd() const { return at_ == text_.size(); }
    /// Returns true before a line break and at the end of the text.
    bool AtLineEnd() const;
    /// Returns the next unit of the line; at the end of the line NUL, which no rule accepts.
    char16_t Peek() const { return AtLineEnd() ? u'\0' : text_[at_]; }
    char16_t Take();
    bool TakeIf(char16_t unit);
    void SkipBlanks();
    /// Takes the longest run of units that belong to a word: no blanks, quotes, apostrophes,
    /// control characters or '='.
    TextView TakeWord();
    /// Takes everything up to the line break.
    TextView TakeLine();
    /// Takes the line break; empty at the end of the text.
    TextView TakeLineBreak();

    std::size_t Offset() const { return at_; }
    TextView Since(std::size_t start) const { return text_.substr(start, at_ - start); }
    TextView Rest() const { return text_.substr(at_); }
    Position Here() const { return {line_, at_ - lineStart_ + 1}; }
    /// Moves back to an offset in the same line.
    void ReturnTo(std::size_t offset) { at_ = offset; }

    /// Throw FormError: Expect with "expected ..., found ..." at the current position, Fail with
    /// `text` at `position`.
    [[noreturn]] void Expect(std::string_view expected) const;
    [[noreturn]] void Fail(Position position, std::string text) const;

 private:
    std::string Found() const;

    TextView text_;
    std::string file_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::size_t lineStart_ = 0;
};

/// Returns whether a word is a keyword, in any case.
bool IsKeyword(TextView word, TextView keyword);

}  // namespace lumenkit::forms
