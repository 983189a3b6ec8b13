#include "runtime/ole/page/page_object.h"

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/type_library.h"

namespace lumenkit::ole {

PageObject::PageObject(Component& component, const ClassDescriptor& type, IUnknown* outer)
    : Root(component, outer),
      core_(component, type, *this),
      dual_(*this, Controlling(), *this),
      page_(Controlling(), *this, core_),
      errors_(Controlling(), IID_IPropertyPage) {}

IUnknown* PageObject::Find(REFIID interfaceId) noexcept {
    if (interfaceId == IID_IPropertyPage || interfaceId == IID_IPropertyPage2) {
        return &page_;
    }
    if (interfaceId == IID_IDispatch || interfaceId == GuidOf(Table().uniqueIdentifier)) {
        return dual_.AsDispatch();
    }
    return interfaceId == IID_ISupportErrorInfo ? &errors_ : nullptr;
}

ComPtr<ITypeInfo> PageObject::Description() {
    return DescriptionOf(Table().uniqueIdentifier);
}

}  // namespace lumenkit::ole
