#include "apps/lumenform/design/model/page_lists.h"

#include <algorithm>
#include <utility>

#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "forms/controls.h"

namespace lumenkit::lumenform {

namespace {

using Lists = std::vector<std::vector<Text>>;

Lists ListsOf(const SavedPages& saved) {
    Lists lists;
    for (int page = 0; page < saved.Count(); ++page) {
        lists.push_back(saved.NamesOn(page));
    }
    return lists;
}

auto FindName(std::vector<Text>& names, TextView name) {
    return std::ranges::find_if(
        names, [&](const Text& other) { return SameText(other, name, Compare::IgnoreCase); });
}

void Rename(Lists& lists, TextView former, const Text& now) {
    for (std::vector<Text>& names : lists) {
        if (const auto found = FindName(names, former); found != names.end()) {
            *found = now;
        }
    }
}

void Remove(Lists& lists, TextView name) {
    for (std::vector<Text>& names : lists) {
        if (const auto found = FindName(names, name); found != names.end()) {
            names.erase(found);
        }
    }
}

void StoreChanged(forms::Block& box, const Lists& before, const Lists& now) {
    for (int page = 0; page < static_cast<int>(now.size()); ++page) {
        const auto at = static_cast<std::size_t>(page);
        if (now[at] != before[at]) {
            StoreNames(box, page, now[at]);
        }
    }
}

}  // namespace

PageLists::PageLists(const forms::Block& form, std::map<const forms::Block*, int> shown)
    : form_(form), shown_(std::move(shown)) {
    for (const forms::Block* block : forms::AllControls(form)) {
        if (HasPages(*block)) {
            Box& box = boxes_[block];
            box.current = SavedPages(*block).Current();
            for (const forms::Block* control : block->Controls()) {
                box.controls.emplace(control, forms::NameInCode(*control));
            }
        }
    }
}

std::vector<PageLists::Move> PageLists::Update() {
    std::vector<Move> moves;
    for (forms::Block* block : forms::AllControls(form_)) {
        if (const auto former = boxes_.find(block); former != boxes_.end() && HasPages(*block)) {
            UpdateBox(*block, former->second, moves);
        }
    }
    return moves;
}

void PageLists::UpdateBox(forms::Block& box, const Box& former, std::vector<Move>& moves) const {
    const SavedPages saved(box);
    const Lists before = ListsOf(saved);
    Lists lists = before;
    const auto wanted = shown_.find(&box);
    const int shown =
        wanted == shown_.end() ? saved.Current() : std::min(wanted->second, saved.Count() - 1);
    const std::vector<forms::Block*> controls = box.Controls();
    for (const auto& [control, name] : former.controls) {
        if (std::ranges::find(controls, control) == controls.end()) {
            Remove(lists, name);
        } else if (const Text now = forms::NameInCode(*control); now != name) {
            Rename(lists, name, now);
        }
    }
    for (forms::Block* control : controls) {
        if (!former.controls.contains(control)) {
            lists[static_cast<std::size_t>(shown)].push_back(forms::NameInCode(*control));
            if (shown != saved.Current()) {
                moves.push_back({control, -pageOffset});
            }
        } else if (former.current != saved.Current()) {
            const int page = saved.PageOf(forms::NameInCode(*control)).value_or(former.current);
            if (page == saved.Current() || page == former.current) {
                moves.push_back({control, page == saved.Current() ? pageOffset : -pageOffset});
            }
        }
    }
    StoreChanged(box, before, lists);
}

void PutOnPage(const forms::Document& document, forms::Block& box, forms::Block& control,
               int page) {
    const SavedPages saved(box);
    const Text name = forms::NameInCode(control);
    const int former = saved.PageOf(name).value_or(saved.Current());
    if (page == former || page < 0 || page >= saved.Count()) {
        return;
    }
    const Lists before = ListsOf(saved);
    Lists lists = before;
    Remove(lists, name);
    lists[static_cast<std::size_t>(page)].push_back(name);
    StoreChanged(box, before, lists);
    if (page == saved.Current() || former == saved.Current()) {
        MoveInFile(BlockReader(document, control), Scale(),
                   page == saved.Current() ? pageOffset : -pageOffset);
    }
}

}  // namespace lumenkit::lumenform
