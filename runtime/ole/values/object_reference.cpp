#include "runtime/ole/values/object_reference.h"

#include "frame/runtime_error.h"

namespace lumenkit::ole {

ComPtr<IDispatch> DispatchOf(const ObjectRef& object) {
    if (!object) {
        return nullptr;
    }
    const auto* backed = dynamic_cast<const ComBacked*>(object.get());
    if (backed == nullptr) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return backed->Dispatch();
}

}  // namespace lumenkit::ole
