#include "runtime/ole/class_factory.h"

#include "runtime/ole/control/control_object.h"
#include "runtime/ole/page/page_object.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID interfaceId, void** object) {
    return Guarded([&] {
        Checked(object) = nullptr;
        // An aggregating object must request the non-delegating IUnknown.
        if (outer != nullptr && interfaceId != IID_IUnknown) {
            return CLASS_E_NOAGGREGATION;
        }
        ComPtr<IUnknown> made;
        if (type_.kind == ClassKind::Control) {
            made = Adopted<IUnknown>(new ControlObject(component_, type_, outer));
        } else {
            made = Adopted<IUnknown>(new PageObject(component_, type_, outer));
        }
        return made->QueryInterface(interfaceId, object);
    });
}

HRESULT ClassFactory::LockServer(BOOL lock) {
    component_.Lock(lock != FALSE);
    return S_OK;
}

}  // namespace lumenkit::ole
