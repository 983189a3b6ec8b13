#include "runtime/memory/key_stroke.h"

namespace lumenkit::memory {

namespace {

constexpr std::int16_t controlKey = 2;
constexpr std::int16_t packetKey = 231;

bool IsBetween(char16_t unit, char16_t first, char16_t last) {
    return unit >= first && unit <= last;
}

}  // namespace

KeyStroke KeyFor(char16_t unit) {
    const auto code = static_cast<std::int16_t>(unit);
    if (unit == backspace || unit == tabulator || unit == enter || unit == u' ' ||
        IsBetween(unit, u'0', u'9') || IsBetween(unit, u'A', u'Z')) {
        return {.keyCode = code};
    }
    if (IsBetween(unit, u'a', u'z')) {
        return {.keyCode = static_cast<std::int16_t>(code - u'a' + u'A')};
    }
    if (IsBetween(unit, 1, 26)) {
        return {.keyCode = static_cast<std::int16_t>(code - 1 + u'A'), .shift = controlKey};
    }
    return {.keyCode = packetKey};
}

}  // namespace lumenkit::memory
