#pragma once

#include <initializer_list>

#include "apps/lumenform/design/code/code_line.h"
#include "apps/lumenform/design/code/procedure.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Reads the parts of one statement of code, and finds out whether a procedure begins or ends with
/// it.
class StatementReader {
 public:
    enum class Meaning { Other, Begins, Ends };

    /// Takes the next part. Returns Begins for the part that is the name of a procedure, and Ends
    /// for the word that says what ends.
    Meaning Take(CodePart::Kind part, TextView text);

    /// Whether nothing but the number of the line was read.
    bool IsAtStart() const { return state_ == State::Start; }
    /// Whether the statement is for the compiler alone: an attribute or a condition of compilation.
    bool IsForCompiler() const { return state_ == State::ForCompiler; }
    /// The kind of the procedure that begins.
    Procedure::Kind Kind() const { return kind_; }

 private:
    enum class State { Start, Modified, Property, Name, End, ForCompiler, Other };
    struct KindOfWord {
        TextView word;
        Procedure::Kind kind;
    };

    State After(CodePart::Kind part, TextView text);
    State AfterFirst(TextView word);
    State AfterModifier(TextView word);
    State AfterKind(TextView word, std::initializer_list<KindOfWord> kinds);

    State state_ = State::Start;
    Procedure::Kind kind_ = Procedure::Kind::Sub;
};

}  // namespace lumenkit::lumenform
