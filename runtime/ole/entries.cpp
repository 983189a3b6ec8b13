#include "runtime/ole/entries.h"

#include "runtime/ole/class_factory.h"
#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/registration.h"
#include "runtime/ole/values/result.h"
#include "runtime/win32/window.h"

namespace lumenkit::ole {

HRESULT VBDllGetClassObject(const ClassTable& classes, REFCLSID classId, REFIID interfaceId,
                            void** object) noexcept {
    return Guarded([&] {
        Checked(object) = nullptr;
        const ClassDescriptor* type = FindClass(classes, classId);
        if (type == nullptr) {
            return CLASS_E_CLASSNOTAVAILABLE;
        }
        const auto factory = Adopted(new ClassFactory(Component::Of(classes), *type));
        return factory->QueryInterface(interfaceId, object);
    });
}

HRESULT VBDllCanUnloadNow(const ClassTable& classes) noexcept {
    return Guarded([&] { return Component::Of(classes).CanUnload() ? S_OK : S_FALSE; });
}

HRESULT VBDllRegisterServer(const ClassTable& classes) noexcept {
    const HRESULT result = Guarded([&] { Register(classes); });
    if (FAILED(result)) {
        VBDllUnRegisterServer(classes);
    }
    return result;
}

HRESULT VBDllUnRegisterServer(const ClassTable& classes) noexcept {
    return Guarded([&] { Unregister(classes); });
}

BOOL UserDllMain(const ClassTable& /*classes*/, HINSTANCE module, DWORD reason,
                 void* reserved) noexcept {
    // When the whole process ends, the platform has cleaned up already.
    if (reason == DLL_PROCESS_DETACH && reserved == nullptr) {
        win32::RemoveWindowClass(module);
    }
    return TRUE;
}

}  // namespace lumenkit::ole
