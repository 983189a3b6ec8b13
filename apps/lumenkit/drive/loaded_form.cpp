#include "apps/lumenkit/drive/loaded_form.h"

#include <cstdint>
#include <set>
#include <utility>

#include "apps/lumenkit/windowless/saved_font.h"
#include "apps/lumenkit/windowless/saved_placing.h"
#include "forms/controls.h"
#include "forms/form_bag.h"
#include "frame/numbers.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

// Returns the name or, for a name that an earlier control has, the name with a number: "A#2".
Text FreshId(const Text& name, std::set<Text>& taken) {
    Text id = name;
    for (std::int32_t number = 2; !taken.insert(LCase(id)).second; ++number) {
        id = name + u'#' + Decimal(number);
    }
    return id;
}

}  // namespace

LoadedForm::LoadedForm(forms::Document document, const ClassTable& classes)
    : document_(std::move(document)) {
    std::set<Text> ids;
    for (forms::Block* block : forms::AllControls(document_.Root())) {
        const ClassDescriptor* type = classes.Find(block->ClassName());
        if (type == nullptr || type->kind != ClassKind::Control) {
            continue;
        }
        found_.push_back({*block, *type, FreshId(forms::NameInCode(*block), ids)});
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
        saved_.push_back({*control, forms::BlockKeeper(document_, found.block, save)});
        living.push_back({ToUtf8(found.name), std::move(control)});
    }
    return living;
}

void LoadedForm::Update() {
    for (Saved& saved : saved_) {
        saved.keeper.Update([&](host::PropertyBag& bag) { saved.control.Save(bag); });
    }
}

}  // namespace lumenkit::cli
