#include "frame/text.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>

#include "frame/runtime_error.h"

namespace lumenkit {

namespace {

#include "frame/letter_case_table.inc"

std::size_t Count(std::int32_t count) {
    if (count < 0) {
        Raise(ErrorNumber::InvalidProcedureCall);
    }
    return static_cast<std::size_t>(count);
}

std::size_t Offset(std::int32_t start) {
    if (start < 1) {
        Raise(ErrorNumber::InvalidProcedureCall);
    }
    return static_cast<std::size_t>(start) - 1;
}

bool SameLetter(char16_t left, char16_t right) {
    return left == right || LowerUnit(left) == LowerUnit(right);
}

std::size_t Find(TextView text, TextView sought, std::size_t from, Compare compare) {
    if (compare == Compare::Binary) {
        return text.find(sought, from);
    }
    const auto found = std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(),
                                   sought.begin(), sought.end(), SameLetter);
    return found == text.end() ? TextView::npos : static_cast<std::size_t>(found - text.begin());
}

std::int32_t Position(std::size_t offset) {
    return offset == TextView::npos ? 0 : static_cast<std::int32_t>(offset) + 1;
}

}  // namespace

std::int32_t Len(TextView text) {
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
        Raise(ErrorNumber::Overflow);
    }
    return static_cast<std::int32_t>(text.size());
}

std::int32_t InStr(std::int32_t start, TextView text, TextView sought, Compare compare) {
    const std::size_t from = Offset(start);
    Len(text);
    if (from >= text.size()) {
        return 0;
    }
    return sought.empty() ? start : Position(Find(text, sought, from, compare));
}

std::int32_t InStrRev(TextView text, TextView sought, std::int32_t start) {
    const std::size_t reach = Count(start);
    if (reach == 0 || reach > static_cast<std::size_t>(Len(text))) {
        return 0;
    }
    return sought.empty() ? start : Position(text.substr(0, reach).rfind(sought));
}

TextView Left(TextView text, std::int32_t count) {
    return text.substr(0, Count(count));
}

TextView Right(TextView text, std::int32_t count) {
    return text.substr(text.size() - std::min(Count(count), text.size()));
}

TextView Mid(TextView text, std::int32_t start) {
    return text.substr(std::min(Offset(start), text.size()));
}

TextView Mid(TextView text, std::int32_t start, std::int32_t count) {
    return text.substr(std::min(Offset(start), text.size()), Count(count));
}

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
