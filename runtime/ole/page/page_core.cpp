#include "runtime/ole/page/page_core.h"

#include <algorithm>
#include <utility>

#include "frame/runtime_error.h"

namespace lumenkit::ole {

PageCore::PageCore(Component& component, const ClassDescriptor& type, win32::Life& life)
    : type_(type),
      hosted_(
          std::make_unique<win32::HostedPage>(component.GetContext(), type, *this, *this, &life)) {}

void PageCore::Abandon() noexcept {
    hosted_->Detach();
    const auto site = std::exchange(site_, nullptr);
    const auto controls = std::exchange(controls_, {});
}

void PageCore::SetChanged(bool changed) {
    changed_ = changed;
    if (changed && site_ != nullptr) {
        ComPtr<IPropertyPageSite>(site_)->OnStatusChange(PROPPAGESTATUS_DIRTY |
                                                         PROPPAGESTATUS_VALIDATE);
    }
}

ObjectRef PageCore::Item(std::int16_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= controls_.size()) {
        Raise(ErrorNumber::SubscriptOutOfRange);
    }
    askedForControl_ = true;
    return controls_[static_cast<std::size_t>(index)];
}

bool PageCore::FocusOn(DISPID property) {
    const auto& fields = type_.pageFields;
    const auto found = std::ranges::find_if(fields, [&](const PageField& field) {
        return controls_.front()->FindMember(field.property) == property;
    });
    return found != fields.end() && hosted_->FocusOn(found->constituent);
}

bool PageCore::Apply() {
    // A page cannot report a refusal, but it cannot write anything without requesting a control.
    askedForControl_ = false;
    hosted_->GetPage().PropertyPage_ApplyChanges();
    if (askedForControl_) {
        SetChanged(false);
    }
    return askedForControl_;
}

}  // namespace lumenkit::ole
