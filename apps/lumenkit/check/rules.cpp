#include "apps/lumenkit/check/rules.h"

#include <array>

namespace lumenkit::check {

namespace {

constexpr std::array all = {
    rules::unknownCommand,    rules::unterminatedCommand, rules::loneBar,
    rules::underlineIsItalic, rules::unconvertedValue,    rules::ineffectiveSize,
    rules::colorOutOfRange,   rules::numberOverflow,      rules::tooManyLines,
    rules::textTooLong,       rules::duplicateValue,      rules::listIndexOutOfRange,
    rules::textOverLimits,    rules::unreadProperty,      rules::unreadableValue,
};

}  // namespace

std::span<const Rule> Rules() {
    return all;
}

}  // namespace lumenkit::check
