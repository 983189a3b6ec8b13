// Runs the contract tests on the memory runtime.
#include "runtime/memory/check_box.h"
#include "runtime/memory/command_button.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/option_button.h"
#include "runtime/memory/scroll_bar.h"
#include "runtime/memory/text_box.h"
#include "runtime/memory/user.h"
#include "tests/contract/contract_runtime.h"

namespace lumenkit::contract {
namespace {

memory::TextBox& Own(host::TextBox& box) {
    return static_cast<memory::TextBox&>(box);
}

class MemoryRuntime final : public ContractRuntime {
 public:
    explicit MemoryRuntime(const ClassTable& classes) : form_(classes) {}

    void PlaceNew(const ClassDescriptor& type) override {
        Place(type);
        control_->StartNew();
    }
    void PlaceSaved(const ClassDescriptor& type, host::PropertyBag& bag) override {
        Place(type);
        control_->StartSaved(bag);
    }
    void Resize(float width, float height) override { control_->Resize(width, height); }
    void Expose() override {}  // there is no screen
    void Save(host::PropertyBag& bag) override { control_->Save(bag); }
    void SetEventHandler(EventHandler handler) override {
        control_->Site().SetEventHandler(std::move(handler));
    }
    void AllowChange(TextView property, bool allowed) override {
        control_->Site().AllowChange(property, allowed);
    }
    std::vector<Text> ChangedProperties() override {
        std::vector<Text> names;
        for (const memory::ChangedProperty* changed : form_.GetLog().Changes()) {
            names.push_back(changed->name);
        }
        return names;
    }
    std::unique_ptr<host::PropertyBag> NewBag() override {
        return std::make_unique<memory::PropertyBag>();
    }
    host::FontRef NewFont(TextView name, float points) override {
        return form_.NewFont(name, points);
    }

    void Focus(host::TextBox& box) override { user_.MoveFocusTo(Own(box)); }
    bool HasFocus(host::TextBox& box) override { return form_.GetFocus().IsAt(Own(box)); }
    void Type(host::TextBox& box, TextView text) override { user_.Type(Own(box), text); }
    void Press(host::TextBox& box, std::int16_t keyCode) override {
        user_.Press(Own(box), keyCode);
    }
    void Select(host::TextBox& box, std::int32_t start, std::int32_t length) override {
        user_.Select(Own(box), start, length);
    }
    void Paste(host::TextBox& box, TextView text) override { user_.Paste(Own(box), text); }
    void Click(host::OptionButton& button) override {
        user_.Click(static_cast<memory::OptionButton&>(button));
    }
    void Click(host::CheckBox& box) override { user_.Click(static_cast<memory::CheckBox&>(box)); }
    void Click(host::CommandButton& button) override {
        user_.Click(static_cast<memory::CommandButton&>(button));
    }
    void Scroll(host::ScrollBar& bar, std::int16_t value) override {
        user_.Scroll(static_cast<memory::ScrollBar&>(bar), value);
    }
    void ClickSurface() override { user_.Click(*control_); }

 private:
    void Place(const ClassDescriptor& type) {
        control_.reset();
        control_ = std::make_unique<memory::HostedControl>(
            form_, type, memory::Placing{.name = u"probe", .tag = u"its tag"});
    }

    memory::Form form_;
    memory::User user_{form_};
    std::unique_ptr<memory::HostedControl> control_;
};

}  // namespace

RuntimeKind RuntimeUnderTest() {
    return {.name = "Memory",
            .create = [](const ClassTable& classes) -> std::unique_ptr<ContractRuntime> {
                return std::make_unique<MemoryRuntime>(classes);
            }};
}

}  // namespace lumenkit::contract
