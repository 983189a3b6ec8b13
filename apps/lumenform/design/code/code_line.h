// A line of code, divided into words, texts, comments, numbers and signs.
#pragma once

#include <cstddef>
#include <vector>

#include "frame/text.h"

namespace lumenkit::lumenform {

/// A part of a line. Blanks and the mark of a continued line are no parts.
struct CodePart {
    enum class Kind {
        Word,     ///< a name or a keyword
        Name,     ///< a name in brackets, which are no part of it
        Text,     ///< with its quotation marks
        Comment,  ///< up to the end of the line
        Number,
        Sign,  ///< one unit, or ":="
    };

    Kind kind;
    std::size_t start;
    std::size_t length;

    friend bool operator==(const CodePart&, const CodePart&) = default;
};

/// What continues on the next line.
enum class Continued { Nothing, Statement, Comment };

/// Replaces `parts` by the parts of a line, which is given without its line break. `former` is what
/// the line before has returned.
Continued DivideLine(TextView line, Continued former, std::vector<CodePart>& parts);

/// Whether a word is a keyword, in upper or lower case.
bool IsCodeKeyword(TextView word);

}  // namespace lumenkit::lumenform
