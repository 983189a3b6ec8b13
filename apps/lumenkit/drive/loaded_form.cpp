#include "apps/lumenkit/drive/loaded_form.h"

#include <cstdint>
#include <utility>

#include "apps/lumenkit/windowless/saved_font.h"
#include "apps/lumenkit/windowless/saved_placing.h"
#include "forms/controls.h"
#include "forms/form_bag.h"
#include "frame/numbers.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

// Gives each control its own id: its name or, for a name that an earlier control has, the name with
// a number: "A#2".
class FreshIds {
 public:
    Text For(const Text& name) {
        Text id = name;
        std::int32_t& last = numbers_.try_emplace(LCase(name), 1).first->second;
        while (!taken_.insert(LCase(id)).second) {
            id = name + u'#' + Decimal(++last);
        }
        return id;
    }

 private:
    std::unordered_set<Text> taken_;
    std::unordered_map<Text, std::int32_t> numbers_;  // the last one given, by name
};

// The recursion is as deep as the blocks are nested, which the parser limits.
void RemoveControls(forms::Block& block, const std::unordered_set<const forms::Block*>& dropped) {
    block.RemoveControls([&](const forms::Block& control) { return dropped.contains(&control); });
    for (forms::Block* control : block.Controls()) {
        RemoveControls(*control, dropped);
    }
}

}  // namespace

LoadedForm::LoadedForm(forms::Document document, const ClassTable& classes)
    : document_(std::move(document)) {
    FreshIds ids;
    for (forms::Block* block : forms::AllControls(document_.Root())) {
        const ClassDescriptor* type = classes.Find(block->ClassName());
        if (type == nullptr || type->kind != ClassKind::Control) {
            continue;
        }
        found_.push_back({*block, *type, ids.For(forms::NameInCode(*block))});
    }
}

std::vector<std::string> LoadedForm::Ids() const {
    std::vector<std::string> ids;
    for (const Found& found : found_) {
        ids.push_back(ToUtf8(found.name));
    }
    return ids;
}

std::unique_ptr<memory::HostedControl> LoadedForm::Start(const Found& found, host::PropertyBag& bag,
                                                         memory::Form& form, bool userMode) {
    const Text tag = windowless::SavedTag(bag);
    memory::Placing placing = windowless::SavedPlacing(bag, userMode);
    placing.name = found.name;
    placing.tag = tag;
    auto control = std::make_unique<memory::HostedControl>(form, found.type, placing);
    control->StartSaved(bag);
    return control;
}

std::vector<LoadedForm::Living> LoadedForm::Start(memory::Form& form, bool userMode) {
    const auto makeFont = [&form](const forms::FontDescription& description) {
        return windowless::SavedFont(form, description);
    };
    std::vector<Living> living;
    for (const Found& found : found_) {
        forms::FormBag bag(document_, found.block, makeFont);
        auto control = Start(found, bag, form, userMode);
        const auto save = [&](host::PropertyBag& saved) { control->Save(saved); };
        const Place place = saved_.size();
        saved_.emplace(place, Saved{*control, forms::BlockKeeper(document_, found.block, save)});
        places_.emplace(ToUtf8(found.name), place);
        living.push_back({ToUtf8(found.name), std::move(control)});
    }
    return living;
}

std::vector<std::string> LoadedForm::Within(const std::string& id) const {
    const Place first = places_.at(id);
    const std::vector<forms::Block*> inside = forms::AllControls(found_[first].block);
    const std::unordered_set<const forms::Block*> blocks(inside.begin(), inside.end());
    std::vector<std::string> ids = {id};
    // The controls inside a block follow it.
    for (auto next = saved_.upper_bound(first);
         next != saved_.end() && blocks.contains(&found_[next->first].block); ++next) {
        ids.push_back(ToUtf8(found_[next->first].name));
    }
    return ids;
}

void LoadedForm::Drop(const std::string& id) {
    dropped_.insert(&found_[places_.at(id)].block);
    for (const std::string& one : Within(id)) {
        saved_.erase(places_.at(one));
        places_.erase(one);
    }
}

void LoadedForm::Update() {
    if (!dropped_.empty()) {
        RemoveControls(document_.Root(), dropped_);
        dropped_.clear();
    }
    for (auto& one : saved_) {
        Saved& saved = one.second;
        saved.keeper.Update([&](host::PropertyBag& bag) { saved.control.Save(bag); });
    }
}

}  // namespace lumenkit::cli
