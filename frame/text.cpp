#include "frame/text.h"

#include <algorithm>
#include <array>
#include <span>

namespace lumenkit {

namespace {

#include "frame/letter_case_table.inc"

}  // namespace

TextView LTrim(TextView text) {
    return text.substr(std::min(text.find_first_not_of(blank), text.size()));
}

TextView RTrim(TextView text) {
    return text.substr(0, text.find_last_not_of(blank) + 1);
}

TextView Trim(TextView text) {
    return LTrim(RTrim(text));
}

char16_t LowerBeyondAscii(char16_t unit) {
    return static_cast<char16_t>(unit + lowerDelta[lowerPage[unit >> 8U]][unit & 0xFFU]);
}

Text LCase(TextView text) {
    Text lower;
    AppendLCase(lower, text);
    return lower;
}

void AppendLCase(Text& text, TextView mixed) {
    const std::size_t begin = text.size();
    text.append(mixed);
    for (char16_t& unit : std::span(text).subspan(begin)) {
        unit = LowerUnit(unit);
    }
}

bool SameText(TextView left, TextView right, Compare compare) {
    if (compare == Compare::Binary) {
        return left == right;
    }
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), SameLetter);
}

}  // namespace lumenkit
