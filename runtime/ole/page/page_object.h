#pragma once

#include "runtime/ole/objects/dual_interface.h"
#include "runtime/ole/objects/error_support.h"
#include "runtime/ole/objects/root.h"
#include "runtime/ole/page/property_page.h"

namespace lumenkit::ole {

/// A property page as COM clients see it.
class PageObject final : public Root, private DualTarget {
 public:
    PageObject(Component& component, const ClassDescriptor& type, IUnknown* outer);

 private:
    IUnknown* Find(REFIID interfaceId) noexcept override;
    void Released() noexcept override { core_.Abandon(); }

    const InterfaceTable& Table() const override { return *core_.Type().interfaceTable; }
    Object& Members() override { return core_.Hosted().Automation(); }
    ComPtr<ITypeInfo> Description() override;

    PageCore core_;
    DualInterface dual_;
    PropertyPageFace page_;
    ErrorSupport errors_;
};

}  // namespace lumenkit::ole
