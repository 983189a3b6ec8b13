#include "apps/lumenform/design/model/naming.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <variant>
#include <vector>

#include "forms/controls.h"
#include "frame/numbers.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::size_t longestName = 40;
constexpr TextView digits = u"0123456789";

struct UsualName {
    TextView className;
    TextView name;
};

// The classes whose controls are not named after the class.
constexpr std::array usualNames = {
    UsualName{u"VB.CheckBox", u"Check"},        UsualName{u"VB.ComboBox", u"Combo"},
    UsualName{u"VB.CommandButton", u"Command"}, UsualName{u"VB.DirListBox", u"Dir"},
    UsualName{u"VB.DriveListBox", u"Drive"},    UsualName{u"VB.FileListBox", u"File"},
    UsualName{u"VB.HScrollBar", u"HScroll"},    UsualName{u"VB.ListBox", u"List"},
    UsualName{u"VB.OptionButton", u"Option"},   UsualName{u"VB.PictureBox", u"Picture"},
    UsualName{u"VB.TextBox", u"Text"},          UsualName{u"VB.VScrollBar", u"VScroll"},
};

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

// Returns the name of the controls of a class without its number.
TextView StemOf(TextView className) {
    const auto* const found = std::ranges::find_if(usualNames, [&](const UsualName& usual) {
        return SameText(usual.className, className, Compare::IgnoreCase);
    });
    if (found != usualNames.end()) {
        return found->name;
    }
    const TextView name = ShortClassName(className);
    return IsName(name) ? name : u"Control";
}

// The stem with the lowest number, from `number`, that makes it unused. A long stem is cut.
Text Numbered(std::initializer_list<const forms::Block*> forms, TextView stem,
              std::int32_t number) {
    std::vector<TextView> taken;
    for (const forms::Block* form : forms) {
        taken.push_back(form->Name());
        for (const forms::Block* control : forms::AllControls(*form)) {
            taken.push_back(control->Name());
        }
    }
    for (;; ++number) {
        const Text ending = Decimal(number);
        Text name = Text(stem.substr(0, longestName - ending.size())) + ending;
        const auto isIt = [&](TextView other) {
            return SameText(name, other, Compare::IgnoreCase);
        };
        if (std::ranges::none_of(taken, isIt)) {
            return name;
        }
    }
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
    const std::size_t last = className.find_last_not_of(digits);
    if (last != TextView::npos && last + 1 < className.size() && className[last] == u'.') {
        className = className.substr(0, last);
    }
    return className.substr(className.rfind(u'.') + 1);
}

bool IsTaken(const forms::Block& form, TextView name) {
    return Bears(form, name) ||
           std::ranges::any_of(forms::AllControls(form),
                               [&](const forms::Block* block) { return Bears(*block, name); });
}

Text FreshName(std::initializer_list<const forms::Block*> forms, TextView className) {
    return Numbered(forms, StemOf(className), 1);
}

Text CopyName(std::initializer_list<const forms::Block*> forms, TextView original) {
    constexpr std::size_t mostDigits = 9;  // of a number in 32 bits
    const std::size_t ownDigits = original.size() - 1 - original.find_last_not_of(digits);
    const TextView number = original.substr(original.size() - std::min(ownDigits, mostDigits));
    std::int32_t value = 0;
    for (const char16_t digit : number) {
        value = value * 10 + (digit - u'0');
    }
    return Numbered(forms, original.substr(0, original.size() - number.size()), value + 1);
}

std::int32_t FreshIndex(const forms::Block& form, TextView name) {
    return OneMore(form, u"Index", [&](const forms::Block& block) { return Bears(block, name); });
}

std::int32_t FreshTabIndex(const forms::Block& form) {
    return OneMore(form, u"TabIndex", [](const forms::Block&) { return true; });
}

}  // namespace lumenkit::lumenform
