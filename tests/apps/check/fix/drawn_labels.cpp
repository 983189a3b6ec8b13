#include "tests/apps/check/fix/drawn_labels.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "forms/controls.h"
#include "forms/form_bag.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"

namespace lumenkit::testing {

namespace {

// A loaded and painted control.
class Drawn {
 public:
    Drawn(const forms::Document& document, forms::Block& block, bool userMode)
        : form_(lumenkitClasses) {
        forms::FormBag bag(document, block, [&](const forms::FontDescription& font) {
            std::shared_ptr<memory::Font> made = form_.NewFont(font.name, font.size);
            made->SetWeight(font.weight);
            return made;
        });
        const auto length = [&](TextView name, float otherwise) {
            const float value = ToSingle(bag.ReadProperty(name, otherwise));
            return value < 0 ? otherwise : value;
        };
        const ClassDescriptor& type = *lumenkitClasses.Find(block.ClassName());
        control_ = std::make_unique<memory::HostedControl>(
            form_, type,
            memory::Placing{.userMode = userMode,
                            .width = length(u"Width", 3000),
                            .height = length(u"Height", 1500)});
        control_->StartSaved(bag);
        control_->Paint();
    }

    // All but empty texts. Control characters are blanks, as on every screen.
    std::vector<memory::DisplayItem> Items() {
        std::vector<memory::DisplayItem> items;
        for (memory::DisplayItem item : control_->Drawing().Drawn().Items()) {
            if (auto* const print = std::get_if<memory::PrintItem>(&item)) {
                texts_.push_back(std::make_unique<Text>(print->text));
                std::ranges::replace_if(*texts_.back(), &IsControl, u' ');
                print->text = *texts_.back();
                if (print->text.empty()) {
                    continue;
                }
            }
            items.push_back(item);
        }
        return items;
    }
    Value Selected() {
        return control_->Type().name == u"VOptList" ? control_->Automation().Get(u"ListIndex")
                                                    : Value();
    }
    std::size_t MessageCount() { return form_.GetLog().Messages().size(); }

 private:
    memory::Form form_;
    std::unique_ptr<memory::HostedControl> control_;
    std::vector<std::unique_ptr<Text>> texts_;
};

std::vector<forms::Block*> ControlsOf(const forms::Document& document) {
    std::vector<forms::Block*> controls = forms::AllControls(document.Root());
    std::erase_if(controls, [](const forms::Block* block) {
        const ClassDescriptor* const type = lumenkitClasses.Find(block->ClassName());
        return type == nullptr || type->kind != ClassKind::Control;
    });
    return controls;
}

}  // namespace

bool DrawTheSame(const forms::Document& before, const forms::Document& after, std::string& why) {
    const std::vector<forms::Block*> old = ControlsOf(before);
    const std::vector<forms::Block*> mended = ControlsOf(after);
    if (old.size() != mended.size()) {
        why = "other controls";
        return false;
    }
    for (std::size_t i = 0; i < old.size(); ++i) {
        for (const bool userMode : {false, true}) {
            Drawn first(before, *old[i], userMode);
            Drawn second(after, *mended[i], userMode);
            if (first.Items() != second.Items() ||
                !SameValue(first.Selected(), second.Selected())) {
                why = ToUtf8(old[i]->Name());
                return false;
            }
        }
    }
    return true;
}

std::size_t MessagesOf(const forms::Document& document) {
    std::size_t count = 0;
    for (forms::Block* const block : ControlsOf(document)) {
        for (const bool userMode : {false, true}) {
            count += Drawn(document, *block, userMode).MessageCount();
        }
    }
    return count;
}

}  // namespace lumenkit::testing
