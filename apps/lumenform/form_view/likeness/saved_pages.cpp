#include "apps/lumenform/form_view/likeness/saved_pages.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <variant>

#include "frame/numbers.h"

namespace lumenkit::lumenform {

namespace {

int WholeIn(const forms::Block& block, TextView name, int otherwise) {
    const forms::Property* const property = block.FindProperty(name);
    const auto* const number =
        property == nullptr ? nullptr : std::get_if<std::int32_t>(&property->Literal());
    return number == nullptr ? otherwise : *number;
}

// Takes "prefix(number)" from the beginning of a name.
std::optional<int> TakeIndexed(TextView& name, TextView prefix) {
    constexpr int largest = 100'000;
    if (name.size() <= prefix.size() ||
        !SameText(name.substr(0, prefix.size()), prefix, Compare::IgnoreCase)) {
        return std::nullopt;
    }
    TextView rest = name.substr(prefix.size());
    int number = 0;
    std::size_t digits = 0;
    while (digits < rest.size() && rest[digits] >= u'0' && rest[digits] <= u'9') {
        number = std::min(number * 10 + (rest[digits] - u'0'), largest);
        ++digits;
    }
    rest.remove_prefix(digits);
    if (digits == 0 || !rest.starts_with(u')')) {
        return std::nullopt;
    }
    name = rest.substr(1);
    return number;
}

// Returns the page if the property names a control on it: "Tab(0).Control(2)".
std::optional<int> PageOfEntry(TextView name) {
    const std::optional<int> page = TakeIndexed(name, u"Tab(");
    return page && TakeIndexed(name, u".Control(") && name.empty() ? page : std::nullopt;
}

Text PagePrefix(int page) {
    return u"Tab(" + Decimal(page) + u").Control";
}

Text EntryName(int page, std::size_t index) {
    return PagePrefix(page) + u'(' + Decimal(static_cast<std::int32_t>(index)) + u')';
}

void StoreIfOther(forms::Block& block, TextView name, const forms::Literal& value, TextView after) {
    const forms::Property* const present = block.FindProperty(name);
    if (present == nullptr || present->Literal() != value) {
        block.Set(name, value, after);
    }
}

}  // namespace

bool HasPages(const forms::Block& block) {
    return SameText(block.ClassName(), u"TabDlg.SSTab", Compare::IgnoreCase);
}

SavedPages::SavedPages(const forms::Block& block)
    : count_(std::clamp(WholeIn(block, u"Tabs", 3), 1, most)),
      current_(std::clamp(WholeIn(block, u"Tab", 0), 0, count_ - 1)) {
    for (const forms::Block::Item& item : block.Items()) {
        const auto* const property = std::get_if<std::unique_ptr<forms::Property>>(&item);
        if (property == nullptr) {
            continue;
        }
        const std::optional<int> page = PageOfEntry((*property)->Name());
        const auto* const name = std::get_if<Text>(&(*property)->Literal());
        if (page && *page < count_ && name != nullptr) {
            pages_.emplace(LCase(*name), *page);
            names_[*page].push_back(*name);
        }
    }
}

std::optional<int> SavedPages::PageOf(TextView name) const {
    const auto found = pages_.find(LCase(name));
    return found == pages_.end() ? std::nullopt : std::optional(found->second);
}

const std::vector<Text>& SavedPages::NamesOn(int page) const {
    static const std::vector<Text> none;
    const auto found = names_.find(page);
    return found == names_.end() ? none : found->second;
}

void StoreNames(forms::Block& block, int page, const std::vector<Text>& names) {
    Text last = PagePrefix(page) + u"Enabled";
    for (std::size_t index = 0; index < names.size(); ++index) {
        const Text name = EntryName(page, index);
        StoreIfOther(block, name, names[index], last);
        last = name;
    }
    for (std::size_t index = names.size(); block.Remove(EntryName(page, index)); ++index) {
        block.Remove(EntryName(page, index) + u".Enabled");
    }
    StoreIfOther(block, PagePrefix(page) + u"Count", static_cast<std::int32_t>(names.size()), last);
}

}  // namespace lumenkit::lumenform
