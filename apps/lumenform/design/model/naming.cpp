#include "apps/lumenform/design/model/naming.h"

#include <algorithm>
#include <cstdint>
#include <variant>

#include "forms/controls.h"
#include "frame/numbers.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::size_t longestName = 40;

bool IsLetter(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

bool IsPartOfName(char16_t unit) {
    return IsLetter(unit) || (unit >= u'0' && unit <= u'9') || unit == u'_';
}

// Returns one more than the highest whole number that the property has in a counted block.
template <typename Counts>
std::int32_t OneMore(const forms::Block& form, TextView property, const Counts& counts) {
    std::int32_t next = 0;
    for (const forms::Block* block : forms::AllControls(form)) {
        const forms::Property* found = block->FindProperty(property);
        const auto* number =
            found == nullptr ? nullptr : std::get_if<std::int32_t>(&found->Literal());
        if (number != nullptr && *number < INT32_MAX && counts(*block)) {
            next = std::max(next, *number + 1);
        }
    }
    return next;
}

}  // namespace

bool IsName(TextView name) {
    return !name.empty() && name.size() <= longestName && IsLetter(name.front()) &&
           std::ranges::all_of(name, IsPartOfName);
}

bool Bears(const forms::Block& block, TextView name) {
    return SameText(block.Name(), name, Compare::IgnoreCase);
}

TextView ShortClassName(TextView className) {
    return className.substr(className.rfind(u'.') + 1);
}

bool IsTaken(const forms::Block& form, TextView name) {
    return Bears(form, name) ||
           std::ranges::any_of(forms::AllControls(form),
                               [&](const forms::Block* block) { return Bears(*block, name); });
}

Text FreshName(std::initializer_list<const forms::Block*> forms, TextView className) {
    Text stem(ShortClassName(className));
    if (!IsName(stem)) {
        stem = u"Control";
    }
    stem.resize(std::min<std::size_t>(stem.size(), longestName - 10));
    for (std::int32_t number = 1;; ++number) {
        Text name = stem + Decimal(number);
        if (std::ranges::none_of(forms,
                                 [&](const forms::Block* form) { return IsTaken(*form, name); })) {
            return name;
        }
    }
}

std::int32_t FreshIndex(const forms::Block& form, TextView name) {
    return OneMore(form, u"Index", [&](const forms::Block& block) { return Bears(block, name); });
}

std::int32_t FreshTabIndex(const forms::Block& form) {
    return OneMore(form, u"TabIndex", [](const forms::Block&) { return true; });
}

}  // namespace lumenkit::lumenform
