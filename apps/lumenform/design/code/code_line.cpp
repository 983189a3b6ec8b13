#include "apps/lumenform/design/code/code_line.h"

#include <algorithm>
#include <array>

namespace lumenkit::lumenform {

namespace {

constexpr auto keywords = std::to_array<TextView>({
    u"AddressOf",  u"Alias",    u"And",     u"Any",      u"As",     u"Attribute",  u"Boolean",
    u"ByRef",      u"Byte",     u"ByVal",   u"Call",     u"Case",   u"Close",      u"Const",
    u"Currency",   u"Date",     u"Declare", u"Dim",      u"Do",     u"Double",     u"Each",
    u"Else",       u"ElseIf",   u"Empty",   u"End",      u"Enum",   u"Eqv",        u"Erase",
    u"Error",      u"Event",    u"Exit",    u"Explicit", u"False",  u"For",        u"Friend",
    u"Function",   u"Get",      u"GoSub",   u"GoTo",     u"If",     u"Imp",        u"Implements",
    u"In",         u"Integer",  u"Is",      u"Let",      u"Lib",    u"Like",       u"Long",
    u"Loop",       u"LSet",     u"Me",      u"Mod",      u"New",    u"Next",       u"Not",
    u"Nothing",    u"Null",     u"Object",  u"On",       u"Option", u"Optional",   u"Or",
    u"ParamArray", u"Preserve", u"Private", u"Property", u"Public", u"RaiseEvent", u"ReDim",
    u"Resume",     u"Return",   u"RSet",    u"Select",   u"Set",    u"Single",     u"Static",
    u"Step",       u"Stop",     u"String",  u"Sub",      u"Then",   u"To",         u"True",
    u"Type",       u"TypeOf",   u"Until",   u"Variant",  u"Wend",   u"While",      u"With",
    u"WithEvents", u"Xor",
});

bool ComesBefore(TextView left, TextView right) {
    return std::ranges::lexicographical_compare(left, right, {}, LowerUnit, LowerUnit);
}

constexpr bool IsBlank(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == 0xA0 || unit == 0x3000;
}
constexpr bool IsDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}
constexpr bool IsHexDigit(char16_t unit) {
    return IsDigit(unit) || (unit >= u'A' && unit <= u'F') || (unit >= u'a' && unit <= u'f');
}
constexpr bool BeginsWord(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') || unit == u'_' ||
           (unit >= 0x80 && !IsControl(unit) && !IsBlank(unit));
}
constexpr bool IsInWord(char16_t unit) {
    return BeginsWord(unit) || IsDigit(unit);
}

// Returns the position of the mark that continues a line, or the length of a line without one.
std::size_t ContinuationOf(TextView line) {
    std::size_t end = line.size();
    while (end > 0 && IsBlank(line[end - 1])) {
        --end;
    }
    const bool isContinued = end >= 2 && line[end - 1] == u'_' && IsBlank(line[end - 2]);
    return isContinued ? end - 1 : line.size();
}

class Divider {
 public:
    Divider(TextView line, std::vector<CodePart>& parts)
        : line_(line), mark_(ContinuationOf(line)), parts_(parts) {}

    Continued Divide(Continued former) {
        if (former == Continued::Comment) {
            return TakeComment(0);
        }
        for (;;) {
            while (at_ < line_.size() && IsBlank(line_[at_])) {
                ++at_;
            }
            if (at_ == line_.size()) {
                return Continued::Nothing;
            }
            if (at_ == mark_) {
                return Continued::Statement;
            }
            if (line_[at_] == u'\'' || AtRemark()) {
                return TakeComment(at_);
            }
            TakePart();
        }
    }

 private:
    // Rem is reserved: it is a name only as the member of an object.
    bool AtRemark() const {
        const bool isMember = !parts_.empty() && parts_.back().kind == CodePart::Kind::Sign &&
                              parts_.back().start + 1 == at_ &&
                              (line_[at_ - 1] == u'.' || line_[at_ - 1] == u'!');
        return !isMember &&
               SameText(line_.substr(at_, WordEnd(at_) - at_), u"Rem", Compare::IgnoreCase);
    }

    void TakePart() {
        const char16_t unit = line_[at_];
        if (BeginsWord(unit)) {
            Take(CodePart::Kind::Word, WordEnd(at_));
        } else if (unit == u'"') {
            Take(CodePart::Kind::Text, TextEnd());
        } else if (IsDigit(unit)) {
            Take(CodePart::Kind::Number, WordEnd(at_));
        } else if (const std::size_t end = RadixEnd(); end > at_) {
            Take(CodePart::Kind::Number, end);
        } else if (const std::size_t close = BracketEnd(); close > at_) {
            ++at_;
            Take(CodePart::Kind::Name, close);
            ++at_;
        } else {
            Take(CodePart::Kind::Sign, line_.substr(at_).starts_with(u":=") ? at_ + 2 : at_ + 1);
        }
    }

    void Take(CodePart::Kind kind, std::size_t end) {
        parts_.push_back({kind, at_, end - at_});
        at_ = end;
    }

    Continued TakeComment(std::size_t start) {
        if (start < line_.size()) {
            parts_.push_back({CodePart::Kind::Comment, start, line_.size() - start});
        }
        return mark_ < line_.size() && mark_ >= start ? Continued::Comment : Continued::Nothing;
    }

    std::size_t WordEnd(std::size_t end) const {
        while (end < line_.size() && IsInWord(line_[end])) {
            ++end;
        }
        return end;
    }

    // A quotation mark in a text is doubled. A text without its last one ends with the line.
    std::size_t TextEnd() const {
        std::size_t end = at_ + 1;
        while (end < line_.size() && (line_[end] != u'"' || line_.substr(end, 2) == u"\"\"")) {
            end += line_[end] == u'"' ? 2 : 1;
        }
        return std::min(end + 1, line_.size());
    }

    // The end of "&H1F" or "&O17". Returns at_ for other parts, such as those of a&Hello.
    std::size_t RadixEnd() const {
        const TextView rest = line_.substr(at_);
        const char16_t radix = rest.size() < 3 || rest[0] != u'&' ? u' ' : LowerUnit(rest[1]);
        if (radix != u'h' && radix != u'o') {
            return at_;
        }
        std::size_t length = 2;
        while (length < rest.size() && IsHexDigit(rest[length])) {
            ++length;
        }
        const bool isWhole = length > 2 && (length == rest.size() || !IsInWord(rest[length]));
        return isWhole ? at_ + length : at_;
    }

    std::size_t BracketEnd() const {
        const std::size_t close = line_[at_] == u'[' ? line_.find(u']', at_) : TextView::npos;
        return close == TextView::npos ? at_ : close;
    }

    TextView line_;
    std::size_t mark_;
    std::size_t at_ = 0;
    std::vector<CodePart>& parts_;
};

}  // namespace

Continued DivideLine(TextView line, Continued former, std::vector<CodePart>& parts) {
    parts.clear();
    return Divider(line, parts).Divide(former);
}

bool IsCodeKeyword(TextView word) {
    static const auto sorted = [] {
        auto words = keywords;
        std::ranges::sort(words, ComesBefore);
        return words;
    }();
    return std::ranges::binary_search(sorted, word, ComesBefore);
}

}  // namespace lumenkit::lumenform
