// The exports and the entry point of the component server. Each passes the project descriptor to
// the matching function of the runtime.
#include "project/lumenkit_classes.h"
#include "runtime/ole/entries.h"

using lumenkit::lumenkitClasses;

STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, void** object) {
    return lumenkit::ole::VBDllGetClassObject(lumenkitClasses, classId, interfaceId, object);
}

STDAPI DllCanUnloadNow() {
    return lumenkit::ole::VBDllCanUnloadNow(lumenkitClasses);
}

STDAPI DllRegisterServer() {
    return lumenkit::ole::VBDllRegisterServer(lumenkitClasses);
}

STDAPI DllUnregisterServer() {
    return lumenkit::ole::VBDllUnRegisterServer(lumenkitClasses);
}

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* reserved) {
    return lumenkit::ole::UserDllMain(lumenkitClasses, module, reason, reserved);
}
