#include "runtime/memory/hosted_page.h"

#include <stdexcept>
#include <utility>

#include "runtime/memory/hosted_control.h"

namespace lumenkit::memory {

HostedPage::HostedPage(Form& form, const ClassDescriptor& type)
    : site_(form.Faults()),
      selectedControls_(form.Faults()),
      constituents_(form, nullptr, true, EmbedControl),
      host_{.site = site_,
            .selectedControls = selectedControls_,
            .screen = form.GetScreen(),
            .interaction = form.GetInteraction(),
            .constituents = constituents_} {
    if (type.createPage == nullptr) {
        throw std::logic_error("the class is no property page");
    }
    page_ = type.createPage(host_);
    page_->PropertyPage_Initialize();
}

void HostedPage::Select(const std::vector<HostedControl*>& controls) {
    std::vector<ObjectRef> objects;
    objects.reserve(controls.size());
    for (HostedControl* control : controls) {
        objects.push_back(control->SharedAutomation());
    }
    SelectObjects(std::move(objects));
}

void HostedPage::SelectObjects(std::vector<ObjectRef> controls) {
    selectedControls_.Assign(std::move(controls));
    page_->PropertyPage_SelectionChanged();
}

void HostedPage::Apply() {
    page_->PropertyPage_ApplyChanges();
}

}  // namespace lumenkit::memory
