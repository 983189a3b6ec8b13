#include "runtime/ole/object_reference.h"

#include "frame/runtime_error.h"
#include "runtime/ole/dispatch_object.h"
#include "runtime/ole/ole_font.h"

namespace lumenkit::ole {

ObjectRef ObjectOf(IUnknown* object) {
    if (object == nullptr) {
        return nullptr;
    }
    ComPtr<IFont> font;
    if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(&font)))) {
        return OleFont::Of(font.Get());
    }
    ComPtr<IDispatch> dispatch;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&dispatch)))) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return std::make_shared<DispatchObject>(dispatch.Get());
}

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
