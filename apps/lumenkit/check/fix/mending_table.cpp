#include "apps/lumenkit/check/fix/mending_table.h"

#include <algorithm>
#include <array>

#include "apps/lumenkit/check/rules.h"

namespace lumenkit::check {

namespace {

constexpr std::array mendings = {
    RuleMending{rules::unknownCommand.name, MendUnknownCommand},
    RuleMending{rules::unterminatedCommand.name, MendUnterminatedCommand},
    RuleMending{rules::loneBar.name, MendLoneBar},
    RuleMending{rules::underlineIsItalic.name, MendUnderline},
    RuleMending{rules::unconvertedValue.name, MendUnconvertedValue},
    RuleMending{rules::ineffectiveSize.name, MendIneffectiveSize},
    RuleMending{rules::colorOutOfRange.name, MendColorOutOfRange},
    RuleMending{rules::numberOverflow.name, MendNumberOverflow},
    RuleMending{rules::controlCharacter.name, MendControlCharacters, nullptr, true},
    RuleMending{rules::listIndexOutOfRange.name, nullptr, MendListIndex},
    RuleMending{rules::unreadProperty.name, nullptr, MendUnreadName},
};

}  // namespace

std::span<const RuleMending> AllMendings() {
    return mendings;
}

const RuleMending* FindMending(std::string_view rule) {
    const auto* const found = std::ranges::find(mendings, rule, &RuleMending::rule);
    return found == mendings.end() ? nullptr : found;
}

}  // namespace lumenkit::check
