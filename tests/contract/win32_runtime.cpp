// Runs the contract tests on the Windows runtime.
#include <memory>
#include <utility>

#include "runtime/memory/property_bag.h"
#include "tests/contract/windows_user.h"
#include "tests/support/windows_form.h"

namespace lumenkit::contract {
namespace {

class Win32Runtime final : public WindowsUser {
 public:
    explicit Win32Runtime(const ClassTable& classes) : form_(classes) {}

    void PlaceNew(const ClassDescriptor& type) override {
        Place(type);
        control_->Start();
    }
    void PlaceSaved(const ClassDescriptor& type, host::PropertyBag& bag) override {
        Place(type);
        control_->Start(&bag);
    }
    void Resize(float width, float height) override {
        control_->Hosted().SetSize(Pixels(width, height));
    }
    void Expose() override {
        InvalidateRect(control_->Hosted().Handle(), nullptr, FALSE);
        UpdateWindow(control_->Hosted().Handle());
    }
    void Save(host::PropertyBag& bag) override { control_->Hosted().Save(bag); }
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
        return form_.Fonts().NewFont(name, points);
    }

 private:
    SIZE Pixels(float width, float height) {
        const win32::Resolution resolution = form_.PixelsPerInch();
        return {win32::ToPixels(width, resolution.x), win32::ToPixels(height, resolution.y)};
    }
    void Place(const ClassDescriptor& type) {
        control_.reset();
        control_ = std::make_unique<testing::FormControl>(form_, type, Pixels(3000, 1500));
    }
    HWND FormWindow() override { return form_.Window(); }
    HWND ControlWindow() override { return control_->Hosted().Handle(); }

    testing::WindowsForm form_;
    std::unique_ptr<testing::FormControl> control_;
};

}  // namespace

RuntimeKind RuntimeUnderTest() {
    return {.name = "Win32",
            .create = [](const ClassTable& classes) -> std::unique_ptr<ContractRuntime> {
                return std::make_unique<Win32Runtime>(classes);
            }};
}

}  // namespace lumenkit::contract
