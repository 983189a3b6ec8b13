#include "tests/model/literal_restrictions.h"

namespace lumenkit::testing {

namespace {

using Position = long long;

Position CountOf(const Text& s) {
    return static_cast<Position>(s.size());
}

// Returns the characters of s from position `from`, at most `count`.
Text Characters(const Text& s, Position from, Position count) {
    Text part;
    for (Position p = from; p < from + count && p <= CountOf(s); ++p) {
        part += s[static_cast<std::size_t>(p - 1)];
    }
    return part;
}

Text ToTheEnd(const Text& s, Position from) {
    return Characters(s, from, CountOf(s));
}

Position FirstCrLf(const Text& s, Position start) {
    for (Position p = start; p <= CountOf(s); ++p) {
        if (Characters(s, p, 2) == u"\r\n") {
            return p;
        }
    }
    return CountOf(s) + 1;
}

Text WithoutOuterSpaces(Text s) {
    while (!s.empty() && s.front() == u' ') {
        s.erase(0, 1);
    }
    while (!s.empty() && s.back() == u' ') {
        s.pop_back();
    }
    return s;
}

// Whether s matches the pattern [! CR LF]: one character other than blank, CR and LF.
bool MatchesPattern(const Text& s) {
    return CountOf(s) == 1 && s != u" " && s != u"\r" && s != u"\n";
}

}  // namespace

LiteralRestriction RestrictLiterally(const Text& text, int maxCharsPerLine, int maxLines,
                                     bool apply) {
    LiteralRestriction result;
    Text& s = result.s;
    s = text;
    Position start = 1;
    Position lines = 0;
    while (true) {
        const Position pos = FirstCrLf(s, start);
        bool wasCut = false;
        if (maxCharsPerLine != 0 && pos - start > maxCharsPerLine) {
            const Position cut = start + maxCharsPerLine;
            const Text surplus = Characters(s, cut, pos - cut);
            if (!WithoutOuterSpaces(surplus).empty()) {
                result.refused = true;
                if (apply) {
                    return result;
                }
                ++result.realCuts;
            } else {
                result.trimmed = true;
                ++result.blankCuts;
            }
            s = Characters(s, 1, cut - 1) + ToTheEnd(s, pos);
            wasCut = true;
            result.lateEnds += pos > CountOf(s) && FirstCrLf(s, cut) <= CountOf(s) ? 1 : 0;
        }
        ++lines;
        if (lines == maxLines && pos <= CountOf(s)) {
            if (MatchesPattern(ToTheEnd(s, pos))) {
                ++result.patternMatches;
                result.refused = true;
                if (apply) {
                    return result;
                }
            } else {
                result.trimmed = true;
            }
            ++result.linesDropped;
            s = Characters(s, 1, pos - 1);
            return result;
        }
        const Position lineEnd = FirstCrLf(s, start);
        start = pos + 2;
        if (start > CountOf(s)) {
            return result;
        }
        result.skippedPositions += wasCut ? 1 : 0;
        result.overlookedBreaks += wasCut && FirstCrLf(s, lineEnd + 2) < start ? 1 : 0;
    }
}

}  // namespace lumenkit::testing
