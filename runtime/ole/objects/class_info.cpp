#include "runtime/ole/objects/class_info.h"

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/type_library.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

HRESULT ClassInfo::GetClassInfo(ITypeInfo** information) {
    return Guarded([&] {
        Checked(information) = nullptr;
        *information = DescriptionOf(type_.uniqueIdentifier).Detach();
    });
}

HRESULT ClassInfo::GetGUID(DWORD kind, GUID* guid) {
    return Guarded([&] {
        Checked(guid) = GUID_NULL;
        if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID || type_.eventTable == nullptr) {
            return E_INVALIDARG;
        }
        *guid = GuidOf(type_.eventTable->uniqueIdentifier);
        return S_OK;
    });
}

}  // namespace lumenkit::ole
