#include "apps/lumenform/design/code/statement_reader.h"

#include <algorithm>

namespace lumenkit::lumenform {

namespace {

bool IsAnyOf(TextView word, std::initializer_list<TextView> words) {
    return std::ranges::any_of(
        words, [&](TextView known) { return SameText(word, known, Compare::IgnoreCase); });
}

bool IsDecimal(TextView number) {
    return std::ranges::all_of(number, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

}  // namespace

StatementReader::Meaning StatementReader::Take(CodePart::Kind part, TextView text) {
    const bool isWord = part == CodePart::Kind::Word;
    const bool begins = state_ == State::Name && (isWord || part == CodePart::Kind::Name);
    const bool ends =
        state_ == State::End && isWord && IsAnyOf(text, {u"Sub", u"Function", u"Property"});
    state_ = After(part, text);
    return begins ? Meaning::Begins : ends ? Meaning::Ends : Meaning::Other;
}

StatementReader::State StatementReader::After(CodePart::Kind part, TextView text) {
    const bool isWord = part == CodePart::Kind::Word;
    if (state_ == State::Start && part == CodePart::Kind::Number && IsDecimal(text)) {
        return State::Start;  // the number of the line
    }
    if (state_ == State::ForCompiler || (state_ == State::Start && text == u"#")) {
        return State::ForCompiler;
    }
    if (!isWord) {
        return State::Other;
    }
    switch (state_) {
        case State::Start:
            return AfterFirst(text);
        case State::Modified:
            return AfterModifier(text);
        case State::Property:
            return AfterKind(text, {{u"Get", Procedure::Kind::Get},
                                    {u"Let", Procedure::Kind::Let},
                                    {u"Set", Procedure::Kind::Set}});
        case State::Name:
        case State::End:
        case State::ForCompiler:
        case State::Other:
            break;
    }
    return State::Other;
}

StatementReader::State StatementReader::AfterFirst(TextView word) {
    return IsAnyOf(word, {u"End"})         ? State::End
           : IsAnyOf(word, {u"Attribute"}) ? State::ForCompiler
                                           : AfterModifier(word);
}

StatementReader::State StatementReader::AfterModifier(TextView word) {
    if (IsAnyOf(word, {u"Public", u"Private", u"Friend", u"Static", u"Global"})) {
        return State::Modified;
    }
    if (IsAnyOf(word, {u"Property"})) {
        return State::Property;
    }
    return AfterKind(word,
                     {{u"Sub", Procedure::Kind::Sub}, {u"Function", Procedure::Kind::Function}});
}

StatementReader::State StatementReader::AfterKind(TextView word,
                                                  std::initializer_list<KindOfWord> kinds) {
    for (const KindOfWord& known : kinds) {
        if (SameText(word, known.word, Compare::IgnoreCase)) {
            kind_ = known.kind;
            return State::Name;
        }
    }
    return State::Other;
}

}  // namespace lumenkit::lumenform
