#include "frame/text_positions.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "frame/runtime_error.h"

namespace lumenkit {

namespace {

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

}  // namespace lumenkit
