#include "apps/lumenform/design/model/settling.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <variant>
#include <vector>

#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/design/model/page_lists.h"
#include "forms/controls.h"

namespace lumenkit::lumenform {

namespace {

const std::int32_t* NumberOf(const forms::Block& block, TextView property) {
    const forms::Property* found = block.FindProperty(property);
    return found == nullptr ? nullptr : std::get_if<std::int32_t>(&found->Literal());
}

class Settling {
 public:
    Settling(const forms::Block& form, const forms::Block& clip) : form_(form), clip_(clip) {}

    void SettleNames() {
        const std::vector<forms::NameClash> clashes = forms::NameClashes(clip_);
        const auto isClash = [&](const forms::Block& block) {
            return std::ranges::find(clashes, &block, &forms::NameClash::control) != clashes.end();
        };
        for (forms::Block* block : forms::AllControls(clip_)) {
            if (NumberOf(*block, u"Index") != nullptr && !IsTakenByOne(block->Name())) {
                SettleIndex(*block);
            } else if (IsTaken(form_, block->Name()) || isClash(*block)) {
                block->Rename(NewName(*block));
            }
        }
    }

    void SettleTabOrder() {
        std::vector<forms::Block*> order;
        for (forms::Block* block : forms::AllControls(clip_)) {
            if (NumberOf(*block, u"TabIndex") != nullptr) {
                order.push_back(block);
            }
        }
        std::ranges::stable_sort(
            order, {}, [](const forms::Block* block) { return *NumberOf(*block, u"TabIndex"); });
        std::int32_t next = FreshTabIndex(form_);
        for (forms::Block* block : order) {
            block->Set(u"TabIndex", next++);
        }
    }

 private:
    // Whether the name belongs to the form or to a control or menu outside a control array.
    bool IsTakenByOne(TextView name) const {
        return Bears(form_, name) ||
               std::ranges::any_of(forms::AllControls(form_), [&](const forms::Block* block) {
                   return Bears(*block, name) && NumberOf(*block, u"Index") == nullptr;
               });
    }

    void SettleIndex(forms::Block& element) {
        const std::int32_t index = *NumberOf(element, u"Index");
        const bool isTaken =
            std::ranges::any_of(forms::AllControls(form_), [&](const forms::Block* block) {
                const std::int32_t* other = NumberOf(*block, u"Index");
                return Bears(*block, element.Name()) && other != nullptr && *other == index;
            });
        if (isTaken) {
            element.Set(u"Index", std::max(FreshIndex(form_, element.Name()),
                                           FreshIndex(clip_, element.Name())));
        }
    }

    // The elements of an array keep a common name.
    Text NewName(const forms::Block& block) {
        const bool isElement = NumberOf(block, u"Index") != nullptr;
        if (const auto known = arrays_.find(block.Name()); isElement && known != arrays_.end()) {
            return known->second;
        }
        Text name = CopyName({&form_, &clip_}, block.Name());
        if (isElement) {
            arrays_.emplace(block.Name(), name);
        }
        return name;
    }

    const forms::Block& form_;
    const forms::Block& clip_;
    std::map<Text, Text> arrays_;
};

}  // namespace

void SettleInto(const forms::Block& form, const forms::Block& clip) {
    Settling settling(form, clip);
    PageLists lists(clip);
    settling.SettleNames();
    lists.Update();
    settling.SettleTabOrder();
}

}  // namespace lumenkit::lumenform
