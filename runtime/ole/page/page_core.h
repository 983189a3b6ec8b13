#pragma once

#include <memory>
#include <vector>

#include "runtime/ole/objects/component.h"
#include "runtime/win32/hosted_page.h"

namespace lumenkit::ole {

/// The state that the interfaces of one property page share: the page, its site and the controls
/// that it edits.
class PageCore final : public host::PropertyPageSite, public host::SelectedControls {
 public:
    PageCore(Component& component, const ClassDescriptor& type, win32::Life& life);

    const ClassDescriptor& Type() const { return type_; }
    win32::HostedPage& Hosted() { return *hosted_; }

    void SetSite(IPropertyPageSite* site) { site_ = site; }
    const ComPtr<IPropertyPageSite>& Site() const { return site_; }
    /// Called when no client holds the page any more.
    void Abandon() noexcept;
    void Select(std::vector<ObjectRef> controls) { controls_ = std::move(controls); }

    // Requests and notifications of the page.
    bool Changed() const override { return changed_; }
    void SetChanged(bool changed) override;
    std::int16_t Count() const override { return static_cast<std::int16_t>(controls_.size()); }
    ObjectRef Item(std::int16_t index) override;

    /// Gives the focus to the constituent that edits this property of the first control. Returns
    /// false if the page does not edit the property.
    bool FocusOn(DISPID property);

    /// Lets the page write the values that were entered. Returns false if it wrote nothing: it
    /// refused the values and its state is unchanged.
    bool Apply();

 private:
    const ClassDescriptor& type_;
    ComPtr<IPropertyPageSite> site_;
    std::vector<ObjectRef> controls_;
    bool changed_ = false;
    bool askedForControl_ = false;
    std::unique_ptr<win32::HostedPage> hosted_;
};

}  // namespace lumenkit::ole
