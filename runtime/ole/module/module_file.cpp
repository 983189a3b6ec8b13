#include "runtime/ole/module/module_file.h"

#include "runtime/win32/application.h"

namespace lumenkit::ole {

HINSTANCE OwnModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(&OwnModule), &module);
    return module;
}

std::wstring OwnPath() {
    return win32::PathOf(OwnModule());
}

}  // namespace lumenkit::ole
